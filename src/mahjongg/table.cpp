#include <memory>

#include "mahjongg/game.hpp"
#include "mahjongg/rules.hpp"
#include "pictures/catalogue.hpp"
#include "toolkit/control_array.hpp"
#include "toolkit/controls.hpp"
#include "toolkit/cursors.hpp"
#include "toolkit/screens.hpp"

namespace tombolario::mahjongg {

namespace {

constexpr Colour kSelected = kRed;
constexpr Colour kFound = kYellow;
constexpr Colour kGroundAtRest = 0xD0D0D0;
constexpr Colour kTopAtRest = 0xFFFFFF;

constexpr Colour atRest(int cell) { return isGround(cell) ? kGroundAtRest : kTopAtRest; }

// clang-format off
/// The tiles, those of the top above those of the ground.
struct Board : Frame {
  explicit Board(Control& parent) : Frame(parent, "FRPEDMAH", {2640, 360, 7455, 5775}, {.back = 0xFFE0C0}) {}

  ControlArray<TileButton, 1, kCells> Commah{[this](int cell) {
    const Point place = isGround(cell) ? placeIn(600, kGroundColumns, cell - 1)
                                       : placeIn(2280, kTopColumns, cell - kGroundCells - 1);
    return TileButton{*this, {"Commah", cell}, {place.x, place.y, 855, 495}, "", {.back = atRest(cell)}}; }};

  static constexpr Point placeIn(int left, int columns, int index) {
    return {left + 840 * (index % columns), 480 + 480 * (index / columns)};
  }
};

/// What is left of each kind.
struct Bench : Frame {
  explicit Bench(Control& parent)
      : Frame(parent, "FrameBANMAH", {480, 360, 1695, 7575}, {.back = 0xC0C0C0, .border = Border::Etched}) {}

  ControlArray<Image, 0, kKinds - 2> IImAH{[this](int i) {
    return Image{*this, {"IImAH", i}, placeOfImage(i < 5 ? i : 33 - i), {pictures::IImAH, i}}; }};
  Image ImAH{*this, "ImAH", placeOfImage(kKinds - 1), pictures::ImAH};
  ControlArray<Label, 0, kKinds - 1> labmah{[this](int kind) {
    return Label{*this, {"labmah", kind}, {720, 240 + 240 * kind, 615, 255}, "4",
                 {.back = kWhite, .font = {.points = 9.75}, .border = Border::Single}}; }};

  static constexpr Box placeOfImage(int kind) { return {360, 270 + 240 * kind, 300, 195}; }
};

struct Screen : Frame {
  explicit Screen(Form& form) : Frame(form, "Frame7", kFullSize, screenLook(0xFFE0C0, "Mahjongg")) {}

  Board FRPEDMAH{*this};
  // The neighbours of the first and of the last cell have no tile.
  Button before{*this, {"Commah", 0}, {480, 360, 855, 495}, "", {.back = kGroundAtRest, .visible = false}};
  Button behind{*this, {"Commah", kCells + 1}, {480, 360, 855, 495}, "",
                {.back = kGroundAtRest, .visible = false}};
  Button ELPEDMAH{*this, "ELPEDMAH", {3240, 6360, 2535, 375}, "", buttonLook(kRed, pictures::ELPEDMAH)};
  Button CERPEDMAH{*this, "CERPEDMAH", {3240, 6720, 2535, 375}, "", buttonLook(kBlue, pictures::CERPEDMAH)};
  Button ALTRAPARTITAMAH{*this, "ALTRAPARTITAMAH", {8880, 6960, 1815, 495}, "ALTRA PARTITA",
                         buttonLook(0xD0D000)};
  Button Command17{*this, "Command17", {8880, 7440, 1815, 495}, "EXIT", buttonLook(kGreen)};
  Bench FrameBANMAH{*this};
  // Board and bench begin a little under the title.
  Label Label10{*this, "Label10", kTitleBar, "MAHJONGG", stripLook(0xFFFF80, 0xC04000)};
};
// clang-format on

class Table : public Game {
 public:
  Table(Form& form, Host& host) : uniform_(host.uniform()), screen_(form) {
    for (int cell = 1; cell <= kCells; ++cell) {
      tiles_[cell].onClick = [this, cell] {
        game_.press(cell);
        show();
      };
    }
    screen_.ELPEDMAH.onClick = [this] {
      game_.removePair();
      show();
    };
    screen_.CERPEDMAH.onMouseDown = [this](MouseButton) { search(); };
    screen_.CERPEDMAH.onMouseUp = [this](MouseButton) { show(); };
    screen_.ALTRAPARTITAMAH.onClick = [this] { avvioMAH(); };
  }

  Frame& entrance() override { return screen_; }
  Button& wayBack() override { return screen_.Command17; }
  void enter() override { avvioMAH(); }

 private:
  /// Lays a new board.
  void avvioMAH() {
    game_.avvioMAH(uniform_);
    for (int cell = 1; cell <= kCells; ++cell) {
      giveCursor(pictures::Label13, {&tiles_[cell]});
      tiles_[cell].Picture = {pictures::PICMAH, game_.piece(cell)};
    }
    show();
  }

  /// "CERCA PEDINE": as long as it is held, all tiles like the selected one are lit.
  void search() {
    if (game_.selected() != 1) return;
    for (int cell = 1; cell <= kCells; ++cell) {
      if (game_.kind(cell) == game_.selectedKind() && !game_.isSelected(cell))
        tiles_[cell].BackColor = kFound;
    }
  }

  /// The board, the bench, and what can be done with the selection. The bench lights the kind of the first
  /// selected tile.
  void show() {
    for (int cell = 1; cell <= kCells; ++cell) {
      tiles_[cell].Visible = game_.stands(cell);
      tiles_[cell].BackColor = game_.isSelected(cell) ? kSelected : atRest(cell);
    }
    for (int kind = 0; kind < kKinds; ++kind) {
      const bool lit = kind == game_.selectedKind();
      Label& count = screen_.FrameBANMAH.labmah[kind];
      count.Visible = game_.left(kind) > 0;
      count.Caption = game_.left(kind);
      count.BackColor = lit ? kRed : kWhite;
      count.ForeColor = lit ? kYellow : kBlack;
    }
    screen_.CERPEDMAH.Enabled = game_.selected() == 1;
    screen_.ELPEDMAH.Enabled = game_.selected() == 2;
  }

  UniformSource& uniform_;
  Screen screen_;
  decltype(Board::Commah)& tiles_ = screen_.FRPEDMAH.Commah;
  Mahjongg game_;
};

}  // namespace

std::unique_ptr<Game> makeGame(Form& form, Host& host) { return std::make_unique<Table>(form, host); }

}  // namespace tombolario::mahjongg
