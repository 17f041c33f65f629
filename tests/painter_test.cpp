#include <sys/stat.h>

#include "driver/cairo_camera.hpp"
#include "pictures/catalogue.hpp"
#include "session.hpp"
#include "sheet.hpp"
#include "toolkit/caption.hpp"
#include "toolkit/contrast.hpp"
#include "toolkit/controls.hpp"

namespace tombolario {
namespace {

constexpr Size kWindow{792, 573};

constexpr double kScales[] = {0.4, 1, 1.25, 1.5, 2, 3.3};

TEST(Painter, TextGrowsWithTheScaleAlone) {
  const Font font{.face = Face::Heavy, .points = 12};
  Sheet small(kWindow, 1);
  const double width = small.painter.textWidth("CREDITO INSUFFICIENTE", font);
  EXPECT_GT(width, 100);
  for (const double scale : kScales) {
    Sheet canvas(kWindow, scale);
    EXPECT_NEAR(canvas.painter.textWidth("CREDITO INSUFFICIENTE", font), width, width * 0.02) << scale;
    const Font fitting = fittingFont(canvas.painter, "CREDITO INSUFFICIENTE", font, 80);
    EXPECT_LE(canvas.painter.textWidth("CREDITO INSUFFICIENTE", fitting), 80.5) << scale;
  }
}

TEST(Painter, WhatIsFilledIsSeenHoweverSmallTheWindow) {
  for (int top = 0; top < 10; ++top) {
    Sheet canvas({40, 40}, 0.3);
    canvas.painter.fillRect({5, top + 0.0, 20, 2}, kRed);
    int red = 0;
    for (int y = 0; y < canvas.height(); ++y) red += canvas.pixel(4, y) == kRed;
    EXPECT_EQ(red, 1) << top;
  }
}

TEST(Painter, APictureLooksAsDrawnDirectly) {
  for (const double scale : kScales) {
    const PictureId joker(pictures::Picture1, 52);
    const Sheet direct(joker, scale);
    Sheet cached({70, 93}, scale);
    cached.painter.picture(joker, Vec{});
    for (int y = 0; y < direct.height(); ++y) {
      for (int x = 0; x < direct.width(); ++x)
        ASSERT_EQ(direct.pixel(x, y), cached.pixel(x, y)) << x << ',' << y;
    }
  }
}

/// What is out of use stays on its ground and can be read: captions and pictures alike, at every scale.
TEST(Buttons, AreQuietAndLegibleWhereTheyAreDisabled) {
  const auto faintest = [](const Look& look, const char* caption, double scale) {
    Form form("Form1", {0, 0, 3000, 750}, kBlack, "");
    Button button(form, "button", {0, 0, 3000, 750}, caption, look);
    button.Enabled = false;
    Sheet canvas({200, 50}, scale);
    form.repaint(canvas.painter);
    const Rgb ground = look.picture
                           ? canvas.pixel(canvas.width() / 2, canvas.height() / 2 - canvas.height() / 7)
                           : look.back.rgb();
    EXPECT_EQ(canvas.pixel(canvas.width() / 2, canvas.height() / 8), look.back.rgb());
    double strongest = 1;
    for (int y = canvas.height() / 3; y < canvas.height() * 2 / 3; ++y) {
      for (int x = canvas.width() / 10; x < canvas.width() * 9 / 10; ++x)
        strongest = std::max(strongest, contrast(canvas.pixel(x, y), ground));
    }
    return strongest;
  };
  for (const double scale : {0.63, 1.0, 1.5, 2.0}) {
    for (const Rgb ground : {0xFF8000U, 0xFF8080U, 0x00FF00U, kBlue, kWhite, kYellow, kBlack, 0x808080U}) {
      const Look look{.back = ground, .fore = kBlack, .font = {.points = 9.75, .bold = true}};
      EXPECT_GT(faintest(look, "TURNO DEL COMPUTER", scale), 3) << std::hex << ground << " at " << scale;
      EXPECT_LT(faintest(look, "TURNO DEL COMPUTER", scale), 5) << std::hex << ground << " at " << scale;
    }
    for (const PictureStore* store :
         {&pictures::SALVACAT, &pictures::CONTPOK2, &pictures::SC1, &pictures::ramlas})
      EXPECT_GT(faintest({.back = kRed, .picture = *store}, "", scale), 3) << store->name << " at " << scale;
  }
}

TEST(CairoCamera, WritesTheWindowAndEachPictureAtTheScale) {
  TemporaryDirectory directory;
  CairoCamera camera;
  DataDirectory dataFiles(directory.path());
  Driver room(&camera, dataFiles);
  const auto sizeOf = [&](const std::string& file) {
    const Owned<cairo_surface_t> png(cairo_image_surface_create_from_png(file.c_str()));
    return std::pair(cairo_image_surface_get_width(png.get()), cairo_image_surface_get_height(png.get()));
  };
  const std::string lost = (directory.path() / "no" / "such.png").string();
  const std::string file = (directory.path() / "x.png").string();
  EXPECT_EQ(room.answer("shot " + lost).substr(0, 7), "error: ");
  EXPECT_EQ(room.answer("picture CONTPOK1 " + lost).substr(0, 7), "error: ");
  EXPECT_EQ(room.answer("shot " + file + " 0").substr(0, 7), "error: ");
  ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);  // to write to it would wait for its other end
  EXPECT_EQ(room.answer("shot " + file).substr(0, 7), "error: ");
  std::filesystem::remove(file);
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
