#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "pictures/catalogue.hpp"
#include "pieces/domino_set.hpp"
#include "pieces/pay_tables.hpp"
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

/// What is told to be alike is alike; any other two pictures of one store differ.
TEST(Pictures, AreAlikeOnlyWhereTheyAreToldToBe) {
  EXPECT_EQ(drawn(pictures::Picture3), drawn(pictures::Picture4));
  for (const PictureStore* store :
       {&pictures::commpr, &pictures::Picture1, &pictures::Picture11, &pictures::ramcar, &pictures::segn,
        &pictures::Picture2, &pictures::IImAH}) {
    std::set<Pixels> seen;
    for (int i = store->first; i < store->first + store->count; ++i) {
      EXPECT_TRUE(seen.insert(drawn({*store, i})).second) << PictureId(*store, i).name();
    }
  }
  std::map<Pixels, Tile> faces;
  for (int face = 0; face < kFaces; ++face) {
    const auto [found, fresh] = faces.try_emplace(drawn({pictures::dominob, face}), kFaceNumbers[face]);
    const Tile& tile = found->second;
    EXPECT_TRUE(fresh || (tile.first == tile.second && kFaceNumbers[face].bears(tile.first))) << face;
  }
  EXPECT_EQ(faces.size(), 49U);
  for (int i = 1; i < 9; ++i) EXPECT_EQ(drawn({pictures::pictca, i}), drawn({pictures::pictca, 0}));
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

/// Every colour that is told of a picture is found in it, in more than stray pixels.
TEST(Pictures, ShowTheirGroundAndInk) {
  struct Told {
    const char* picture;
    std::set<Rgb> colours;
  };
  const std::vector<Told> told{{"commpr(4)", {kRed, kWhite}},
                               {"Picture3", {kRed, kWhite, kBlack}},
                               {"Picture1(0)", {kRed, kBlack}},
                               {"Picture1(22)", {kYellow, kBlack}},
                               {"Picture1(26)", {0x00E8E8, kBlack}},
                               {"Picture1(51)", {kGreen, kBlack}},
                               {"Picture1(52)", {kWhite, 0xFF8040, kBlack, kBlue, kYellow}},
                               {"Pictcomvidpok", {kRed, kWhite}},
                               {"segn(7)", {kBlue, kWhite}},
                               {"CONTPOK1", {kCyan, kRed}},
                               {"CONTPOK2", {kCyan, kRed}},
                               {"SALVPOK1", {kRed, kYellow}},
                               {"SALVPOK2", {kRed, kYellow}},
                               {"striscie", {kRed, kCyan, kBlue, kYellow}},
                               {"Picture11(0)", {0xFF00FF, kBlack}},
                               {"Picture11(13)", {0xFF8040, kBlack}},
                               {"Picture11(38)", {0xFFFFB3, kBlack}},
                               {"Picture11(39)", {kBlue, kBlack}},
                               {"ufo", {kYellow, 0x808080}},
                               {"Pictcompok", {kBlue, kWhite}},
                               {"Picture5", {kWhite, kBlack}},
                               {"dominob(3)", {kWhite, kBlack, 0xFFC400, 0x0A3161}},
                               {"dominob(31)", {kWhite, kBlack, 0xFFC400, 0x0A3161}},
                               {"domin(56)", {kWhite, kBlack}},
                               {"tabdom", {kYellow, kRed, kBlack, kGreen}},
                               {"Commdomban", {kYellow, kRed}},
                               {"passadomban", {kBlack, kYellow}},
                               {"ramcar(0)", {0x008000, kWhite}},
                               {"ramcar(25)", {0xF0BC09, kWhite}},
                               {"ramcar(26)", {0xFF0080, kWhite}},
                               {"ramcar(51)", {0x800000, kWhite}},
                               {"PicRAM3", {kYellow, kCyan, kBlue}},
                               {"rampul1", {kRed, kWhite}},
                               {"rampul2", {kBlue, kWhite}},
                               {"ramlas", {kBlue, kWhite}},
                               {"scambiaram", {kYellow, kBlack}},
                               {"RAMRESULT", {kYellow, kGreen, kRed, kWhite, 0xFFFFBF, kBlack, 0x0080FF}},
                               {"rampar", {0xFF00FF, kYellow, 0xC0C0C0, 0xFF8040}},
                               {"ramvin", {0xFF00FF, kYellow, kRed, kWhite, kBlue}},
                               {"ramper", {0xFF00FF, kYellow, kRed, kWhite, kBlue}},
                               {"Picram", {0xC0C0C0, kBlack, kRed, kBlue, kWhite, kYellow}},
                               {"Picture2(0)", {kWhite, kBlack, kRed, 0x800000}},
                               {"Picture2(8)", {kWhite, kBlack, kBlue, 0x008000}},
                               {"pictca(0)", {kGreen, kBlue}},
                               {"CARCAT", {kRed, kWhite}},
                               {"SC1", {kYellow, 0xC0C0C0}},
                               {"SC2", {kYellow, kRed}},
                               {"CoNTCAT", {kRed, kWhite}},
                               {"SALVACAT", {kRed, kWhite}},
                               {"INICAT", {kRed, kWhite}},
                               {"PICMAH(2)", {kYellow, kBlack}},
                               {"PICMAH(4)", {kBlue, kCyan}},
                               {"PICMAH(8)", {kWhite, kBlue}},
                               {"PICMAH(12)", {0xFF00FF, kWhite}},
                               {"PICMAH(14)", {0x009000, kWhite}},
                               {"PICMAH(17)", {kBlue, kWhite, kRed}},
                               {"PICMAH(84)", {kRed, kBlack}},
                               {"PICMAH(0)", {kBlue, kRed, kWhite}},
                               {"ELPEDMAH", {kRed, kWhite}},
                               {"CERPEDMAH", {kBlue, kWhite}},
                               {"FINECA", {kRed, kWhite}}};
  for (const auto& [name, colours] : told) {
    const Sheet canvas(pictures::find(name), 2);
    for (const Rgb colour : colours) {
      int found = 0;
      for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) found += canvas.pixel(x, y) == colour;
      }
      EXPECT_GT(found, 20) << name << " lacks " << std::hex << colour;
    }
  }
}

/// The flags stand for numbers: any two differ in a good part of what is seen.
TEST(Pictures, TheFlagsAreToldApartAndStandOnTheirTiles) {
  constexpr Size kFlag{32, 20};
  const std::vector<const char*> flags{"spagnadom", "brasiledom",    "giapponedom", "usadom",
                                       "sveziadom", "portogallodom", "danimarcadom"};
  const auto differing = [&](const Sheet& a, Vec from, const Sheet& b) {
    int count = 0;
    for (int y = 0; y < kFlag.height; ++y) {
      for (int x = 0; x < kFlag.width; ++x) {
        count += a.pixel(static_cast<int>(from.x) + x, static_cast<int>(from.y) + y) != b.pixel(x, y);
      }
    }
    return count;
  };
  for (int i = 0; i < 7; ++i) {
    const Sheet one(pictures::find(flags[static_cast<std::size_t>(i)]), 1);
    for (int j = 0; j < i; ++j) {
      const Sheet other(pictures::find(flags[static_cast<std::size_t>(j)]), 1);
      EXPECT_GT(differing(one, {0, 0}, other), 300) << flags[static_cast<std::size_t>(i)];
    }
  }
  for (int face = 0; face < 56; ++face) {
    const Sheet tile(PictureId(pictures::dominob, face), 1);
    const auto& [first, second] = kFaceNumbers[face];
    for (const auto& [number, place] : {std::pair(first, Vec{7, 13}), std::pair(second, Vec{53, 13})}) {
      const Sheet flag(pictures::find(flags[static_cast<std::size_t>(number)]), 1);
      EXPECT_EQ(differing(tile, place, flag), 0) << face;
    }
  }
}

/// The tiles of mahjongg are told apart at a glance: any two kinds differ strongly in a good part of what is
/// seen. The four of a kind are alike, and the bench shows the same.
TEST(Pictures, TheKindsOfMahjonggAreToldApart) {
  std::vector<Pixels> kinds(30);
  for (int piece = 0; piece < 120; ++piece) {
    auto& kind = kinds.at(static_cast<std::size_t>(piece < 80 ? piece % 20 : 20 + (piece - 80) % 10));
    const auto pixels = drawn({pictures::PICMAH, piece});
    if (kind.empty()) kind = pixels;
    EXPECT_EQ(kind, pixels) << piece;
  }
  for (int i = 0; i <= 28; ++i) {
    const int kind = i < 5 ? i : 33 - i;
    if (kind == 10) continue;  // a pixel higher on the board
    EXPECT_EQ(drawn({pictures::IImAH, i}), kinds.at(static_cast<std::size_t>(kind))) << i;
  }
  EXPECT_EQ(drawn(pictures::ImAH), kinds[29]);
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      int different = 0;
      for (std::size_t k = 0; k < std::min(kinds[i].size(), kinds[j].size()); ++k)
        different += apart(kinds[i][k], kinds[j][k]);
      EXPECT_GT(different, 150) << "kinds " << i << " and " << j;
    }
  }
}

/// The same picture, lit: nothing but the ground changes, so that a row does not jump when it is lit.
TEST(Pictures, ALitRowLiesRightOnItsRowOfThePayTable) {
  for (int test = 0; test < 33; ++test) {
    const int k = test % 11;
    const int scale = 1 + test / 11;
    const Sheet table(pictures::find("Pictcomvidpok"), scale);
    const PictureId row(pictures::segn, k);
    Sheet lit({156, 191}, scale);
    lit.painter.picture(row, Vec{0, std::round(kPayTable[k].top / 15.0)});
    const int top = static_cast<int>(std::lround(kPayTable[k].top / 15.0)) * scale;
    int ink = 0;
    int moved = 0;
    for (int y = top + 1; y < top + 14 * scale; ++y) {
      for (int x = 0; x < table.width(); ++x) {
        // The share of white is the green of the pixel, on red as on blue.
        const int before = static_cast<int>(table.pixel(x, y) >> 8 & 0xFF);
        const int after = static_cast<int>(lit.pixel(x, y) >> 8 & 0xFF);
        ink += before > 128;
        moved += std::abs(before - after) > 96;
      }
    }
    EXPECT_GT(ink, 50) << k;
    EXPECT_LE(moved, ink / 20) << "row " << k << " at " << scale;
  }
}

}  // namespace
}  // namespace tombolario
