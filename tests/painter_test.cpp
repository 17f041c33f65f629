#include <cmath>
#include <cstddef>
#include <cstring>
#include <set>
#include <vector>

#include "desktop/cairo_painter.hpp"
#include "driver/cairo_camera.hpp"
#include "pictures/catalogue.hpp"
#include "session.hpp"
#include "shell/caption.hpp"
#include "shell/domino_set.hpp"

namespace tombolario {
namespace {

constexpr Size kWindow{792, 573};

class Canvas {
 public:
  Canvas(Size size, double scale)
      : surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24,
                                            static_cast<int>(std::lround(size.width * scale)),
                                            static_cast<int>(std::lround(size.height * scale)))),
        painter(surface_.get(), scale, cache_) {}

  Rgb pixel(int x, int y) const {
    cairo_surface_flush(surface_.get());
    std::uint32_t value = 0;
    std::memcpy(&value, row(y) + std::ptrdiff_t{4} * x, sizeof value);
    return value & 0xFFFFFF;
  }
  int width() const { return cairo_image_surface_get_width(surface_.get()); }
  int height() const { return cairo_image_surface_get_height(surface_.get()); }
  std::set<Rgb> colours() const {
    std::set<Rgb> found;
    for (int y = 0; y < height(); ++y) {
      for (int x = 0; x < width(); ++x) found.insert(pixel(x, y));
    }
    return found;
  }

 private:
  const unsigned char* row(int y) const {
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface_.get());
    return cairo_image_surface_get_data(surface_.get()) + y * stride;
  }

  PainterCache cache_;
  Owned<cairo_surface_t> surface_;

 public:
  CairoPainter painter;
};

constexpr double kScales[] = {0.4, 1, 1.25, 1.5, 2, 3.3};

TEST(CairoPainter, UprightEdgesStaySharpAtEveryScale) {
  for (const double scale : kScales) {
    Canvas canvas({100, 100}, scale);
    canvas.painter.fillRect({0, 0, 100, 100}, kWhite);
    canvas.painter.enter({7.3, 9.1, 60.7, 71.9});
    canvas.painter.fillRect({-10, -10, 43.7, 200}, kRed);
    canvas.painter.outlineRect({2.2, 3.3, 50.5, 50.1}, kBlue, 1);
    canvas.painter.leave();
    EXPECT_EQ(canvas.colours(), (std::set<Rgb>{kWhite, kRed, kBlue})) << scale;
  }
}

TEST(CairoPainter, ClipsAndMovesTheOriginUntilLeft) {
  Canvas canvas({20, 20}, 1);
  canvas.painter.fillRect({0, 0, 20, 20}, kWhite);
  canvas.painter.enter({5, 5, 10, 10});
  canvas.painter.enter({5, 0, 10, 10});
  canvas.painter.fillRect({0, 0, 10, 3}, kRed);
  canvas.painter.leave();
  canvas.painter.leave();
  canvas.painter.fillRect({0, 19, 1, 1}, kBlue);
  EXPECT_EQ(canvas.pixel(10, 5), kRed);
  EXPECT_EQ(canvas.pixel(14, 7), kRed);
  EXPECT_EQ(canvas.pixel(15, 5), kWhite);
  EXPECT_EQ(canvas.pixel(9, 5), kWhite);
  EXPECT_EQ(canvas.pixel(10, 8), kWhite);
  EXPECT_EQ(canvas.pixel(0, 19), kBlue);
}

TEST(CairoPainter, TextGrowsWithTheScaleAlone) {
  const Font font{.face = Face::Heavy, .points = 12};
  Canvas small(kWindow, 1);
  const double width = small.painter.textWidth("CREDITO INSUFFICIENTE", font);
  EXPECT_GT(width, 100);
  for (const double scale : kScales) {
    Canvas canvas(kWindow, scale);
    EXPECT_NEAR(canvas.painter.textWidth("CREDITO INSUFFICIENTE", font), width, width * 0.02) << scale;
    const Font fitting = fittingFont(canvas.painter, "CREDITO INSUFFICIENTE", font, 80);
    EXPECT_LE(canvas.painter.textWidth("CREDITO INSUFFICIENTE", fitting), 80.5) << scale;
  }
}

TEST(CairoPainter, APictureIsDrawnOnceAScaleAndLooksAsDrawnDirectly) {
  for (const double scale : {1.0, 1.5, 2.0}) {
    const PictureId joker(pictures::Picture1, 52);
    Canvas direct({70, 93}, scale);
    joker.draw(direct.painter);
    Canvas cached({70, 93}, scale);
    cached.painter.picture(joker, {0, 0}, false);
    for (int y = 0; y < direct.height(); ++y) {
      for (int x = 0; x < direct.width(); ++x)
        ASSERT_EQ(direct.pixel(x, y), cached.pixel(x, y)) << x << ',' << y;
    }
  }
}

/// How many lines of text lie below each other in a captioned box, none of it near its sides.
int linesSeen(const char* caption, Size size) {
  Canvas canvas(size, 2);
  const Rect box{0, 0, static_cast<double>(size.width), static_cast<double>(size.height)};
  canvas.painter.fillRect(box, kWhite);
  drawCaption(canvas.painter, box, caption, {.points = 9.75, .bold = true}, kBlack, Align::Centre, false);
  int lines = 0;
  bool inText = false;
  for (int y = 0; y < canvas.height(); ++y) {
    bool ink = false;
    for (int x = 0; x < canvas.width(); ++x) {
      if (canvas.pixel(x, y) == kWhite) continue;
      ink = true;
      EXPECT_TRUE(x >= 4 && x < canvas.width() - 4) << caption;
    }
    lines += ink && !inText;
    inText = ink;
  }
  return lines;
}

TEST(Captions, BreakAtTheirBlanksWhereTheBoxIsTallEnough) {
  EXPECT_EQ(linesSeen("CAMBIA CARTE", {65, 33}), 2);
  EXPECT_EQ(linesSeen("CAMBIA CARTE", {65, 32}), 1);
  EXPECT_EQ(linesSeen("CAMBIA CARTE", {150, 33}), 1);
  EXPECT_EQ(linesSeen("CAMBIA TUTTE CARTE", {65, 60}), 3);
  EXPECT_EQ(linesSeen("CAMBIACARTE", {65, 60}), 1);
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
                               {"ELPEDMAH", {kRed, kWhite}},
                               {"CERPEDMAH", {kBlue, kWhite}},
                               {"FINECA", {kRed, kWhite}}};
  for (const auto& [name, colours] : told) {
    const PictureId picture = pictures::find(name);
    Canvas canvas(picture.size(), 2);
    picture.draw(canvas.painter);
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
  const auto differing = [&](const Canvas& a, Vec from, const Canvas& b) {
    int count = 0;
    for (int y = 0; y < kFlag.height; ++y) {
      for (int x = 0; x < kFlag.width; ++x) {
        count += a.pixel(static_cast<int>(from.x) + x, static_cast<int>(from.y) + y) != b.pixel(x, y);
      }
    }
    return count;
  };
  for (int i = 0; i < 7; ++i) {
    Canvas one(kFlag, 1);
    pictures::find(flags[static_cast<std::size_t>(i)]).draw(one.painter);
    for (int j = 0; j < i; ++j) {
      Canvas other(kFlag, 1);
      pictures::find(flags[static_cast<std::size_t>(j)]).draw(other.painter);
      EXPECT_GT(differing(one, {0, 0}, other), 300) << flags[static_cast<std::size_t>(i)];
    }
  }
  for (int face = 0; face < 56; ++face) {
    Canvas tile({92, 52}, 1);
    PictureId(pictures::dominob, face).draw(tile.painter);
    const auto& [first, second] = kFaceNumbers[face];
    for (const auto& [number, place] : {std::pair(first, Vec{7, 13}), std::pair(second, Vec{53, 13})}) {
      Canvas flag(kFlag, 1);
      pictures::find(flags[static_cast<std::size_t>(number)]).draw(flag.painter);
      EXPECT_EQ(differing(tile, place, flag), 0) << face;
    }
  }
}

/// The tiles of mahjongg are told apart at a glance: any two kinds differ strongly in a good part of what is
/// seen. The four of a kind are alike, and the bench shows the same.
TEST(Pictures, TheKindsOfMahjonggAreToldApart) {
  constexpr Size kTile{32, 20};
  std::vector<std::vector<Rgb>> kinds(30);
  const auto draw = [&](const PictureId& picture) {
    Canvas canvas(kTile, 1);
    picture.draw(canvas.painter);
    std::vector<Rgb> pixels;
    for (int y = 0; y < kTile.height; ++y) {
      for (int x = 0; x < kTile.width; ++x) pixels.push_back(canvas.pixel(x, y));
    }
    return pixels;
  };
  for (int piece = 0; piece < 120; ++piece) {
    auto& kind = kinds.at(static_cast<std::size_t>(piece < 80 ? piece % 20 : 20 + (piece - 80) % 10));
    const auto pixels = draw({pictures::PICMAH, piece});
    if (kind.empty()) kind = pixels;
    EXPECT_EQ(kind, pixels) << piece;
  }
  for (int i = 0; i <= 28; ++i) {
    EXPECT_EQ(draw({pictures::IImAH, i}), kinds.at(static_cast<std::size_t>(i < 5 ? i : 33 - i))) << i;
  }
  EXPECT_EQ(draw(pictures::ImAH), kinds[29]);
  const auto apart = [](Rgb a, Rgb b) {
    int distance = 0;
    for (const unsigned shift : {16U, 8U, 0U}) {
      distance += std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF));
    }
    return distance > 90;
  };
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      int different = 0;
      for (std::size_t k = 0; k < kinds[i].size(); ++k) different += apart(kinds[i][k], kinds[j][k]);
      EXPECT_GT(different, 150) << "kinds " << i << " and " << j;
    }
  }
}

/// The same picture, lit: nothing but the ground changes, so that a row does not jump when it is lit.
TEST(Pictures, ALitRowLiesRightOnItsRowOfThePayTable) {
  const std::vector<double> tops{0, 290, 570, 800, 1050, 1310, 1560, 1810, 2070, 2330, 2560};
  for (int test = 0; test < 33; ++test) {
    const int k = test % 11;
    const int step = test / 11;
    const double scale = 1 + 0.37 * step;
    Canvas table({156, 191}, scale);
    pictures::find("Pictcomvidpok").draw(table.painter);
    const PictureId row(pictures::segn, k);
    Canvas lit({156, 191}, scale);
    lit.painter.picture(row, {0, tops[static_cast<std::size_t>(k)] / 15}, false);
    const int top = static_cast<int>(std::lround(tops[static_cast<std::size_t>(k)] / 15 * scale));
    int ink = 0;
    int moved = 0;
    for (int y = top + 1; y < top + static_cast<int>(14 * scale); ++y) {
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

/// At no scale does a caption or a picture's text leave its control: the outermost pixels of the plates
/// are pure ground.
TEST(Pictures, TheTextOfAPlateKeepsOffItsEdge) {
  for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.3}) {
    for (const char* name : {"commpr(4)", "CONTPOK2", "SALVPOK2", "INICAT", "CoNTCAT", "FINECA", "Pictcompok",
                             "Commdomban", "passadomban", "rampul1", "rampul2", "ramlas", "scambiaram",
                             "Picram", "CARCAT", "SALVACAT", "SC1", "ELPEDMAH", "CERPEDMAH"}) {
      const PictureId picture = pictures::find(name);
      Canvas canvas(picture.size(), scale);
      picture.draw(canvas.painter);
      const Rgb ground = canvas.pixel(0, 0);
      for (int x = 0; x < canvas.width(); ++x) {
        ASSERT_EQ(canvas.pixel(x, 0), ground) << name << ' ' << scale;
        ASSERT_EQ(canvas.pixel(x, canvas.height() - 1), ground) << name << ' ' << scale;
      }
      for (int y = 0; y < canvas.height(); ++y) {
        ASSERT_EQ(canvas.pixel(0, y), ground) << name << ' ' << scale;
        ASSERT_EQ(canvas.pixel(canvas.width() - 1, y), ground) << name << ' ' << scale;
      }
    }
  }
}

TEST(CairoCamera, WritesTheWindowAndEachPictureAtTheScale) {
  TemporaryDirectory directory;
  CairoCamera camera;
  Driver room(&camera, directory.path());
  const auto sizeOf = [&](const std::string& file) {
    const Owned<cairo_surface_t> png(cairo_image_surface_create_from_png(file.c_str()));
    return std::pair(cairo_image_surface_get_width(png.get()), cairo_image_surface_get_height(png.get()));
  };
  const std::string lost = (directory.path() / "no" / "such.png").string();
  const std::string file = (directory.path() / "x.png").string();
  EXPECT_EQ(room.answer("shot " + lost).substr(0, 7), "error: ");
  EXPECT_EQ(room.answer("picture CONTPOK1 " + lost).substr(0, 7), "error: ");
  EXPECT_EQ(room.answer("shot " + file + " 0").substr(0, 7), "error: ");
  EXPECT_EQ(room.answer("start"), "ok") << "nothing of the above has started the room";
  EXPECT_EQ(room.answer("shot " + file), "ok");
  EXPECT_EQ(sizeOf(file), std::pair(792, 573));
  EXPECT_EQ(room.answer("shot " + file + " 2.5"), "ok");
  EXPECT_EQ(sizeOf(file), std::pair(1980, 1433));
  EXPECT_EQ(room.answer("picture Picture1(52) " + file + " 3"), "ok");
  EXPECT_EQ(sizeOf(file), std::pair(210, 279));
}

}  // namespace
}  // namespace tombolario
