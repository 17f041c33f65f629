#include "pictures/catalogue.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "null_canvas.hpp"
#include "session.hpp"

namespace tombolario {
namespace {

struct Told {
  const char* name;
  int first;
  int last;
  Size size;
};

TEST(Catalogue, HoldsEveryPictureAtItsSizeAndNoOther) {
  constexpr Size kCard{70, 92};
  constexpr Size kFlag{32, 20};
  const std::vector<Told> told{
      {"commpr", 1, 6, {166, 18}},
      {"Picture3", 0, 0, {100, 100}},
      {"Picture4", 0, 0, {100, 100}},
      {"Label13", 0, 0, {32, 32}},
      {"Label4", 0, 0, {32, 32}},
      {"Label9", 0, 0, {32, 32}},
      {"Picture1", 0, 51, kCard},
      {"Picture1", 52, 52, {70, 93}},
      {"Picture11", 0, 51, kCard},
      {"ramcar", 0, 51, {40, 59}},
      {"ufo", 0, 0, {72, 94}},
      {"PicRAM3", 0, 0, {40, 59}},
      {"Pictcomvidpok", 0, 0, {156, 191}},
      {"segn", 0, 2, {156, 0}},
      {"segn", 3, 9, {167, 0}},
      {"segn", 10, 10, {156, 0}},
      {"CONTPOK1", 0, 0, {204, 18}},
      {"CONTPOK2", 0, 0, {204, 18}},
      {"SALVPOK1", 0, 0, {205, 18}},
      {"SALVPOK2", 0, 0, {205, 18}},
      {"striscie", 0, 0, {432, 196}},
      {"Pictcompok", 0, 0, {150, 137}},
      {"Picture5", 0, 0, {165, 81}},
      {"Picture2", 0, 11, {91, 45}},
      {"pictca", 0, 8, {92, 52}},
      {"INICAT", 0, 0, {240, 24}},
      {"CoNTCAT", 0, 0, {156, 22}},
      {"CARCAT", 0, 0, {113, 24}},
      {"SALVACAT", 0, 0, {99, 21}},
      {"FINECA", 0, 0, {38, 14}},
      {"SC1", 0, 0, {88, 16}},
      {"SC2", 0, 0, {88, 16}},
      {"dominob", 0, 55, {92, 52}},
      {"domin", 56, 56, {92, 52}},
      {"spagnadom", 0, 0, kFlag},
      {"brasiledom", 0, 0, kFlag},
      {"giapponedom", 0, 0, kFlag},
      {"usadom", 0, 0, kFlag},
      {"sveziadom", 0, 0, kFlag},
      {"portogallodom", 0, 0, kFlag},
      {"danimarcadom", 0, 0, kFlag},
      {"tabdom", 0, 0, {229, 81}},
      {"Commdomban", 0, 0, {124, 14}},
      {"passadomban", 0, 0, {43, 13}},
      {"rampul1", 0, 0, {37, 13}},
      {"rampul2", 0, 0, {37, 15}},
      {"ramlas", 0, 0, {46, 15}},
      {"scambiaram", 0, 0, {46, 29}},
      {"RAMRESULT", 0, 0, {165, 81}},
      {"rampar", 0, 0, {101, 81}},
      {"ramvin", 0, 0, {101, 81}},
      {"ramper", 0, 0, {101, 81}},
      {"Picram", 0, 0, {468, 142}},
      {"PICMAH", 0, 119, kFlag},
      {"IImAH", 0, 28, kFlag},
      {"ImAH", 0, 0, kFlag},
      {"ELPEDMAH", 0, 0, {117, 13}},
      {"CERPEDMAH", 0, 0, {108, 13}},
  };
  std::set<std::string> names;
  for (const auto& [store, first, last, size] : told) {
    for (int i = first; i <= last; ++i) {
      const bool numbered = pictures::find(store) == PictureId();
      const std::string name = numbered ? std::string(store) + '(' + std::to_string(i) + ')' : store;
      names.insert(name);
      const PictureId picture = pictures::find(name);
      ASSERT_TRUE(picture) << name;
      EXPECT_EQ(picture.size().width, size.width) << name;
      const bool high = std::string_view(store) == "PICMAH" && i < 80 && i % 20 == 10;
      if (size.height > 0) {
        EXPECT_EQ(picture.size().height, high ? 21 : size.height) << name;
      } else {
        EXPECT_TRUE(picture.size().height >= 17 && picture.size().height <= 20) << name;
      }
    }
  }
  for (const PictureStore* store : pictures::catalogue()) {
    for (int i = store->first; i < store->first + store->count; ++i) {
      const std::string name = PictureId(*store, i).name();
      EXPECT_EQ(names.erase(name), 1U)
          << name << " is missing from the list above, or twice in the catalogue";
    }
  }
  EXPECT_FALSE(pictures::find("Picture1(53)"));
  EXPECT_FALSE(pictures::find("Picture1"));
}

TEST(Catalogue, EveryPictureHasWordsOfItsOwnButOrnaments) {
  const std::set<std::string_view> ornaments{"Picture3", "Picture4", "Label13",
                                             "Label4",   "Label9",   "striscie"};
  std::set<std::string> kinds;
  for (const PictureStore* store : pictures::catalogue()) {
    std::set<std::string> words;
    for (int i = store->first; i < store->first + store->count; ++i)
      words.insert(PictureId(*store, i).words());
    EXPECT_EQ(words.contains(""), ornaments.contains(store->name)) << store->name;
    const bool kindsAlone = store->name == "PICMAH";
    const int different = kindsAlone                 ? 30
                          : store->name == "dominob" ? 49
                          : store->name == "pictca"  ? 1
                                                     : store->count;
    EXPECT_EQ(static_cast<int>(words.size()), different) << store->name;
    if (kindsAlone) kinds = words;
  }
  for (int kind = 0; kind < 29; ++kind) kinds.erase(PictureId(pictures::IImAH, kind).words());
  EXPECT_EQ(kinds, std::set{PictureId(pictures::ImAH).words()}) << "the bench says the names of the board";
  const auto words = [](const char* picture) { return pictures::find(picture).words(); };
  EXPECT_EQ(words("Picture1(0)") + ", " + words("Picture1(11)") + ", " + words("Picture1(52)"),
            "asso rosso, donna rossa, jolly");
  EXPECT_EQ(words("ramcar(51)"), "re bordeaux");
  EXPECT_EQ(words("Picture2(3)"), "tessera due-uno");
  EXPECT_EQ(words("giapponedom"), "bandiera del Giappone");
  EXPECT_EQ(words("dominob(30)"), "tessera del Giappone e della Spagna");
  EXPECT_EQ(words("IImAH(28)"), words("PICMAH(5)")) << "its rows run backwards there";
}

/// Every text that a picture draws, in its order.
std::vector<std::string> textsOf(const PictureId& picture) {
  struct Reader : NullCanvas {
    void text(std::string_view text, const Typeface&, Vec, Rgb) override { texts.emplace_back(text); }
    std::vector<std::string> texts;
  } reader;
  drawAlone(picture, reader, 1);
  return reader.texts;
}

TEST(Catalogue, ThePayTablesTellWhatIsPaid) {
  using Texts = std::vector<std::string>;
  const Texts rows{"mano nulla", "-1", "coppia",      "0",  "doppia coppia", "2", "tris",         "4",
                   "scala",      "5",  "full",        "7",  "colore",        "8", "colore rosso", "10",
                   "poker",      "12", "scala reale", "15", "pokerissimo",   "18"};
  const std::vector<int> tops{0, 290, 570, 800, 1050, 1310, 1560, 1810, 2070, 2330, 2560};
  Session room;
  EXPECT_EQ(textsOf(pictures::Pictcomvidpok), rows);
  for (std::size_t k = 0; k < tops.size(); ++k) {
    const auto row = rows.begin() + static_cast<std::ptrdiff_t>(2 * k);
    EXPECT_EQ(textsOf({pictures::segn, static_cast<int>(k)}), Texts(row, row + 2));
    EXPECT_EQ(room.get("segn(" + std::to_string(k) + ')', "Top"), std::to_string(tops[k]));
  }
  EXPECT_EQ(textsOf(pictures::Pictcompok),
            (Texts{"coppia", "1", "doppia coppia", "2", "tris", "4", "scala", "5", "full", "7", "colore", "8",
                   "poker", "10", "scala reale", "12"}));
}

TEST(Catalogue, HoldsWhatEveryControlShows) {
  Session room;
  room.play({"start", "click commpr(6)", "click Command17", "click commpr(1)", "click Command44",
             "click Command55", "click menupok", "click commpr(4)", "click INICAT"});
  int shown = 0;
  for (const Control* control : room.driver.form().controls()) {
    for (const PictureId& picture : {control->Picture.get(), control->MouseIcon.get()}) {
      if (!picture) continue;
      EXPECT_EQ(pictures::find(picture.name()), picture) << control->name().text();
      ++shown;
    }
  }
  EXPECT_GT(shown, 500);
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
  for (const char* line : {"commpr(1) 166x18\n", "\nPicture1(52) 70x93\n", "\nsegn(3) 167x20\n", "\n."}) {
    EXPECT_NE(list.find(line), std::string::npos) << line;
  }
}

}  // namespace
}  // namespace tombolario
