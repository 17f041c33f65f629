#include <numbers>

#include "pictures/catalogue.hpp"
#include "pictures/outline.hpp"
#include "toolkit/painter.hpp"

namespace tombolario::pictures {

namespace {

using std::numbers::pi;

constexpr Size kCursorSize{32, 32};
constexpr Rgb kCuff = 0x303048;

/// White in the black line that all of a cursor is drawn with.
void drawPart(Painter& painter, const Outline& outline) {
  painter.fillPolygon(outline, kWhite);
  painter.outlinePolygon(outline, kBlack, 1);
}

void drawCuff(Painter& painter, const Rect& cuff) {
  painter.fillRect(cuff, kCuff);
  painter.outlineRect(cuff, kBlack, 1);
}

/// A finger's tip between those two sides.
void addTip(Outline& hand, double left, double right, double top) {
  const double radius = (right - left) / 2;
  hand.arc({left + radius, top + radius}, {radius, radius}, pi, 2 * pi);
}

void drawCrease(Painter& painter, double x, double top, double bottom) {
  painter.line({x, top}, {x, bottom}, kBlack, 1);
}

/// The forefinger points up; the other fingers are bent.
void drawPointingHand(Painter& painter, int) {
  Outline hand({12.5, 27});
  hand.curveTo({12.5, 24}, {10.5, 23}, {8.5, 20.5})
      .lineTo({5.2, 16.2})
      .curveTo({3.8, 14.2}, {6.2, 12.6}, {7.8, 14.2})
      .lineTo({10.5, 17});
  addTip(hand, 10.5, 14.5, 1.5);
  addTip(hand, 14.5, 18.5, 9.5);
  addTip(hand, 18.5, 22.5, 10.5);
  addTip(hand, 22.5, 25.5, 12.5);
  hand.lineTo({25.5, 19}).curveTo({25.5, 23}, {22.5, 23.5}, {22.5, 27});
  drawPart(painter, hand);
  drawCrease(painter, 14.5, 10, 17);
  drawCrease(painter, 18.5, 11, 17);
  drawCrease(painter, 22.5, 12, 17);
  drawCuff(painter, {11, 26, 13, 5});
}

/// All fingers are bent, the thumb lies across.
void drawClosedHand(Painter& painter, int) {
  Outline hand({11.5, 27});
  hand.curveTo({11.5, 24}, {6, 23.5}, {6, 18.5}).lineTo({8.5, 16.5});
  addTip(hand, 8.5, 12.5, 8.5);
  addTip(hand, 12.5, 16.5, 7.5);
  addTip(hand, 16.5, 20.5, 7.5);
  addTip(hand, 20.5, 24.5, 8.5);
  hand.lineTo({24.5, 18}).curveTo({24.5, 23}, {21.5, 23}, {21.5, 27});
  drawPart(painter, hand);
  for (const double x : {12.5, 16.5, 20.5}) drawCrease(painter, x, 9, 16);
  drawPart(painter, Outline({8, 20.5})
                        .arc({8, 18.5}, {2.5, 2}, pi / 2, 3 * pi / 2)
                        .arc({15, 18.5}, {2.5, 2}, -pi / 2, pi / 2));
  drawCuff(painter, {10, 26, 13, 5});
}

/// The same on both sides of its axis.
void drawArrow(Painter& painter, int) {
  drawPart(painter, Outline({0.5, 1.5})
                        .lineTo({0.5, 21.3})
                        .lineTo({4.95, 16.85})
                        .lineTo({7.7, 23.5})
                        .lineTo({10.95, 22.15})
                        .lineTo({8.2, 15.5})
                        .lineTo({14.5, 15.5}));
}

}  // namespace

constinit const PictureStore Label13 =
    singlePicture<kCursorSize>("Label13", ornament, drawPointingHand, {12, 1});
constinit const PictureStore Label4 =
    singlePicture<kCursorSize>("Label4", ornament, drawClosedHand, {16, 14});
constinit const PictureStore Label9 = singlePicture<kCursorSize>("Label9", ornament, drawArrow, {0, 1});

}  // namespace tombolario::pictures
