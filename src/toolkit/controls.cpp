#include "toolkit/controls.hpp"

#include <algorithm>

#include "toolkit/caption.hpp"
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

void drawCentred(Painter& painter, const Rect& bounds, const PictureId& picture, bool dimmed) {
  const Size size = picture.size();
  painter.picture(picture, {bounds.x + (bounds.w - size.width) / 2, bounds.y + (bounds.h - size.height) / 2},
                  dimmed);
}

}  // namespace

void Frame::draw(Painter& painter, const Rect& bounds) const {
  painter.fillRect(bounds, BackColor.get().rgb());
  const std::string& caption = Caption;
  if (caption.empty()) {
    drawBorder(painter, bounds, border());
    return;
  }
  const double height = lineHeight(font());
  drawBorder(painter, {bounds.x, bounds.y + height / 2, bounds.w, bounds.h - height / 2}, border());
  const Rect box{bounds.x + 8, bounds.y, painter.textWidth(caption, font()) + 6, height};
  painter.fillRect(box, BackColor.get().rgb());
  painter.text(box, caption, font(), ForeColor.get().rgb(), Align::Centre);
}

void Label::draw(Painter& painter, const Rect& bounds) const {
  painter.fillRect(bounds, BackColor.get().rgb());
  drawCaption(painter, bounds, Caption.get(), font(), ForeColor.get().rgb(), align(), !Enabled);
  drawBorder(painter, bounds, border());
}

void PictureBox::draw(Painter& painter, const Rect& bounds) const {
  painter.fillRect(bounds, BackColor.get().rgb());
  if (Picture.get()) drawCentred(painter, bounds, Picture, !Enabled);
  drawBorder(painter, bounds, border());
}

void Image::draw(Painter& painter, const Rect& bounds) const {
  const PictureId& picture = Picture;
  if (!picture) return;
  const Size size = picture.size();
  const double zoom = std::min(bounds.w / size.width, bounds.h / size.height);
  if (zoom >= 1) return drawCentred(painter, bounds, picture, !Enabled);
  painter.enter({bounds.x + (bounds.w - size.width * zoom) / 2,
                 bounds.y + (bounds.h - size.height * zoom) / 2, size.width * zoom, size.height * zoom},
                zoom);
  painter.picture(picture, {0, 0}, !Enabled);
  painter.leave();
}

void Button::draw(Painter& painter, const Rect& bounds) const {
  const bool down = form().holdsDown(*this);
  const Rgb ground = BackColor.get().rgb();
  painter.fillRect(bounds, Picture.get() && !Enabled ? veiled(ground) : ground);
  const Rect face = bounds.inset(4);
  const Rect content = down ? face.movedBy(1, 1) : face;
  if (Picture.get()) {
    drawCentred(painter, content, Picture, !Enabled);
  } else {
    drawCaption(painter, content, Caption.get(), font(), ForeColor.get().rgb(), align(), !Enabled);
  }
  drawEdge(painter, bounds, down ? Edge::Pressed : Edge::Raised);
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
  drawCaption(painter, text, Caption.get(), font(), ForeColor.get().rgb(), Align::Left, !Enabled);
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
  drawCaption(painter, {bounds.x + 5, bounds.y + 4, bounds.w - 10, height}, Caption.get(), font(),
              ForeColor.get().rgb(), align(), !Enabled);
  drawEdge(painter, bounds, Edge::Sunken);
}

}  // namespace tombolario
