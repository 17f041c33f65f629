#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/colour.hpp"
#include "toolkit/geometry.hpp"
#include "toolkit/painter.hpp"
#include "toolkit/picture.hpp"
#include "toolkit/property.hpp"

namespace tombolario {

class Form;

/// By number; a mouse may have more buttons at its side, which number on, below 32.
enum class MouseButton : std::uint8_t { Left, Right, Middle, Back, Forward };

/// `MousePointer` of a control that shows its own `MouseIcon`.
inline constexpr int kCustomPointer = 99;

/// The name of a control, with its index where it is one of an array.
struct Name {
  Name(const char* single) : base(single) {}
  Name(const char* array, int element) : base(array), index(element), inArray(true) {}
  /// `Command8`, `Pict(3)`.
  std::string text() const;

  std::string_view base;
  int index = 0;
  bool inArray = false;
};

/// The edge of a control. Single takes one pixel off the inside of a picture box, the others none.
enum class Border { None, Single, Sunken, Etched };

/// What a control is to a player who hears the room.
enum class Role : std::uint8_t { Ground, Group, Text, Picture, Button, Tile, Option, Bar };

/// How a control looks when it is made.
struct Look {
  Colour back = SystemColour::ButtonFace;
  Colour fore = kBlack;
  Font font = {};
  Align align = Align::Centre;
  Border border = Border::None;
  PictureId picture = {};
  bool visible = true;
  const char* about =
      "";  ///< in Italian, what eyes tell by the place: whose number it is, which end of a line
};
constexpr Look saying(const char* words, Look look) {
  look.about = words;
  return look;
}

/// Anything with a place in the window. Its properties are plain data with the names that the games use;
/// the kinds differ in how they are drawn and in what the mouse does to them. A control is made once, as
/// a member of the screen that owns it, and stays where it is; what is made later lies above.
class Control {
 public:
  Control(Control& parent, Name name, Box box, std::string caption, const Look& look);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const Name& name() const { return name_; }
  virtual Role role() const = 0;
  const char* about() const { return about_; }
  /// The back colour that it was made with; another one marks it.
  Colour backAtRest() const { return backAtRest_; }
  /// Null for the window itself.
  Control* parent() const { return parent_; }
  /// What lies in it, the last one on top.
  const std::vector<Control*>& children() const { return children_; }
  /// Visible, and every control around it too.
  bool onView() const;
  /// Enabled, and every control around it too.
  bool operable() const;
  /// Its top left corner in twips of the window.
  Point origin() const;
  /// The topmost visible control here that takes the mouse at the point, which is relative to this control;
  /// null if the point is outside or the control itself is hidden.
  Control* at(Point point);
  /// Draws the control and what lies in it where it is the present place, of that size in pixels from (0,0).
  void paint(Painter& painter, const Rect& bounds) const;

  Property<bool> Visible;
  Property<bool> Enabled{*this, true};
  Property<Colour> BackColor;
  Property<Colour> ForeColor;
  Property<Colour> BorderColor{*this, kBlack};
  Property<Colour> FillColor{*this, kBlack};
  TextProperty Caption;
  Property<PictureId> Picture;
  Property<int> Left, Top, Width, Height;  ///< twips, relative to the inside of the parent
  Property<int> Value{*this, 0};
  Property<int> Min{*this, 0};
  Property<int> Max{*this, 0};
  Property<int> MousePointer{*this, 0};
  Property<PictureId> MouseIcon{*this, {}};

  std::function<void(Point)> onMouseMove;  ///< the point is relative to the control, in twips
  std::function<void(MouseButton)> onMouseDown;
  std::function<void(MouseButton)> onMouseUp;

  /// What the left button does to the kind: a press inside, a drag of that press to a point (relative,
  /// maybe outside), and a press and a release both inside.
  virtual void leftDown(Point) {}
  virtual void leftDrag(Point) {}
  virtual void click() {}
  /// Whether it looks different while the left button holds it down.
  virtual bool sinks() const { return false; }

 protected:
  /// The window itself.
  Control(Form& self, Name name, Box box, Colour back);

  /// Runs whenever a property has a new value.
  virtual void changed();
  friend void propertyChanged(Control& owner) { owner.changed(); }

  virtual void draw(Painter& painter, const Rect& bounds) const = 0;
  /// Shapes and lines let the mouse through.
  virtual bool takesMouse() const { return true; }
  /// Whether lines are drawn along its edges.
  virtual bool edged() const { return true; }
  /// By how much what lies inside is set off from the top left corner, in twips: nothing or a line.
  virtual int inset() const { return 0; }
  /// The colour of its text, which is quiet while it is disabled.
  Rgb ink() const;
  /// The ground on which its picture is quiet, while it is disabled.
  std::optional<Rgb> quietOn() const;

  const Form& form() const { return form_; }
  const Font& font() const { return font_; }
  Align align() const { return align_; }
  Border border() const { return border_; }

 private:
  bool contains(Point point) const;
  Sides linesAgainst(const Control& child, const Rect& box) const;
  static Control& made(Control& parent, const Name& child);

  /// Only a control that has been made says that it is itself.
  const Control* self_ = this;
  Form& form_;
  Control* parent_;
  std::vector<Control*> children_;
  Name name_;
  const char* about_ = "";
  Colour backAtRest_;
  Font font_;
  Align align_ = Align::Left;
  Border border_ = Border::None;
};

}  // namespace tombolario
