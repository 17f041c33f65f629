#include <array>
#include <span>

#include "pictures/catalogue.hpp"
#include "toolkit/painter.hpp"

namespace tombolario::pictures {

namespace {

constexpr Size kCursorSize{32, 32};
constexpr Rgb kCuff = 0x303048;

/// A stroke with round ends: one finger.
struct Finger {
  Vec from;
  Vec to;
  double width;
};

void drawFinger(Painter& painter, const Finger& f, double grow, Rgb colour) {
  const double w = f.width + 2 * grow;
  painter.line(f.from, f.to, colour, w);
  for (const Vec end : {f.from, f.to}) painter.fillEllipse({end.x - w / 2, end.y - w / 2, w, w}, colour);
}

/// A white hand of fingers with one dark outline around them all, on a cuff.
void drawHand(Painter& painter, std::span<const Finger> fingers, const Rect& cuff) {
  painter.fillRect(cuff.inset(-1), kBlack);
  painter.fillRect(cuff, kCuff);
  for (const Finger& finger : fingers) drawFinger(painter, finger, 1.1, kBlack);
  for (const Finger& finger : fingers) drawFinger(painter, finger, 0, kWhite);
}

void drawCrease(Painter& painter, double x, double top, double bottom) {
  painter.line({x, top}, {x, bottom}, kBlack, 0.9);
}

/// The forefinger points up; the other fingers are bent.
void drawPointingHand(Painter& painter, int) {
  constexpr std::array kFingers{Finger{{12, 3.3}, {12, 19}, 4.2},      Finger{{16, 11.5}, {16, 19}, 4},
                                Finger{{19.9, 12.5}, {19.9, 19}, 3.9}, Finger{{23.4, 14.2}, {23.4, 19}, 3.5},
                                Finger{{7, 15.5}, {11.5, 21}, 3.8},    Finger{{14, 20.5}, {21, 20.5}, 8},
                                Finger{{15.5, 23.5}, {20.2, 23.5}, 6}};
  drawHand(painter, kFingers, {12, 26, 12, 5});
  drawCrease(painter, 14.05, 11, 17);
  drawCrease(painter, 17.95, 11.6, 17);
  drawCrease(painter, 21.75, 13, 17);
}

/// All fingers are bent, the thumb lies across.
void drawClosedHand(Painter& painter, int) {
  constexpr std::array kFingers{Finger{{9.5, 10}, {9.5, 17}, 4.6},    Finger{{14, 8.6}, {14, 17}, 4.6},
                                Finger{{18.5, 8.6}, {18.5, 17}, 4.6}, Finger{{22.8, 10}, {22.8, 17}, 4.4},
                                Finger{{12, 19}, {20.5, 19}, 9},      Finger{{13.5, 22.5}, {19, 22.5}, 6},
                                Finger{{7.5, 17}, {10, 20}, 4.6}};
  drawHand(painter, kFingers, {11, 26, 11, 5});
  for (const double x : {11.75, 16.25, 20.7}) drawCrease(painter, x, 8.5, 14.5);
  painter.line({10, 17.6}, {16.5, 16.6}, kBlack, 0.9);
}

void drawArrow(Painter& painter, int) {
  constexpr std::array kArrow{Vec{0.6, 1.2}, Vec{0.6, 21.5}, Vec{5.3, 17.2}, Vec{8.6, 24.8},
                              Vec{12, 23.3}, Vec{8.7, 15.9}, Vec{15.2, 15.7}};
  painter.fillPolygon(kArrow, kWhite);
  painter.outlinePolygon(kArrow, kBlack, 1.2);
}

}  // namespace

constinit const PictureStore Label13 = singlePicture<kCursorSize>("Label13", drawPointingHand, {12, 1});
constinit const PictureStore Label4 = singlePicture<kCursorSize>("Label4", drawClosedHand, {16, 14});
constinit const PictureStore Label9 = singlePicture<kCursorSize>("Label9", drawArrow, {0, 1});

}  // namespace tombolario::pictures
