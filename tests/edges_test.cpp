#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "pictures/catalogue.hpp"
#include "session.hpp"
#include "sheet.hpp"
#include "toolkit/controls.hpp"

namespace tombolario {
namespace {

/// Shows the rectangles and the copies that are drawn on it, and nothing else.
class FlatCanvas : public CairoCanvas {
 public:
  FlatCanvas(Size size, CairoFonts& fonts) : CairoCanvas(size, fonts), fonts_(fonts) {}
  std::unique_ptr<Canvas> make(Size size) override { return std::make_unique<FlatCanvas>(size, fonts_); }
  void fillPolygon(std::span<const Vec>, Rgb) override {}
  void fillPolygon(std::span<const Vec>, const Gradient&) override {}
  void strokePolygon(std::span<const Vec>, Rgb, double) override {}
  void fillEllipse(Vec, Vec, Rgb) override {}
  void line(Vec, Vec, Rgb, double) override {}
  void text(std::string_view, const Typeface&, Vec, Rgb) override {}

 private:
  CairoFonts& fonts_;
};

/// The colours along a row or a column, and how many pixels each.
using Runs = std::vector<std::pair<Rgb, int>>;

Runs runsAlong(const Sheet<FlatCanvas>& sheet, bool row, int at) {
  Runs runs;
  for (int i = 0; i < (row ? sheet.width() : sheet.height()); ++i) {
    const Rgb colour = row ? sheet.pixel(i, at) : sheet.pixel(at, i);
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
void expectAlikeAtEveryScale(const Form& form, const std::string& what) {
  constexpr Size kWindow{792, 573};
  Sheet<FlatCanvas> plain(kWindow, 1);
  form.paint(plain.painter);
  struct Place {
    bool row;
    int at;
    Runs runs;
  };
  std::vector<Place> places;
  for (const bool row : {false, true}) {
    Runs before;
    for (int at = 3; at < (row ? kWindow.height : kWindow.width) - 3; at += 3) {
      const Runs runs = runsAlong(plain, row, at);
      // Where a row looks like those beside it, it does not lie along a line.
      const auto alike = [&](int beside) { return runsAlong(plain, row, at + beside) == runs; };
      if (runs == before || !alike(-2) || !alike(-1) || !alike(1) || !alike(2)) continue;
      places.push_back({row, at, before = runs});
    }
  }
  for (const double scale :
       {0.5, 0.63, 0.8, 0.9, 1.1, 1.25, 1.333, 1.5, 1.6, 1.885, 2.0, 2.25, 2.5, 2.667, 3.0}) {
    Sheet<FlatCanvas> scaled(kWindow, scale);
    form.paint(scaled.painter);
    const int line = std::max(1, static_cast<int>(std::lround(scale)));
    for (const auto& [row, at, runs] : places) {
      const int there = static_cast<int>(std::lround(at * scale)) + line / 2;
      EXPECT_EQ(departure(runs, runsAlong(scaled, row, there), line), "")
          << what << ' ' << form.inSight().name().text() << (row ? " row " : " column ") << at << " at "
          << scale;
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
