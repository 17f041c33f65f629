#pragma once

#include "toolkit/painter.hpp"
#include "toolkit/picture.hpp"

namespace tombolario {

/// Draws nothing, but has every picture draw itself.
class NullPainter : public Painter {
 public:
  void fillRect(const Rect&, Rgb) override {}
  void outlineRect(const Rect&, Rgb, double) override {}
  void fillPolygon(std::span<const Vec>, Rgb) override {}
  void outlinePolygon(std::span<const Vec>, Rgb, double) override {}
  void fillEllipse(const Rect&, Rgb) override {}
  void line(Vec, Vec, Rgb, double) override {}
  void text(const Rect&, std::string_view, const Font&, Rgb, Align) override {}
  double textWidth(std::string_view, const Font&) override { return 0; }
  void picture(const PictureId& picture, Vec, bool) override { picture.draw(*this); }
  void enter(const Rect&, double) override {}
  void leave() override {}
};

}  // namespace tombolario
