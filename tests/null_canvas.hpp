#pragma once

#include "toolkit/canvas.hpp"

namespace tombolario {

/// Draws nothing.
class NullCanvas : public Canvas {
 public:
  std::unique_ptr<Canvas> make(Size) override { return std::make_unique<NullCanvas>(); }
  void startAt(Vec) override {}
  void fillRect(const Rect&, Rgb) override {}
  void fillPolygon(std::span<const Vec>, Rgb) override {}
  void fillPolygon(std::span<const Vec>, const Gradient&) override {}
  void strokePolygon(std::span<const Vec>, Rgb, double) override {}
  void fillEllipse(Vec, Vec, Rgb) override {}
  void line(Vec, Vec, Rgb, double) override {}
  void text(std::string_view, const Typeface&, Vec, Rgb) override {}
  double textWidth(std::string_view, const Typeface&) override { return 0; }
  double capHeight(const Typeface& face) override { return face.em; }
  void copy(Canvas&, Vec) override {}
  void clip(const Rect&) override {}
  void unclip() override {}
};

}  // namespace tombolario
