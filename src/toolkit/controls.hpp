#pragma once

#include <functional>
#include <string>
#include <utility>

#include "toolkit/control.hpp"

namespace tombolario {

/// A plain ground for other controls, its caption in the top left corner.
class Frame : public Control {
 public:
  Frame(Control& parent, Name name, Box box, const Look& look, std::string caption = "")
      : Control(parent, name, box, std::move(caption), look) {}

  Role role() const override { return Role::Ground; }

 private:
  bool edged() const override { return border() != Border::None; }
  void draw(Painter& painter, const Rect& bounds) const override;
};

/// Text on a ground. A caption of several lines is centred as one block.
class Label : public Control {
 public:
  Label(Control& parent, Name name, Box box, std::string caption, const Look& look)
      : Control(parent, name, box, std::move(caption), look) {}

  Role role() const override { return Role::Text; }

 private:
  bool edged() const override { return border() != Border::None; }
  void draw(Painter& painter, const Rect& bounds) const override;
};

/// A picture at its own size in the middle of the box.
class PictureBox : public Control {
 public:
  PictureBox(Control& parent, Name name, Box box, const Look& look) : Control(parent, name, box, "", look) {}

  Role role() const override { return Role::Picture; }

 private:
  void draw(Painter& painter, const Rect& bounds) const override;
  int inset() const override { return border() == Border::Single ? kTwipsPerPixel : 0; }
};

/// A picture without a ground, in the middle of the box: at its own size, or smaller where the box is.
class Image : public Control {
 public:
  Image(Control& parent, Name name, Box box, PictureId picture, bool visible = true)
      : Control(parent, name, box, "", {.picture = picture, .visible = visible}) {}

  Role role() const override { return Role::Picture; }

 private:
  void draw(Painter& painter, const Rect& bounds) const override;
};

/// A raised button with a caption, or a picture in its place.
class Button : public Control {
 public:
  Button(Control& parent, Name name, Box box, std::string caption, const Look& look)
      : Control(parent, name, box, std::move(caption), look) {}

  std::function<void()> onClick;

  void click() override {
    if (onClick) onClick();
  }
  bool sinks() const override { return true; }

  Role role() const override { return Role::Button; }

 private:
  void draw(Painter& painter, const Rect& bounds) const override;
  Font captionFont(Painter& painter, const Rect& face) const;
};

/// A button with a picture that has a body, seen from the left above.
class TileButton : public Button {
 public:
  using Button::Button;

  Role role() const override { return Role::Tile; }

 private:
  void draw(Painter& painter, const Rect& bounds) const override;
};

/// One of several choices; `Value` is 1 for the one that is taken and 0 for its fellows in the same
/// parent, whoever sets it.
class OptionButton : public Control {
 public:
  OptionButton(Control& parent, Name name, Box box, std::string caption, bool chosen, const Look& look)
      : Control(parent, name, box, std::move(caption), look) {
    Value = chosen ? 1 : 0;
  }

  void click() override { Value = 1; }

  Role role() const override { return Role::Option; }

 private:
  void changed() override;
  void draw(Painter& painter, const Rect& bounds) const override;
};

/// A filled rectangle with a coloured edge inside its box: `FillColor`, `BorderColor`. The mouse goes
/// through it.
class Shape : public Control {
 public:
  /// The edge is `borderWidth` pixels wide.
  Shape(Control& parent, Name name, Box box, int borderWidth, const Look& look)
      : Control(parent, name, box, "", look), borderWidth_(borderWidth) {
    FillColor = look.back;
    BorderColor = look.fore;
  }

  Role role() const override { return Role::Ground; }

 private:
  bool takesMouse() const override { return false; }
  void draw(Painter& painter, const Rect& bounds) const override;

  int borderWidth_;
};

/// A line along its box, which is as thick as the line, in `BorderColor`. The mouse goes through it.
class Line : public Control {
 public:
  Line(Control& parent, Name name, Box box, Colour colour) : Control(parent, name, box, "", {}) {
    BorderColor = colour;
  }

  Role role() const override { return Role::Ground; }

 private:
  bool takesMouse() const override { return false; }
  void draw(Painter& painter, const Rect& bounds) const override;
};

/// A sunken box with lines of text to read; the text is its `Caption`.
class TextBox : public Control {
 public:
  TextBox(Control& parent, Name name, Box box, std::string text, const Look& look)
      : Control(parent, name, box, std::move(text), look) {}

  Role role() const override { return Role::Text; }

 private:
  void draw(Painter& painter, const Rect& bounds) const override;
};

}  // namespace tombolario
