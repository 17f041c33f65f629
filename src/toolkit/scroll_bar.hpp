#pragma once

#include <functional>

#include "toolkit/control.hpp"

namespace tombolario {

/// A scroll bar with an arrow at either end, lying or standing. `Value` stays inside `Min` to `Max`
/// whoever changes any of them (at `Min` where `Max` is below it), and `onChange` is called each time
/// `Value` has become another, also from code.
class ScrollBar : public Control {
 public:
  enum class Direction { Horizontal, Vertical };

  ScrollBar(Control& parent, Name name, Box box, Direction direction, const char* about)
      : Control(parent, name, box, "", {.back = SystemColour::ButtonFace, .about = about}),
        direction_(direction) {}

  std::function<void()> onChange;

  /// A press on an arrow or on the track moves by one towards it; the thumb follows a drag.
  void leftDown(Point point) override;
  void leftDrag(Point point) override;
  bool sinks() const override { return true; }
  Role role() const override { return Role::Bar; }

 private:
  enum class Part { None, LowArrow, HighArrow, Thumb };

  void changed() override;
  void draw(Painter& painter, const Rect& bounds) const override;

  // Along the bar, in twips from its low end.
  int along(Point point) const { return direction_ == Direction::Horizontal ? point.x : point.y; }
  int length() const { return direction_ == Direction::Horizontal ? Width : Height; }
  int arrowLength() const;
  int trackLength() const { return length() - 2 * arrowLength(); }
  int thumbLength() const;
  int thumbStart() const;  // where there is a range
  int range() const { return Max > Min ? Max - Min : 0; }

  Direction direction_;
  int announced_ = 0;
  Part pressed_ = Part::None;
  int grip_ = 0;  // how far into the thumb it was taken
};

}  // namespace tombolario
