#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "toolkit/painter.hpp"

namespace tombolario::pictures {

namespace {

constexpr Size kSize{468, 142};
constexpr Rgb kGround = 0xC0C0C0;
constexpr Font kFont{.points = 9.25};
constexpr double kMargin = 7;
constexpr double kGap = 4;
constexpr double kLineHeight = 15.25;
constexpr double kTagMargin = 3;

/// A part of a line: plain text, a word on a plate as the small buttons have, or a small picture.
struct Run {
  constexpr Run(const char* plain) : text(plain) {}
  constexpr Run(const char* word, Rgb ownInk, Rgb ownGround) : text(word), ink(ownInk), ground(ownGround) {}
  constexpr Run(const PictureStore& shown) : picture(&shown) {}

  const char* text = "";
  Rgb ink = kBlack;
  Rgb ground = kGround;
  const PictureStore* picture = nullptr;

  Size size() const { return picture->size(0); }
  bool tagged() const { return ground != kGround; }
};

constexpr std::array kFirst{Run("I pulsanti"), Run(rampul1),
                            Run("servono per marcare le carte. Se vengono marcate 3 carte, e")};
constexpr std::array kSecond{
    Run("queste costituiscono un tris, vengono marcate automaticamente in giallo. Se")};
constexpr std::array kThird{
    Run("invece ne vengono marcate 2, si ha la possibilita di scambiarle con il tasto")};
constexpr std::array kFourth{Run(scambiaram), Run(".")};
constexpr std::array kFifth{Run("Dopo", kRed, kGround),
                            Run("aver selezionato la carta da prendere ("),
                            Run("MAZZO", kWhite, kRed),
                            Run("o"),
                            Run("tavolo", kWhite, kBlue),
                            Run("), il tasto"),
                            Run(rampul1),
                            Run("si")};
constexpr std::array kSixth{Run("trasforma in"), Run(rampul2),
                            Run("con la possibilità di scambiarla con la carta posseduta")};
constexpr std::array kSeventh{Run("selezionata (in alternativa si può non scambiarla premendo il tasto"),
                              Run(ramlas), Run(".")};
constexpr std::array kLast{Run("Per vincere bisogna fare 3 tris.")};

constexpr auto kLines =
    std::to_array<std::span<const Run>>({kFirst, kSecond, kThird, kFourth, kFifth, kSixth, kSeventh, kLast});

double widthOf(Painter& painter, const Run& run) {
  if (run.picture != nullptr) return run.size().width;
  if (!run.tagged()) return painter.textWidth(run.text, kFont);
  return std::ceil(painter.textWidth(run.text, lettering(kSmallCapHeight))) + 2 * kTagMargin;
}

/// Stops and brackets stand close to what they follow or enclose.
double gapBetween(const Run& left, const Run& right) {
  const std::string_view before = left.text;
  const std::string_view after = right.text;
  const bool close = before.ends_with('(') || after.starts_with(')') || after.starts_with('.');
  return close ? 1 : kGap;
}

void drawRun(Painter& painter, const Run& run, const Rect& place) {
  // A small plate hangs a pixel lower than the middle of its line: its word stands on the line.
  const auto top = [&](double height) { return std::round(place.y + (place.h - height) / 2 + 1); };
  const double x = std::round(place.x);
  if (run.picture != nullptr) {
    painter.picture(*run.picture, Vec{x, top(run.size().height)});
    return;
  }
  if (!run.tagged()) return painter.text(place, run.text, kFont, run.ink, Align::Centre);
  const Size size{static_cast<int>(place.w), rampul1.size(0).height};
  painter.enter({x, top(size.height), place.w, static_cast<double>(size.height)});
  plate(painter, size, place.w, kSmallCapHeight, run.text, run.ink, run.ground);
  painter.leave();
}

double drawLine(Painter& painter, std::span<const Run> line, double top) {
  double height = kLineHeight;
  for (const Run& run : line) {
    if (run.picture != nullptr) height = std::max(height, run.size().height + 1.0);
  }
  double x = kMargin;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (i > 0) x += gapBetween(line[i - 1], line[i]);
    const double width = widthOf(painter, line[i]);
    drawRun(painter, line[i], {x, top, width, height});
    x += width;
  }
  return top + height;
}

std::string helpWords(int) {
  std::string words;
  for (const auto& line : kLines) {
    for (std::size_t i = 0; i < line.size(); ++i) {
      const Run& run = line[i];
      const bool close = i > 0 && gapBetween(line[i - 1], run) < kGap;
      if (!words.empty() && !close) words += ' ';
      words += run.picture != nullptr ? PictureId(*run.picture).words() : run.text;
    }
  }
  return words;
}

/// How ramino is played, with the buttons that the text speaks of.
void drawHelp(Painter& painter, int) {
  painter.fillRect({0, 0, kSize.width, kSize.height}, kGround);
  double top = 2;
  for (const auto& line : kLines) top = drawLine(painter, line, top);
}

}  // namespace

constinit const PictureStore Picram = singlePicture<kSize>("Picram", helpWords, drawHelp);

}  // namespace tombolario::pictures
