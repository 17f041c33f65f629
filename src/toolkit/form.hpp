#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "toolkit/control.hpp"

namespace tombolario {

/// The window: it owns no control, but knows them all, brings the mouse to them and draws them.
///
/// A mouse event goes to the topmost control on view under the mouse; a disabled one takes it and does
/// nothing. A press captures the mouse until every button is released, also when the captured control
/// is hidden meanwhile: it then gets nothing any more, and nor does what came into its place. A press that
/// hides its own control captures nothing, and its release is nobody's. A click is a press and a release of
/// the left button inside the same control.
class Form : public Control {
 public:
  Form(Name name, Box box, Colour back, std::string caption);

  Role role() const override { return Role::Ground; }

  /// Points are in twips of the window and may lie outside it.
  void mouseMove(Point point);
  /// A press of a button that is already down tells that its release went elsewhere, to another program: it
  /// is released first, without a click. A release of a button that is not down does nothing.
  void mouseDown(MouseButton button);
  void mouseUp(MouseButton button);
  /// What is still down is released without a click: the mouse is another program's.
  void mouseLost();

  /// The cursor to show now; none is the system's arrow.
  PictureId cursor();
  /// Whether the left button holds the control down at this moment.
  bool holdsDown(const Control& control) const { return &control == sunken_; }

  /// The screen in sight, the topmost visible control in the window; the window itself if there is none.
  const Control& inSight() const;

  /// True from a change that can be seen until the next repaint.
  bool needsDrawing() const { return needsDrawing_; }
  void redraw() { needsDrawing_ = true; }
  /// Draws the whole window and nothing outside it, for somebody who looks on, or for the player.
  void paint(Painter& painter) const;
  void repaint(Painter& painter);

  /// The control of that name, as `Command8` or `Pict(3)`, the window itself too; null if there is none.
  Control* find(std::string_view wanted);
  /// Every control but the window, in the order in which they were made.
  const std::vector<Control*>& controls() const { return controls_; }
  /// A new control. Throws std::logic_error where another has its name.
  void enrol(Control& control);

 private:
  void draw(Painter& painter, const Rect& bounds) const override;
  Control* underMouse();
  Control* target();
  void letGo();
  void updateSunken();

  std::vector<Control*> controls_;
  std::unordered_map<std::string, Control*> byName_;
  Point mouse_{-1, -1};
  unsigned held_ = 0;            // a bit for each button that is down
  Control* captured_ = nullptr;  // what was under the first press; null outside the window
  Control* armed_ = nullptr;     // where the left button went down
  Control* sunken_ = nullptr;    // armed, with the mouse over it
  bool needsDrawing_ = true;
};

}  // namespace tombolario
