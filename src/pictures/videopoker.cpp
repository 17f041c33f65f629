#include <array>
#include <cmath>
#include <cstddef>
#include <string>

#include "pictures/catalogue.hpp"
#include "pictures/lettering.hpp"
#include "pieces/pay_tables.hpp"

namespace tombolario::pictures {

namespace {

/// A lit row begins at its top, which are uneven, and may reach a little under the next one: where its middle
/// is, the words of the row are, and the steps between them are as even as that leaves them.
constexpr Slots<int, 0, kPayRows - 1> kLitHeights =
    slots<0, int>({19, 17, 17, 20, 20, 20, 20, 20, 20, 20, 20});

constexpr Size kPayTableSize{156, 191};

Size litRowSize(int row) {
  const int width = row >= 3 && row <= 9 ? 167 : kPayTableSize.width;
  return {width, kLitHeights[row]};
}

void drawPayRow(Painter& painter, int row) {
  const Rect box{10, 0, kPayTableSize.width - 20, static_cast<double>(kLitHeights[row])};
  const Font font = lettering(9.5);
  painter.text(box, kPayTable[row].name, font, kWhite, Align::Left);
  painter.text(box, std::to_string(kPayTable[row].amount), font, kWhite, Align::Right);
}

std::string rowWords(int row) {
  return std::string(kPayTable[row].name) + ' ' + std::to_string(kPayTable[row].amount);
}

std::string payTableWords(int) {
  std::string words = rowWords(0);
  for (int row = 1; row < kPayRows; ++row) words += ", " + rowWords(row);
  return words;
}

void drawPayTable(Painter& painter, int) {
  painter.fillRect({0, 0, kPayTableSize.width, kPayTableSize.height}, kRed);
  for (int row = 0; row < kPayRows; ++row) {
    const double top = std::round(kPayTable[row].top / double{kTwipsPerPixel});
    painter.enterEdged({0, top, kPayTableSize.width, static_cast<double>(kLitHeights[row])});
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

constinit const PictureStore Pictcomvidpok =
    singlePicture<kPayTableSize>("Pictcomvidpok", payTableWords, drawPayTable);
constinit const PictureStore segn{"segn", 0, kPayRows, true, rowWords, litRowSize, drawLitRow};
// These four are wider than the buttons that show them, 169 pixels, and lie beside each other.
constexpr int kButtonRoom = 155;
constexpr int kButtonCapHeight = 8;
static_assert(kFee == 5, "CONTPOK1 names the fee");
constinit const PictureStore CONTPOK1 =
    plateStore<"CONTINUA (-5)", Size{204, 18}, kRed, kCyan, kButtonCapHeight, kButtonRoom>("CONTPOK1");
constinit const PictureStore CONTPOK2 =
    plateStore<"CREDITO INSUFFICIENTE", Size{204, 18}, kRed, kCyan, kButtonCapHeight, kButtonRoom>(
        "CONTPOK2");
constinit const PictureStore SALVPOK1 =
    plateStore<"SALVA", Size{205, 18}, kYellow, kRed, kButtonCapHeight, kButtonRoom>("SALVPOK1");
constinit const PictureStore SALVPOK2 =
    plateStore<"NON SALVABILE", Size{205, 18}, kYellow, kRed, kButtonCapHeight, kButtonRoom>("SALVPOK2");
constinit const PictureStore striscie = singlePicture<Size{432, 196}>("striscie", ornament, drawStripes);

}  // namespace tombolario::pictures
