#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <span>
#include <string>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "pictures/outline.hpp"
#include "pieces/mahjongg_set.hpp"
#include "pieces/slots.hpp"

namespace tombolario::pictures {

namespace {

using std::numbers::pi;

constexpr Size kSize{32, 20};
constexpr Rect kAll{0, 0, kSize.width, kSize.height};
constexpr Vec kMiddle{16, 10};

constexpr Rgb kDarkRed = 0x900000;
constexpr Rgb kOrange = 0xFF8000;
constexpr Rgb kMagenta = 0xFF00FF;

using Design = void (*)(Painter&);

/// What the edge leaves of it.
constexpr Rect kInside = kAll.inset(1);

void disc(Painter& painter, double radius, Rgb colour) {
  painter.fillPolygon(circle(kMiddle, radius), colour);
}

/// So far from the middle of the tile in that direction, in radians clockwise from the right.
Vec around(double angle, double reach) {
  return {kMiddle.x + reach * std::cos(angle), kMiddle.y + reach * std::sin(angle)};
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

/// As many of them each way as divide the inside evenly.
template <Rgb kFirst, Rgb kSecond, int kColumns, int kRows>
void checks(Painter& painter) {
  constexpr double kWide = kInside.w / kColumns;
  constexpr double kHigh = kInside.h / kRows;
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kColumns; ++column) {
      painter.fillRect({kInside.x + column * kWide, kInside.y + row * kHigh, kWide, kHigh},
                       (row + column) % 2 == 0 ? kFirst : kSecond);
    }
  }
}

/// A field in a white margin.
void margin(Painter& painter, Rgb field) {
  painter.fillRect(kAll, kWhite);
  painter.fillRect(kAll.inset(3), field);
}

template <char kDigit, Rgb kField>
void numeral(Painter& painter) {
  margin(painter, kField);
  painter.text(kAll, std::string(1, kDigit), lettering(10), kWhite, Align::Centre);
}

template <Rgb kField, Rgb kFigure, int kHeight = kSize.height>
void lozenge(Painter& painter) {
  constexpr double kHalf = kHeight / 2.0;
  painter.fillRect({0, 0, kSize.width, kHeight}, kField);
  painter.fillPolygon(std::array<Vec, 4>{Vec{16, 3}, Vec{29, kHalf}, Vec{16, kHeight - 3}, Vec{3, kHalf}},
                      kFigure);
}

template <Rgb... kColours>
void verticals(Painter& painter) {
  constexpr double kWide = kInside.w / sizeof...(kColours);
  double x = kInside.x;
  for (const Rgb colour : {kColours...}) {
    painter.fillRect({x, kInside.y, kWide, kInside.h}, colour);
    x += kWide;
  }
}

template <Rgb... kColours>
void bands(Painter& painter) {
  constexpr double kHigh = kInside.h / sizeof...(kColours);
  double y = kInside.y;
  for (const Rgb colour : {kColours...}) {
    painter.fillRect({kInside.x, y, kInside.w, kHigh}, colour);
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
  painter.fillRect({13, 3, 6, 14}, kWhite);
  painter.fillRect({3, 7, 26, 6}, kWhite);
}

void medallion(Painter& painter, Rgb field, Rgb ground) {
  margin(painter, field);
  painter.fillPolygon(ellipse(kMiddle, {11, 6}), ground);
}

void starOnGreen(Painter& painter) {
  medallion(painter, kGreen, kDarkRed);
  painter.fillPolygon(star({kMiddle.x, kMiddle.y + 0.5}, 5, 2.2, 5.5), kYellow);
}

/// Two petals behind a third, on a stem between two leaves.
void tulipOnBlue(Painter& painter) {
  medallion(painter, kBlue, kWhite);
  constexpr Rgb kLeaf = 0x008030;
  const Vec foot{16, 15.6};
  painter.fillPolygon(Outline({15.5, 9}).lineTo({15.5, foot.y}).mirrored(16), kLeaf);
  for (const double side : {-1.0, 1.0}) {
    const auto at = [&](double x, double y) { return Vec{foot.x + side * x, y}; };
    painter.fillPolygon(Outline(foot)
                            .curveTo(at(3.5, 15.2), at(5.4, 13), at(5.8, 10))
                            .curveTo(at(3, 10.6), at(0.6, 12.5), foot),
                        kLeaf);
  }
  painter.fillPolygon(Outline({16, 10.8})
                          .curveTo({13, 10.8}, {11.8, 8.2}, {12.6, 4.6})
                          .curveTo({14, 5.2}, {15.2, 6.2}, {16, 7.4})
                          .mirrored(16),
                      0xC00020);
  painter.fillPolygon(Outline({16, 10.8}).curveTo({13.6, 9.8}, {13.6, 6.4}, {16, 4.4}).mirrored(16),
                      0xFF3040);
}

/// A round thing in a light from the upper left.
template <std::size_t kShades>
void ball(Painter& painter, double radius, const std::array<Rgb, kShades>& shades) {
  constexpr double kLight = 1.25 * pi;
  painter.fillPolygon(circle(kMiddle, radius), {Gradient::Shape::Radial, around(kLight, 0.45 * radius),
                                                around(kLight, -radius), shades});
}

/// A sun with its rays.
void sun(Painter& painter) {
  painter.fillRect(kAll, kCyan);
  painter.fillPolygon(star(kMiddle, 8, 4.6, 7), 0xFF6000);
  ball(painter, 4.3, std::array<Rgb, 3>{0xFFFFC0, kYellow, 0xFF6000});
}

void globe(Painter& painter) {
  painter.fillRect(kAll, 0x004020);
  ball(painter, 7, std::array<Rgb, 4>{kWhite, 0x90B0F0, 0x3058C0, 0x182860});
}

/// Four petals over the gaps between four darker ones.
void rose(Painter& painter) {
  painter.fillRect(kAll, kYellow);
  const auto petals = [&](double first, double reach, const std::array<Rgb, 3>& shades) {
    for (int petal = 0; petal < 4; ++petal) {
      painter.fillPolygon(
          ellipse({kMiddle.x + reach - 2.8, kMiddle.y}, {2.8, 2.4}).turned(kMiddle, first + petal * pi / 2),
          {Gradient::Shape::Radial, kMiddle, around(0, reach), shades});
    }
  };
  petals(pi / 4, 6.4, {0x400030, 0x800068, 0xA83090});
  petals(0, 7, {0x600050, 0xD030B0, 0xFF98E0});
  ball(painter, 2.5, std::array<Rgb, 3>{0xFFE060, kOrange, kDarkRed});
}

/// A spade in a ring of blue and red.
void ring(Painter& painter) {
  painter.fillRect(kAll, kWhite);
  disc(painter, 8, kBlue);
  disc(painter, 6.7, kRed);
  disc(painter, 5.4, kWhite);
  painter.fillPolygon(Outline({16, 6})
                          .curveTo({15.4, 7.8}, {12.4, 8.8}, {12.4, 10.9})
                          .curveTo({12.4, 12.8}, {14.8, 13}, {15.6, 11.6})
                          .curveTo({15.5, 12.8}, {15, 13.4}, {14, 13.9})
                          .mirrored(16),
                      kBlack);
}

/// What a kind is called, and its drawing at the size of the bench.
struct Kind {
  const char* name;
  Design design;
};
constexpr Slots<Kind, 0, kKinds - 1> kKindsOfTile = slots<0, Kind>({
    {"anello con una picca", ring},
    {"sole", sun},
    {"strisce oblique gialle e nere", diagonals<kYellow, kBlack>},
    {"scacchi crema e rossi", checks<0xFFF0C8, kDarkRed, 5, 3>},
    {"scacchi fitti blu e azzurri", checks<kBlue, kCyan, 10, 6>},
    {"uno", numeral<'1', kDarkRed>},
    {"due", numeral<'2', kRed>},
    {"tre", numeral<'3', 0xB09000>},
    {"croce bianca", cross},
    {"quattro", numeral<'4', kBlue>},
    {"rombo rosso", lozenge<kWhite, kRed>},
    {"strisce verticali rosse e gialle", verticals<kRed, kYellow, kRed, kYellow, kRed>},
    {"cinque", numeral<'5', kMagenta>},
    {"rombo giallo", lozenge<kBlue, kYellow>},
    {"sei", numeral<'6', 0x009000>},
    {"bande verde, bianca e rossa", bands<kGreen, kWhite, kRed>},
    {"riquadri arancioni e gialli", checks<kOrange, kYellow, 3, 2>},
    {"bande verticali blu, bianca e rossa", verticals<kBlue, kWhite, kRed>},
    {"rombo bianco", lozenge<kOrange, kWhite>},
    {"quarti di quattro colori", quarters<kRed, kYellow, kBlue, kGreen>},
    {"stella", starOnGreen},
    {"tulipano", tulipOnBlue},
    {"sette", numeral<'7', kOrange>},
    {"bande nera, rossa e gialla", bands<kBlack, kRed, kYellow>},
    {"strisce oblique rosse e nere", diagonals<kRed, kBlack>},
    {"globo", globe},
    {"bande azzurra e nera", bands<kCyan, kBlack>},
    {"rosa", rose},
    {"quarti neri e bianchi", quarters<kBlack, kWhite, kWhite, kBlack>},
    {"bande arancione, blu e arancione", bands<kOrange, kBlue, kOrange>},
});

/// The rows 5 to 28 of the bench show the pictures of its store from the last to the sixth.
constexpr int kindOfBench(int index) { return index < 5 ? index : 33 - index; }

/// A thin edge holds a design together on a ground of its own colour.
void drawDesign(Painter& painter, Design design, Size size) {
  design(painter);
  painter.outlineRect({0, 0, static_cast<double>(size.width), static_cast<double>(size.height)}, 0x404040, 1);
}

void drawBench(Painter& painter, int kind) { drawDesign(painter, kKindsOfTile[kind].design, kSize); }

/// One kind is a pixel higher on the board than on the bench.
constexpr int kHighKind = 10;
constexpr Size kHighSize{kSize.width, kSize.height + 1};

constexpr Size sizeOfPiece(int piece) { return kindOfPiece(piece) == kHighKind ? kHighSize : kSize; }

void drawPiece(Painter& painter, int piece) {
  const int kind = kindOfPiece(piece);
  if (kind != kHighKind) return drawBench(painter, kind);
  drawDesign(painter, lozenge<kWhite, kRed, kHighSize.height>, kHighSize);
}

std::string pieceWords(int piece) { return kKindsOfTile[kindOfPiece(piece)].name; }

}  // namespace

constinit const PictureStore PICMAH{"PICMAH", 0, kPieces, true, pieceWords, sizeOfPiece, drawPiece};
constinit const PictureStore IImAH = pictureRow<kSize>(
    "IImAH", 0, kKinds - 1, [](int index) { return std::string(kKindsOfTile[kindOfBench(index)].name); },
    [](Painter& painter, int index) { drawBench(painter, kindOfBench(index)); });
constinit const PictureStore ImAH = singlePicture<kSize>(
    "ImAH", [](int) { return std::string(kKindsOfTile[kKinds - 1].name); },
    [](Painter& painter, int) { drawBench(painter, kKinds - 1); });
constinit const PictureStore ELPEDMAH = plateStore<"ELIMINA PEDINE", Size{117, 13}, kWhite, kRed>("ELPEDMAH");
constinit const PictureStore CERPEDMAH =
    plateStore<"CERCA PEDINE", Size{108, 13}, kWhite, kBlue>("CERPEDMAH");

}  // namespace tombolario::pictures
