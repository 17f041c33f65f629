#pragma once

#include <map>
#include <string>
#include <vector>

#include "toolkit/canvas.hpp"

namespace tombolario {

/// Draws nothing and tells in text what it is to draw, a line for each call. Its type is of even width, so
/// that what it tells is the same on any machine.
class RecordingCanvas : public Canvas {
 public:
  /// All so far; what is copied is told in full where it is copied first.
  const std::string& told() const;
  /// The words that are drawn.
  const std::vector<std::string>& texts() const { return texts_; }

  std::unique_ptr<Canvas> make(Size size) override;
  void startAt(Vec origin) override;
  void fillRect(const Rect& rect, Rgb colour) override;
  void fillPolygon(std::span<const Vec> points, Rgb colour) override;
  void fillPolygon(std::span<const Vec> points, const Gradient& gradient) override;
  void strokePolygon(std::span<const Vec> points, Rgb colour, double width) override;
  void fillEllipse(Vec centre, Vec radii, Rgb colour) override;
  void line(Vec from, Vec to, Rgb colour, double width) override;
  void text(std::string_view text, const Typeface& face, Vec start, Rgb colour) override;
  double textWidth(std::string_view text, const Typeface& face) override;
  double capHeight(const Typeface& face) override { return 0.7 * face.em; }
  void copy(Canvas& from, Vec at) override;
  void clip(const Rect& rect) override;
  void unclip() override;

 private:
  template <class... Parts>
  void tell(const char* what, const Parts&... parts);

  std::string told_;
  std::string indent_;
  std::vector<std::string> texts_;
  std::string name_;
  int made_ = 0;
  bool copied_ = false;
};

/// Whether what is told under each heading is what the file of that name in `recorded` tells under it.
/// With TOMBOLARIO_RECORD in the environment the file is written anew instead.
void expectAsRecorded(const std::string& file, const std::map<std::string, std::string>& told);

}  // namespace tombolario
