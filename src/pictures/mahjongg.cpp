#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <span>
#include <string>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "pieces/mahjongg_set.hpp"
#include "pieces/slots.hpp"

namespace tombolario::pictures {

namespace {

constexpr Size kSize{32, 20};
constexpr Rect kAll{0, 0, kSize.width, kSize.height};
constexpr Vec kMiddle{16, 10};

constexpr Rgb kDarkRed = 0x900000;
constexpr Rgb kOrange = 0xFF8000;
constexpr Rgb kMagenta = 0xFF00FF;

using Design = void (*)(Painter&);

void disc(Painter& painter, Vec centre, double radius, Rgb colour) {
  painter.fillEllipse({centre.x - radius, centre.y - radius, 2 * radius, 2 * radius}, colour);
}

/// Stripes that lean to the right, from edge to edge.
template <Rgb kFirst, Rgb kSecond>
void diagonals(Painter& painter) {
  painter.fillRect(kAll, kFirst);
  painter.enter(kAll);
  for (int stripe = 0; stripe < 4; ++stripe) {
    const double x = -20 + 16 * stripe;
    painter.fillPolygon(std::array<Vec, 4>{Vec{x, 20}, Vec{x + 8, 20}, Vec{x + 28, 0}, Vec{x + 20, 0}},
                        kSecond);
  }
  painter.leave();
}

template <Rgb kFirst, Rgb kSecond, int kColumns, int kRows>
void checks(Painter& painter) {
  constexpr double kWide = 1.0 * kSize.width / kColumns;
  constexpr double kHigh = 1.0 * kSize.height / kRows;
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kColumns; ++column) {
      painter.fillRect({column * kWide, row * kHigh, kWide, kHigh},
                       (row + column) % 2 == 0 ? kFirst : kSecond);
    }
  }
}

/// A field in a white margin.
void margin(Painter& painter, Rgb field) {
  painter.fillRect(kAll, kWhite);
  painter.fillRect(kAll.inset(3), field);
}

/// A white figure with a shade, which holds it on a bright field.
template <char kDigit, Rgb kField>
void numeral(Painter& painter) {
  margin(painter, kField);
  const std::string digit(1, kDigit);
  painter.text(kAll.movedBy(1, 0.7), digit, lettering(11), kBlack, Align::Centre);
  painter.text(kAll, digit, lettering(11), kWhite, Align::Centre);
}

template <Rgb kField, Rgb kFigure, int kHeight = kSize.height>
void lozenge(Painter& painter) {
  constexpr double kHalf = kHeight / 2.0;
  painter.fillRect({0, 0, kSize.width, kHeight}, kField);
  painter.fillPolygon(std::array<Vec, 4>{Vec{16, 1}, Vec{30, kHalf}, Vec{16, kHeight - 1}, Vec{2, kHalf}},
                      kFigure);
}

template <Rgb... kColours>
void verticals(Painter& painter) {
  constexpr std::array kRow{kColours...};
  constexpr double kWide = 1.0 * kSize.width / kRow.size();
  double x = 0;
  for (const Rgb colour : kRow) {
    painter.fillRect({x, 0, kWide, kAll.h}, colour);
    x += kWide;
  }
}

template <Rgb... kColours>
void bands(Painter& painter) {
  constexpr std::array kColumn{kColours...};
  constexpr double kHigh = 1.0 * kSize.height / kColumn.size();
  double y = 0;
  for (const Rgb colour : kColumn) {
    painter.fillRect({0, y, kAll.w, kHigh}, colour);
    y += kHigh;
  }
}

template <Rgb kFirst, Rgb kSecond, Rgb kThird, Rgb kFourth>
void quarters(Painter& painter) {
  painter.fillRect({0, 0, 16, 10}, kFirst);
  painter.fillRect({16, 0, 16, 10}, kSecond);
  painter.fillRect({0, 10, 16, 10}, kThird);
  painter.fillRect({16, 10, 16, 10}, kFourth);
}

void cross(Painter& painter) {
  painter.fillRect(kAll, kBlue);
  painter.fillRect({13, 2, 6, 16}, kWhite);
  painter.fillRect({4, 7, 24, 6}, kWhite);
}

/// A star of five points.
void star(Painter& painter, Vec centre, double radius, Rgb colour) {
  std::array<Vec, 10> points{};
  for (std::size_t i = 0; i < points.size(); ++i) {
    const double angle = std::numbers::pi * (static_cast<double>(i) / 5 - 0.5);
    const double reach = i % 2 == 0 ? radius : radius * 0.42;
    points.at(i) = {centre.x + reach * std::cos(angle), centre.y + reach * std::sin(angle)};
  }
  painter.fillPolygon(points, colour);
}

void starOnGreen(Painter& painter) {
  margin(painter, kGreen);
  painter.fillEllipse({5.5, 3.4, 21, 13.2}, kDarkRed);
  star(painter, {16, 10.3}, 6.2, kYellow);
}

void tulipOnBlue(Painter& painter) {
  margin(painter, kBlue);
  painter.fillEllipse({5.5, 3.4, 21, 13.2}, kWhite);
  painter.fillRect({15.2, 10, 1.6, 6}, 0x008030);
  painter.fillPolygon(std::array<Vec, 7>{Vec{12.5, 5.2}, Vec{14.2, 7.4}, Vec{16, 4.6}, Vec{17.8, 7.4},
                                         Vec{19.5, 5.2}, Vec{18.8, 11}, Vec{13.2, 11}},
                      kRed);
}

/// Between two colours, each channel by itself.
Rgb between(Rgb from, Rgb to, double share) {
  Rgb mixed = 0;
  for (const unsigned shift : {16U, 8U, 0U}) {
    const double a = from >> shift & 0xFF;
    const double b = to >> shift & 0xFF;
    mixed |= static_cast<Rgb>(std::lround(a + (b - a) * share)) << shift;
  }
  return mixed;
}

/// A ball: from its rim to a light, one shade inside the other.
void ball(Painter& painter, Vec centre, double radius, Rgb rim, Rgb light) {
  constexpr int kShades = 9;
  for (int shade = 0; shade < kShades; ++shade) {
    const double share = 1.0 * shade / (kShades - 1);
    const double offset = radius * 0.35 * share;
    disc(painter, {centre.x - offset, centre.y - offset}, radius * (1 - 0.85 * share),
         between(rim, light, share));
  }
}

/// A sun with its rays.
void sun(Painter& painter) {
  painter.fillRect(kAll, kCyan);
  for (int ray = 0; ray < 12; ++ray) {
    const double angle = std::numbers::pi * ray / 6;
    const auto at = [&](double turn, double reach) {
      return Vec{kMiddle.x + reach * std::cos(angle + turn), kMiddle.y + reach * std::sin(angle + turn)};
    };
    painter.fillPolygon(std::array<Vec, 3>{at(-0.2, 5), at(0, 9.5), at(0.2, 5)}, kOrange);
  }
  ball(painter, kMiddle, 6.5, kRed, kYellow);
}

void globe(Painter& painter) {
  painter.fillRect(kAll, 0x004020);
  ball(painter, kMiddle, 9, 0x2040A0, kWhite);
}

void rose(Painter& painter) {
  painter.fillRect(kAll, kYellow);
  for (int petal = 0; petal < 8; ++petal) {
    const double angle = std::numbers::pi * petal / 4;
    ball(painter, {kMiddle.x + 5.5 * std::cos(angle), kMiddle.y + 5.5 * std::sin(angle)}, 3.6, 0x700060,
         0xFFB0F0);
  }
  ball(painter, kMiddle, 3.5, kDarkRed, kOrange);
}

/// A house in a ring of blue and red.
void ring(Painter& painter) {
  painter.fillRect(kAll, kWhite);
  disc(painter, kMiddle, 9.5, kBlue);
  disc(painter, kMiddle, 7.8, kRed);
  disc(painter, kMiddle, 6.2, kWhite);
  painter.fillPolygon(std::array<Vec, 3>{Vec{16, 5}, Vec{20.5, 9.5}, Vec{11.5, 9.5}}, kBlack);
  painter.fillRect({13, 9.5, 6, 4.5}, kBlack);
}

/// By kind, at the size of the bench.
constexpr Slots<Design, 0, kKinds - 1> kDesigns = slots<0, Design>({
    ring,
    sun,
    diagonals<kYellow, kBlack>,
    checks<0xFFF0C8, kDarkRed, 4, 4>,
    checks<kBlue, kCyan, 8, 4>,
    numeral<'1', kDarkRed>,
    numeral<'2', kRed>,
    numeral<'3', 0xB09000>,
    cross,
    numeral<'4', kBlue>,
    lozenge<kWhite, kRed>,
    verticals<kRed, kYellow, kRed, kYellow>,
    numeral<'5', kMagenta>,
    lozenge<kBlue, kYellow>,
    numeral<'6', kGreen>,
    bands<kGreen, kWhite, kRed>,
    checks<kOrange, kYellow, 4, 2>,
    verticals<kBlue, kWhite, kRed>,
    lozenge<kOrange, kWhite>,
    quarters<kRed, kYellow, kBlue, kGreen>,
    starOnGreen,
    tulipOnBlue,
    numeral<'7', kOrange>,
    bands<kBlack, kRed, kYellow>,
    diagonals<kRed, kBlack>,
    globe,
    bands<kCyan, kBlack>,
    rose,
    quarters<kBlack, kWhite, kWhite, kBlack>,
    bands<kOrange, kBlue, kOrange, kBlue>,
});

/// The rows 5 to 28 of the bench show the pictures of its store from the last to the sixth.
constexpr int kindOfBench(int index) { return index < 5 ? index : 33 - index; }

/// A thin edge holds a design together on a ground of its own colour.
void drawDesign(Painter& painter, Design design, Size size) {
  design(painter);
  painter.outlineRect({0, 0, static_cast<double>(size.width), static_cast<double>(size.height)}, 0x404040, 1);
}

void drawBench(Painter& painter, int kind) { drawDesign(painter, kDesigns[kind], kSize); }

/// One kind is a pixel higher on the board than on the bench.
constexpr int kHighKind = 10;
constexpr Size kHighSize{kSize.width, kSize.height + 1};

constexpr Size sizeOfPiece(int piece) { return kindOfPiece(piece) == kHighKind ? kHighSize : kSize; }

void drawPiece(Painter& painter, int piece) {
  const int kind = kindOfPiece(piece);
  if (kind != kHighKind) return drawBench(painter, kind);
  drawDesign(painter, lozenge<kWhite, kRed, kHighSize.height>, kHighSize);
}

}  // namespace

constinit const PictureStore PICMAH{"PICMAH", 0, kPieces, true, sizeOfPiece, drawPiece};
constinit const PictureStore IImAH = pictureRow<kSize>(
    "IImAH", 0, kKinds - 1, [](Painter& painter, int index) { drawBench(painter, kindOfBench(index)); });
constinit const PictureStore ImAH =
    singlePicture<kSize>("ImAH", [](Painter& painter, int) { drawBench(painter, kKinds - 1); });
constinit const PictureStore ELPEDMAH = plateStore<"ELIMINA PEDINE", Size{117, 13}, kWhite, kRed>("ELPEDMAH");
constinit const PictureStore CERPEDMAH =
    plateStore<"CERCA PEDINE", Size{108, 13}, kWhite, kBlue>("CERPEDMAH");

}  // namespace tombolario::pictures
