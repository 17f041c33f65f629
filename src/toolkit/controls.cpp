#include "toolkit/controls.hpp"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "toolkit/caption.hpp"
#include "toolkit/contrast.hpp"
#include "toolkit/edges.hpp"
#include "toolkit/form.hpp"

namespace tombolario {

namespace {

void drawBorder(Painter& painter, const Rect& bounds, Border border) {
  switch (border) {
    case Border::None: break;
    case Border::Single: painter.outlineRect(bounds, kBlack, 1); break;
    case Border::Sunken: drawEdge(painter, bounds, Edge::Sunken); break;
    case Border::Etched: drawEdge(painter, bounds, Edge::Etched); break;
  }
}

/// A size in the middle of the bounds, on whole pixels.
Rect centred(const Rect& bounds, Size size) {
  const double width = size.width;
  const double height = size.height;
  return {bounds.x + std::floor((bounds.w - width + 1) / 2),
          bounds.y + std::floor((bounds.h - height + 1) / 2), width, height};
}

void drawCentred(Painter& painter, const Rect& bounds, const PictureId& picture, std::optional<Rgb> quietOn) {
  painter.picture(picture, centred(bounds, picture.size()), quietOn);
}

}  // namespace

void Frame::draw(Painter& painter, const Rect& bounds) const {
  const std::string& caption = Caption;
  painter.fillRect(bounds, BackColor.get().rgb());
  painter.text({bounds.x + 10, bounds.y + 3, bounds.w - 20, std::round(lineHeight(font()))}, caption, font(),
               ink(), Align::Left);
  drawBorder(painter, bounds, border());
}

void Label::draw(Painter& painter, const Rect& bounds) const {
  painter.fillRect(bounds, BackColor.get().rgb());
  drawCaption(painter, bounds, Caption.get(), font(), ink(), align());
  drawBorder(painter, bounds, border());
}

void PictureBox::draw(Painter& painter, const Rect& bounds) const {
  // A picture that leaves a pixel of the box all round lies within a line, drawn or not.
  const Size size = Picture.get().size();
  const bool bordered =
      border() == Border::Single || (size.width == bounds.w - 2 && size.height == bounds.h - 2);
  painter.fillRect(bounds, BackColor.get().rgb());
  const Rect inside = bordered ? Rect{0, 0, bounds.w - 2, bounds.h - 2} : bounds;
  if (bordered) painter.enterInside(bounds);
  if (children().empty()) {
    drawCentred(painter, inside, Picture, quietOn());
  } else {
    // Its lines are those between which the children lie: they are drawn in place, not copied.
    painter.enter(centred(inside, size));
    Picture.get().draw(painter);
    painter.leave();
  }
  if (bordered) painter.leave();
  drawBorder(painter, bounds, border());
}

void Image::draw(Painter& painter, const Rect& bounds) const {
  const PictureId& picture = Picture;
  if (!picture) return;
  const Size size = picture.size();
  const double zoom = std::min(bounds.w / size.width, bounds.h / size.height);
  if (zoom >= 1) return drawCentred(painter, bounds, picture, quietOn());
  const double width = std::round(size.width * zoom);
  const double height = std::round(size.height * zoom);
  painter.picture(picture,
                  {bounds.x + std::floor((bounds.w - width) / 2),
                   bounds.y + std::floor((bounds.h - height) / 2), width, height},
                  quietOn());
}

void Button::draw(Painter& painter, const Rect& bounds) const {
  const bool down = form().holdsDown(*this);
  painter.fillRect(bounds, BackColor.get().rgb());
  const Rect face = bounds.inset(4);
  const Rect content = down ? face.movedBy(1, 1) : face;
  if (Picture.get()) {
    drawCentred(painter, content, Picture, quietOn());
  } else {
    drawCaption(painter, content, Caption.get(), captionFont(painter, face), ink(), align());
  }
  drawEdge(painter, bounds, !Enabled ? Edge::Flat : down ? Edge::Pressed : Edge::Raised);
}

/// Buttons of one width that stand on each other have letters of one height.
Font Button::captionFont(Painter& painter, const Rect& face) const {
  int top = Top;
  int bottom = Top + Height;
  Font smallest = font();
  for (bool grown = true; std::exchange(grown, false);) {
    for (const Control* child : parent()->children()) {
      const auto* fellow = dynamic_cast<const Button*>(child);
      if (fellow == nullptr || fellow->Left.get() != Left || fellow->Width.get() != Width) continue;
      if (fellow->Top > bottom || fellow->Top + fellow->Height < top) continue;
      grown |= fellow->Top < top || fellow->Top + fellow->Height > bottom;
      top = std::min(top, fellow->Top.get());
      bottom = std::max(bottom, fellow->Top + fellow->Height);
      if (fellow->font() != font()) continue;
      const Rect box{0, 0, face.w, fellow->Height / double{kTwipsPerPixel} - 8};
      const Font fitting = tombolario::captionFont(painter, box, fellow->Caption.get(), font());
      if (fitting.points < smallest.points) smallest = fitting;
    }
  }
  return smallest;
}

void TileButton::draw(Painter& painter, const Rect& bounds) const {
  constexpr int kBody = 3;
  const bool down = form().holdsDown(*this);
  const Rgb face = BackColor.get().rgb();
  const Rgb side = mixed(face, kBlack, down ? 0.15 : 0.35);
  painter.fillRect(bounds, face);
  painter.bevel(bounds, 0, mixed(face, kBlack, 0.5), mixed(face, kBlack, 0.7));
  for (int layer = 1; layer <= kBody; ++layer) {
    painter.bevel(bounds, layer, layer == 1 && !down ? mixed(face, kWhite, 0.6) : face, side);
  }
  const Rect top{bounds.x + 1, bounds.y + 1, bounds.w - 2 - kBody, bounds.h - 2 - kBody};
  drawCentred(painter, down ? top.movedBy(1, 1) : top, Picture, quietOn());
}

void OptionButton::changed() {
  Control::changed();
  if (Value != 1) return;
  for (Control* fellow : parent()->children()) {
    if (fellow != this && dynamic_cast<OptionButton*>(fellow) != nullptr) fellow->Value = 0;
  }
}

void OptionButton::draw(Painter& painter, const Rect& bounds) const {
  const double size = 12;
  const Rgb shadow = classicPalette(SystemColour::ButtonShadow);
  const Rect ring{bounds.x + 2, bounds.y + (bounds.h - size) / 2, size, size};
  painter.fillRect(bounds, BackColor.get().rgb());
  painter.fillEllipse(ring, shadow);
  painter.fillEllipse(ring.inset(1), kBlack);
  painter.fillEllipse(ring.inset(1.75), Enabled ? kWhite : classicPalette(SystemColour::Light3d));
  if (Value == 1) painter.fillEllipse(ring.inset(3.75), Enabled ? kBlack : shadow);
  const Rect text{bounds.x + size + 7, bounds.y, bounds.w - size - 7, bounds.h};
  drawCaption(painter, text, Caption.get(), font(), ink(), Align::Left);
}

void Shape::draw(Painter& painter, const Rect& bounds) const {
  painter.fillRect(bounds, FillColor.get().rgb());
  painter.outlineRect(bounds, BorderColor.get().rgb(), borderWidth_);
}

void Line::draw(Painter& painter, const Rect& bounds) const {
  painter.fillRect(bounds, BorderColor.get().rgb());
}

void TextBox::draw(Painter& painter, const Rect& bounds) const {
  const auto lines = 1 + std::count(Caption.get().begin(), Caption.get().end(), '\n');
  const double height = static_cast<double>(lines) * lineHeight(font());
  painter.fillRect(bounds, BackColor.get().rgb());
  drawCaption(painter, {bounds.x + 5, bounds.y + 4, bounds.w - 10, height}, Caption.get(), font(), ink(),
              align());
  drawEdge(painter, bounds, Edge::Sunken);
}

}  // namespace tombolario
