#include "pictures/catalogue.hpp"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "session.hpp"

namespace tombolario {
namespace {

TEST(Catalogue, HoldsEachPictureOnceAtItsSize) {
  const std::map<std::string, Size> told{
      {"commpr(1)", {166, 18}},
      {"commpr(6)", {166, 18}},
      {"Picture3", {100, 100}},
      {"Picture4", {100, 100}},
      {"Label13", {32, 32}},
      {"Label4", {32, 32}},
      {"Label9", {32, 32}},
      {"Picture1(0)", {70, 92}},
      {"Picture1(51)", {70, 92}},
      {"Picture1(52)", {70, 93}},
      {"Pictcomvidpok", {156, 191}},
      {"CONTPOK1", {204, 18}},
      {"CONTPOK2", {204, 18}},
      {"SALVPOK1", {205, 18}},
      {"SALVPOK2", {205, 18}},
      {"striscie", {432, 196}},
      {"INICAT", {240, 24}},
      {"CoNTCAT", {156, 22}},
      {"FINECA", {38, 14}},
      {"Picture2(0)", {91, 45}},
      {"Picture2(11)", {91, 45}},
      {"pictca(0)", {92, 52}},
      {"pictca(8)", {92, 52}},
      {"CARCAT", {113, 24}},
      {"SALVACAT", {99, 21}},
      {"SC1", {88, 16}},
      {"SC2", {88, 16}},
      {"PICMAH(0)", {32, 20}},
      {"PICMAH(119)", {32, 20}},
      {"IImAH(0)", {32, 20}},
      {"IImAH(28)", {32, 20}},
      {"ImAH", {32, 20}},
      {"ELPEDMAH", {117, 13}},
      {"CERPEDMAH", {108, 13}},
      {"Picture11(0)", {70, 92}},
      {"Picture11(51)", {70, 92}},
      {"ufo", {72, 94}},
      {"dominob(0)", {92, 52}},
      {"dominob(55)", {92, 52}},
      {"domin(56)", {92, 52}},
      {"spagnadom", {32, 20}},
      {"brasiledom", {32, 20}},
      {"giapponedom", {32, 20}},
      {"usadom", {32, 20}},
      {"sveziadom", {32, 20}},
      {"portogallodom", {32, 20}},
      {"danimarcadom", {32, 20}},
      {"tabdom", {229, 81}},
      {"Commdomban", {124, 14}},
      {"passadomban", {43, 13}},
      {"Pictcompok", {150, 137}},
      {"Picture5", {165, 81}},
      {"ramcar(0)", {40, 59}},
      {"ramcar(51)", {40, 59}},
      {"PicRAM3", {40, 59}},
      {"rampul1", {37, 13}},
      {"rampul2", {37, 15}},
      {"ramlas", {46, 15}},
      {"scambiaram", {46, 29}},
      {"RAMRESULT", {165, 81}},
      {"rampar", {101, 81}},
      {"ramvin", {101, 81}},
      {"ramper", {101, 81}},
      {"Picram", {468, 142}},
  };
  std::set<std::string> names;
  for (const PictureStore* store : pictures::catalogue()) {
    for (int i = store->first; i < store->first + store->count; ++i) {
      EXPECT_TRUE(names.insert(PictureId(*store, i).name()).second) << PictureId(*store, i).name();
    }
  }
  for (const auto& [name, size] : told) {
    EXPECT_TRUE(names.contains(name)) << name;
    EXPECT_EQ(pictures::find(name).size(), size) << name;
  }
  EXPECT_EQ(pictures::Picture1.count, 53);
  EXPECT_EQ(pictures::Picture11.count, 52);
  for (int row = 0; row <= 10; ++row) {
    const auto [width, height] = PictureId(pictures::segn, row).size();
    EXPECT_EQ(width, row >= 3 && row <= 9 ? 167 : 156);
    EXPECT_TRUE(height >= 17 && height <= 20) << height;
  }
  EXPECT_FALSE(pictures::find("Picture1(53)"));
  EXPECT_FALSE(pictures::find("Picture1"));
}

TEST(Catalogue, TheCursorsPointWithTheirHotSpots) {
  const auto at = [](const PictureStore& cursor) { return std::pair(cursor.hotSpot.x, cursor.hotSpot.y); };
  EXPECT_EQ(at(pictures::Label13), std::pair(12.0, 1.0));
  EXPECT_EQ(at(pictures::Label4), std::pair(16.0, 14.0));
  EXPECT_EQ(at(pictures::Label9), std::pair(0.0, 1.0));
}

TEST(Catalogue, TheDriverListsIt) {
  Session room;
  const std::string list = room("pictures");
  for (const char* line : {"commpr(1) 166x18\n", "\nPicture1(52) 70x93\n", "\nsegn(3) 167x17\n", "\n."}) {
    EXPECT_NE(list.find(line), std::string::npos) << line;
  }
}

}  // namespace
}  // namespace tombolario
