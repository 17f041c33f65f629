#include <array>
#include <cmath>
#include <numbers>
#include <string>
#include <string_view>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "pictures/outline.hpp"
#include "toolkit/painter.hpp"

namespace tombolario::pictures {

namespace {

using std::numbers::pi;

constexpr Size kFlagSize{32, 20};
constexpr Rect kFlag{0, 0, kFlagSize.width, kFlagSize.height};

/// A shield of those half widths and heights, round below.
Outline shield(Vec middle, double half, double high) {
  return Outline({middle.x - half, middle.y - high})
      .lineTo({middle.x + half, middle.y - high})
      .arc({middle.x, middle.y + high - half}, {half, half}, 0, pi);
}

/// The arms: a crown over a quartered shield, between the two pillars.
void drawSpain(Painter& painter) {
  constexpr Rgb kGules = 0xC60B1E;
  constexpr Rgb kGold = 0xFFC400;
  painter.fillRect(kFlag, kGules);
  painter.fillRect({0, 5, 32, 10}, kGold);
  for (const double x : {6.5, 13.5}) {
    const auto block = [&](double half, double top, double bottom, Rgb colour) {
      painter.fillPolygon(Outline({x - half, top}).lineTo({x - half, bottom}).mirrored(x), colour);
    };
    block(0.5, 8, 13, kWhite);
    block(0.8, 7, 8, kGules);
    block(0.8, 13, 14, 0x005BAC);
  }
  constexpr Vec kMiddle{10, 11};
  painter.fillPolygon(Outline({8, 8}).lineTo({7.4, 6}).lineTo({9, 6.8}).lineTo({10, 5.5}).mirrored(10),
                      kGules);
  painter.fillPolygon(shield(kMiddle, 2.7, 3), kGules);
  painter.fillPolygon(Outline({10, 8.6}).lineTo({12.1, 8.6}).lineTo({12.1, 11}).lineTo(kMiddle), kWhite);
  painter.fillPolygon(
      Outline({10, 13.5}).arc({10, 11.4}, {2.1, 2.1}, pi / 2, pi).lineTo({7.9, 11}).lineTo(kMiddle), kGold);
}

/// The band lies in the disc, between two circles about a place below.
void drawBrazil(Painter& painter) {
  constexpr Vec kMiddle{16, 10};
  constexpr double kRadius = 5;
  constexpr Vec kBelow{13, 20};
  painter.fillRect(kFlag, 0x009C3B);
  painter.fillPolygon(std::array<Vec, 4>{Vec{16, 2.4}, Vec{29.6, 10}, Vec{16, 17.6}, Vec{2.4, 10}}, 0xFFDF00);
  painter.fillPolygon(circle(kMiddle, kRadius), 0x002776);

  const Vec up{kMiddle.x - kBelow.x, kMiddle.y - kBelow.y};
  const double far = std::hypot(up.x, up.y);
  const double turn = std::atan2(up.y, up.x);
  // From the middle of the band to where a circle leaves the disc.
  const auto half = [&](double radius) {
    return std::acos((radius * radius + far * far - kRadius * kRadius) / (2 * radius * far));
  };
  constexpr double kInner = 11.1;
  constexpr double kOuter = 12.4;
  painter.fillPolygon(Outline()
                          .arc(kBelow, {kInner, kInner}, turn - half(kInner), turn + half(kInner))
                          .arc(kBelow, {kOuter, kOuter}, turn + half(kOuter), turn - half(kOuter)),
                      kWhite);
  for (const Vec& at : {Vec{12.9, 11}, Vec{14.8, 12.6}, Vec{16, 11}, Vec{17.5, 13}, Vec{18.9, 11.9}}) {
    painter.fillPolygon(circle(at, 0.4), kWhite);
  }
}

void drawJapan(Painter& painter) {
  painter.fillRect(kFlag, kWhite);
  painter.fillEllipse({10, 4, 12, 12}, 0xD80030);
}

void drawUnitedStates(Painter& painter) {
  constexpr int kStripes = 13;
  // The edge covers only a part of the outer stripes, and steps of this size round evenly at scale 1.
  constexpr double kTop = 0.5;
  constexpr double kStripe = (kFlag.h - 2 * kTop) / kStripes;
  painter.fillRect(kFlag, kWhite);
  for (int stripe = 0; stripe < kStripes; stripe += 2) {
    painter.fillRect({0, kTop + stripe * kStripe, kFlag.w, kStripe}, 0xB31942);
  }
  painter.fillRect({0, 0, 14, kTop + 7 * kStripe}, 0x0A3161);
  for (int row = 0; row < 5; ++row) {
    for (int column = row % 2; column < 5; column += 2) {
      painter.fillPolygon(star({3.5 + 2 * column, 2.7 + 1.6 * row}, 5, 0.5, 1.2), kWhite);
    }
  }
}

/// A cross that stands nearer to the staff.
void cross(Painter& painter, Rgb ground, Rgb ink) {
  painter.fillRect(kFlag, ground);
  painter.fillRect({10, 0, 4, 20}, ink);
  painter.fillRect({0, 8, 32, 4}, ink);
}

void drawSweden(Painter& painter) { cross(painter, 0x005BAC, 0xFECC02); }

/// The arms: a shield of shields on a sphere of bands.
void drawPortugal(Painter& painter) {
  constexpr Rgb kGules = 0xDA291C;
  constexpr Vec kMiddle{12.5, 10};
  painter.fillRect(kFlag, kGules);
  painter.fillRect({0, 0, kMiddle.x, 20}, 0x046A38);
  painter.fillPolygon(circle(kMiddle, 5.3), 0xFFE900);
  painter.outlinePolygon(circle(kMiddle, 4.5), 0xB08800, 0.35);
  painter.outlinePolygon(ellipse(kMiddle, {4.5, 1.5}), 0xB08800, 0.35);
  painter.fillPolygon(shield(kMiddle, 3.5, 4), kGules);
  painter.fillPolygon(shield({12.5, 9.75}, 2.4, 2.75), kWhite);
  for (const Vec& at : {Vec{12.5, 8.1}, Vec{11, 9.5}, Vec{12.5, 9.5}, Vec{14, 9.5}, Vec{12.5, 10.9}}) {
    painter.fillPolygon(shield(at, 0.5, 0.6), 0x003399);
  }
}

void drawDenmark(Painter& painter) { cross(painter, 0xC8102E, kWhite); }

/// A flag in a thin edge, so that it stands out on a tile of its own ground.
template <void (*kDraw)(Painter&), FixedText kOfCountry>
constexpr PictureStore flagStore(std::string_view name) {
  return singlePicture<kFlagSize>(
      name, [](int) { return std::string(kFlagOf) + kOfCountry.text; },
      [](Painter& painter, int) {
        kDraw(painter);
        painter.outlineRect(kFlag, 0x404040, 1);
      });
}

}  // namespace

constinit const PictureStore spagnadom = flagStore<drawSpain, "della Spagna">("spagnadom");
constinit const PictureStore brasiledom = flagStore<drawBrazil, "del Brasile">("brasiledom");
constinit const PictureStore giapponedom = flagStore<drawJapan, "del Giappone">("giapponedom");
constinit const PictureStore usadom = flagStore<drawUnitedStates, "degli Stati Uniti">("usadom");
constinit const PictureStore sveziadom = flagStore<drawSweden, "della Svezia">("sveziadom");
constinit const PictureStore portogallodom = flagStore<drawPortugal, "del Portogallo">("portogallodom");
constinit const PictureStore danimarcadom = flagStore<drawDenmark, "della Danimarca">("danimarcadom");

}  // namespace tombolario::pictures
