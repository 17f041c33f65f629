#include <algorithm>
#include <string>
#include <vector>

#include "pictures/catalogue.hpp"
#include "session.hpp"
#include "sheet.hpp"

namespace tombolario {
namespace {

using Pixels = std::vector<Rgb>;

/// The picture at its own size, row by row.
Pixels drawn(const PictureId& picture) {
  const Sheet canvas(picture, 1);
  Pixels pixels;
  for (int y = 0; y < canvas.height(); ++y) {
    for (int x = 0; x < canvas.width(); ++x) pixels.push_back(canvas.pixel(x, y));
  }
  return pixels;
}

/// Whether two colours differ at a glance.
bool apart(Rgb a, Rgb b) {
  int distance = 0;
  for (const unsigned shift : {16U, 8U, 0U}) {
    distance += std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF));
  }
  return distance > 90;
}

std::vector<PictureId> allPictures() {
  std::vector<PictureId> all;
  for (const PictureStore* store : pictures::catalogue()) {
    for (int i = store->first; i < store->first + store->count; ++i) all.emplace_back(*store, i);
  }
  return all;
}

TEST(Pictures, AreNeverEmptyAndStayInTheirBox) {
  constexpr Rgb kBeyond = 0x123456;
  for (const PictureId& picture : allPictures()) {
    const auto pixels = drawn(picture);
    EXPECT_GT(std::set<Rgb>(pixels.begin(), pixels.end()).size(), 1U) << picture.name();
    const auto [width, height] = picture.size();
    Sheet canvas({width + 12, height + 12}, 1.5);
    canvas.painter.enter({3, 3, 4, 4});
    canvas.painter.leave();  // with nothing left of its bounds
    canvas.painter.fillRect({0, 0, width + 12.0, height + 12.0}, kBeyond);
    picture.draw(canvas.painter);
    for (int y = 0; y < canvas.height(); ++y) {
      for (int x = 0; x < canvas.width(); ++x) {
        const bool inside = x < std::lround(width * 1.5) && y < std::lround(height * 1.5);
        if (!inside) {
          ASSERT_EQ(canvas.pixel(x, y), kBeyond) << picture.name() << ' ' << x << ',' << y;
        }
      }
    }
  }
}

/// Text that fits keeps off the outermost pixels of its plate, card or table, but for the overshoot of round
/// letters.
TEST(Pictures, TheirTextKeepsOffTheirEdge) {
  const std::set<std::string> flat{
      "commpr",   "Picture1",   "Picture11", "ramcar",     "Pictcomvidpok", "segn",        "CONTPOK1",
      "CONTPOK2", "SALVPOK1",   "SALVPOK2",  "Pictcompok", "INICAT",        "CoNTCAT",     "CARCAT",
      "SALVACAT", "FINECA",     "SC1",       "SC2",        "Commdomban",    "passadomban", "rampul2",
      "ramlas",   "scambiaram", "Picram",    "ELPEDMAH",   "CERPEDMAH"};
  for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.3}) {
    for (const PictureId& picture : allPictures()) {
      if (!flat.contains(std::string(picture.store().name))) continue;
      const Sheet canvas(picture, scale);
      const Rgb ground = canvas.pixel(0, 0);
      int ink = 0;
      for (int x = 0; x < canvas.width(); ++x)
        ink += apart(canvas.pixel(x, 0), ground) + apart(canvas.pixel(x, canvas.height() - 1), ground);
      for (int y = 0; y < canvas.height(); ++y)
        ink += apart(canvas.pixel(0, y), ground) + apart(canvas.pixel(canvas.width() - 1, y), ground);
      EXPECT_EQ(ink, 0) << picture.name() << ' ' << scale;
    }
  }
}

}  // namespace
}  // namespace tombolario
