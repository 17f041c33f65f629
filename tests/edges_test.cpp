#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "null_canvas.hpp"
#include "pictures/catalogue.hpp"
#include "session.hpp"
#include "toolkit/controls.hpp"

namespace tombolario {
namespace {

/// Shows the rectangles and the copies that are drawn on it, and nothing else.
class FlatCanvas : public NullCanvas {
 public:
  explicit FlatCanvas(Size size) : size_(size), pixels_(static_cast<std::size_t>(size.width * size.height)) {
    clip({0, 0, static_cast<double>(size.width), static_cast<double>(size.height)});
  }
  std::unique_ptr<Canvas> make(Size size) override { return std::make_unique<FlatCanvas>(size); }
  void fillRect(const Rect& rect, Rgb colour) override {
    const Rect r = clipped(rect);
    for (double y = r.y; y < r.y + r.h; ++y) {
      for (double x = r.x; x < r.x + r.w; ++x) pixel(x, y) = colour | kDrawn;
    }
  }
  void copy(Canvas& from, Vec at) override {
    auto& other = static_cast<FlatCanvas&>(from);
    const Rect r = clipped({at.x, at.y, 1.0 * other.size_.width, 1.0 * other.size_.height});
    for (double y = r.y; y < r.y + r.h; ++y) {
      for (double x = r.x; x < r.x + r.w; ++x) {
        if (const Rgb seen = other.pixel(x - at.x, y - at.y); (seen & kDrawn) != 0) pixel(x, y) = seen;
      }
    }
  }
  void clip(const Rect& rect) override { clips_.push_back(clipped(rect)); }
  void unclip() override { clips_.pop_back(); }

  Rgb& pixel(double x, double y) {
    return pixels_.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width) +
                      static_cast<std::size_t>(x));
  }
  Size size() const { return size_; }

 private:
  static constexpr Rgb kDrawn = 0x1000000;
  Rect clipped(const Rect& r) const {
    if (clips_.empty()) return r;
    const Rect& c = clips_.back();
    const double x = std::max(r.x, c.x);
    const double y = std::max(r.y, c.y);
    return {x, y, std::min(r.x + r.w, c.x + c.w) - x, std::min(r.y + r.h, c.y + c.h) - y};
  }

  Size size_;
  std::vector<Rgb> pixels_;
  std::vector<Rect> clips_;
};

/// The colours along a row or a column, and how many pixels each.
using Runs = std::vector<std::pair<Rgb, int>>;

Runs runsAlong(FlatCanvas& canvas, bool row, int at) {
  Runs runs;
  for (int i = 0; i < (row ? canvas.size().width : canvas.size().height); ++i) {
    const Rgb colour = row ? canvas.pixel(i, at) : canvas.pixel(at, i);
    if (runs.empty() || runs.back().first != colour) runs.emplace_back(colour, 0);
    ++runs.back().second;
  }
  return runs;
}

/// How the runs depart from those at 1, where a line is as thick as that; empty if they do not.
std::string departure(const Runs& plain, const Runs& scaled, int line) {
  int at = 0;
  for (std::size_t i = 0; i < std::max(plain.size(), scaled.size()); ++i) {
    const std::string place = " at pixel " + std::to_string(at);
    if (i >= plain.size() || i >= scaled.size() || plain[i].first != scaled[i].first)
      return "other colours" + place;
    if (plain[i].second == 1 && scaled[i].second != line)
      return "a line of " + std::to_string(scaled[i].second) + place;
    at += plain[i].second;
  }
  return "";
}

/// A row or a column of a screen shows at each scale what it shows at 1, in that order, and lines that are
/// alike: none is lost, doubled or opened to a slit, neither in a control nor between two.
void expectAlikeAtEveryScale(Form& form, const std::string& what) {
  const auto draw = [&](double scale) {
    auto canvas = std::make_unique<FlatCanvas>(deviceSize({792, 573}, scale));
    PictureCache pictures;
    Painter painter(*canvas, scale, pictures);
    form.paint(painter);
    return canvas;
  };
  const auto plain = draw(1);
  for (const double scale :
       {0.5, 0.63, 0.8, 0.9, 1.1, 1.25, 1.333, 1.5, 1.6, 1.885, 2.0, 2.25, 2.5, 2.667, 3.0}) {
    const auto scaled = draw(scale);
    const int line = std::max(1, static_cast<int>(std::lround(scale)));
    for (const bool row : {false, true}) {
      for (int at = 3; at < (row ? 573 : 792) - 3; at += 3) {
        const Runs wanted = runsAlong(*plain, row, at);
        // Where a row looks like those beside it, it does not lie along a line.
        const auto alike = [&](int beside) { return runsAlong(*plain, row, at + beside) == wanted; };
        if (!alike(-2) || !alike(-1) || !alike(1) || !alike(2)) continue;
        const int there = static_cast<int>(std::lround(at * scale)) + line / 2;
        const std::string found = departure(wanted, runsAlong(*scaled, row, there), line);
        EXPECT_EQ(found, "") << what << ' ' << form.inSight().name().text() << (row ? " row " : " column ")
                             << at << " at " << scale;
      }
    }
  }
}

TEST(Edges, AreTheSameAtEveryScale) {
  Session room;
  room.play({"start"});
  Form& form = room.driver.form();
  // No flags, whose parts are smaller than a pixel at a small scale, nor pictures of nothing but lines.
  const auto leftOut = [](const Control& control) {
    const std::string_view base = control.name().base;
    return dynamic_cast<const Image*>(&control) != nullptr || base == "PicRAM3" || base == "Picram";
  };
  for (Control* control : form.controls()) {
    if (leftOut(*control)) control->Visible = false;
    if (control->Picture.get() && &control->Picture.get().store() == &pictures::dominob)
      control->Picture = pictures::domin;
  }
  const auto expectAllAlike = [&](const char* what) {
    for (Control* screen : form.children()) screen->Visible = false;
    for (Control* screen : form.children()) {
      screen->Visible = true;
      expectAlikeAtEveryScale(form, what);
      screen->Visible = false;
    }
  };
  expectAllAlike("at rest");
  for (Control* control : form.controls()) {
    if (dynamic_cast<Button*>(control) != nullptr) control->Enabled = !control->Enabled;
    // Of the lit rows there is never more than one.
    if (!leftOut(*control) && control->name().base != "segn") control->Visible = true;
  }
  expectAllAlike("with all in sight");
}

}  // namespace
}  // namespace tombolario
