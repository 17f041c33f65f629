#include <array>
#include <cstddef>
#include <string>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "pieces/pay_tables.hpp"

namespace tombolario::pictures {

namespace {

/// A lit row is 17 to 20 pixels high and may reach a little under the next one. The lines of text are even,
/// the tops of the rows are not: `middle` is where the text of a row is, in pixels from its top.
struct LitRow {
  double middle;
  int height;
};
constexpr Slots<LitRow, 0, kPayRows - 1> kLitRows = slots<0, LitRow>({{9, 19},
                                                                      {7.7, 19},
                                                                      {6.9, 17},
                                                                      {8.5, 17},
                                                                      {8.6, 17},
                                                                      {8.3, 17},
                                                                      {8.5, 17},
                                                                      {8.8, 17},
                                                                      {8.5, 17},
                                                                      {8.2, 17},
                                                                      {10.3, 20}});

constexpr Size kPayTableSize{156, 191};

Size litRowSize(int row) {
  const int width = row >= 3 && row <= 9 ? 167 : kPayTableSize.width;
  return {width, kLitRows[row].height};
}

void drawPayRow(Painter& painter, int row) {
  const Rect box{10, kLitRows[row].middle - 8, kPayTableSize.width - 20, 16};
  const Font font = lettering(9.5);
  painter.text(box, kPayTable[row].name, font, kWhite, Align::Left);
  painter.text(box, std::to_string(kPayTable[row].amount), font, kWhite, Align::Right);
}

void drawPayTable(Painter& painter, int) {
  painter.fillRect({0, 0, kPayTableSize.width, kPayTableSize.height}, kRed);
  for (int row = 0; row < kPayRows; ++row) {
    const double top = kPayTable[row].top / double{kTwipsPerPixel};
    painter.enter({0, top, kPayTableSize.width, static_cast<double>(kLitRows[row].height)});
    drawPayRow(painter, row);
    painter.leave();
  }
}

void drawLitRow(Painter& painter, int row) {
  const Size size = litRowSize(row);
  painter.fillRect({0, 0, static_cast<double>(size.width), static_cast<double>(size.height)}, kBlue);
  drawPayRow(painter, row);
}

/// Vertical stripes, twelve pixels each.
void drawStripes(Painter& painter, int) {
  constexpr std::array kColours{kRed, kCyan, kBlue, kYellow};
  for (std::size_t i = 0; i < 36; ++i) {
    painter.fillRect({static_cast<double>(i) * 12, 0, 12, 196}, kColours.at(i % kColours.size()));
  }
}

}  // namespace

constinit const PictureStore Pictcomvidpok = singlePicture<kPayTableSize>("Pictcomvidpok", drawPayTable);
constinit const PictureStore segn{"segn", 0, kPayRows, true, litRowSize, drawLitRow};
// These four are wider than the buttons that show them, 169 pixels.
constexpr int kButtonRoom = 155;
static_assert(kFee == 5, "CONTPOK1 names the fee");
constinit const PictureStore CONTPOK1 =
    plateStore<"CONTINUA (-5)", Size{204, 18}, kRed, kCyan, kButtonRoom>("CONTPOK1");
constinit const PictureStore CONTPOK2 =
    plateStore<"CREDITO INSUFFICIENTE", Size{204, 18}, kRed, kCyan, kButtonRoom>("CONTPOK2");
constinit const PictureStore SALVPOK1 =
    plateStore<"SALVA", Size{205, 18}, kYellow, kRed, kButtonRoom>("SALVPOK1");
constinit const PictureStore SALVPOK2 =
    plateStore<"NON SALVABILE", Size{205, 18}, kYellow, kRed, kButtonRoom>("SALVPOK2");
constinit const PictureStore striscie = singlePicture<Size{432, 196}>("striscie", drawStripes);

}  // namespace tombolario::pictures
