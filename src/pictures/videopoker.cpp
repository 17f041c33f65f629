#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "shell/slots.hpp"

namespace tombolario::pictures {

namespace {

/// A row of the pay table. `top` is the place of its lit picture in the table and `middle` that of its
/// text in the row, in pixels: the tops are uneven, the lines of text are not. A lit row is 17 to 20 pixels
/// high and may reach a little under the next one.
struct PayRow {
  const char* name;
  const char* amount;
  double top;
  double middle;
  int height;
};
constexpr Slots<PayRow, 0, 10> kPayRows{{{{"mano nulla", "-1", 0, 9, 19},
                                          {"coppia", "0", 290 / 15.0, 7.7, 19},
                                          {"doppia coppia", "2", 38, 6.9, 17},
                                          {"tris", "4", 800 / 15.0, 8.5, 17},
                                          {"scala", "5", 70, 8.6, 17},
                                          {"full", "7", 1310 / 15.0, 8.3, 17},
                                          {"colore", "8", 104, 8.5, 17},
                                          {"colore rosso", "10", 1810 / 15.0, 8.8, 17},
                                          {"poker", "12", 138, 8.5, 17},
                                          {"scala reale", "15", 2330 / 15.0, 8.2, 17},
                                          {"pokerissimo", "18", 2560 / 15.0, 10.3, 20}}}};

constexpr Size kPayTableSize{156, 191};

Size litRowSize(int row) {
  const int width = row >= 3 && row <= 9 ? 167 : kPayTableSize.width;
  return {width, kPayRows[row].height};
}

void drawPayRow(Painter& painter, const PayRow& row) {
  const Rect box{10, row.middle - 8, kPayTableSize.width - 20, 16};
  const Font font = lettering(9.5);
  painter.text(box, row.name, font, kWhite, Align::Left);
  painter.text(box, row.amount, font, kWhite, Align::Right);
}

void drawPayTable(Painter& painter, int) {
  painter.fillRect({0, 0, kPayTableSize.width, kPayTableSize.height}, kRed);
  for (const PayRow& row : kPayRows) {
    painter.enter({0, row.top, kPayTableSize.width, static_cast<double>(row.height)});
    drawPayRow(painter, row);
    painter.leave();
  }
}

void drawLitRow(Painter& painter, int row) {
  const Size size = litRowSize(row);
  painter.fillRect({0, 0, static_cast<double>(size.width), static_cast<double>(size.height)}, kBlue);
  drawPayRow(painter, kPayRows[row]);
}

/// Vertical stripes, twelve pixels each.
void drawStripes(Painter& painter, int) {
  constexpr Slots<Rgb, 0, 3> kColours{kRed, kCyan, kBlue, kYellow};
  for (int i = 0; i < 36; ++i) {
    painter.fillRect({i * 12.0, 0, 12, 196}, kColours[i % 4]);
  }
}

}  // namespace

constinit const PictureStore Pictcomvidpok{"Pictcomvidpok", 0, 1, false, [](int) { return kPayTableSize; },
                                           drawPayTable};
constinit const PictureStore segn{"segn", 0, 11, true, litRowSize, drawLitRow};
// These four are wider than the buttons that show them, 169 pixels.
constexpr int kButtonRoom = 155;
constinit const PictureStore CONTPOK1 =
    plateStore<"CONTINUA (-5)", Size{204, 18}, kRed, kCyan, kButtonRoom>("CONTPOK1");
constinit const PictureStore CONTPOK2 =
    plateStore<"CREDITO INSUFFICIENTE", Size{204, 18}, kRed, kCyan, kButtonRoom>("CONTPOK2");
constinit const PictureStore SALVPOK1 =
    plateStore<"SALVA", Size{205, 18}, kYellow, kRed, kButtonRoom>("SALVPOK1");
constinit const PictureStore SALVPOK2 =
    plateStore<"NON SALVABILE", Size{205, 18}, kYellow, kRed, kButtonRoom>("SALVPOK2");
constinit const PictureStore striscie{"striscie", 0, 1, false, [](int) { return Size{432, 196}; },
                                      drawStripes};

}  // namespace tombolario::pictures
