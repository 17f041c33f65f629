#include <algorithm>
#include <array>
#include <map>
#include <numeric>
#include <optional>
#include <set>

#include "mahjongg/rules.hpp"
#include "pictures/catalogue.hpp"
#include "sanitized.hpp"
#include "table_test.hpp"

namespace tombolario {
namespace {

/// The four tiles of a kind.
std::vector<int> tilesOf(int kind) {
  std::vector<int> tiles;
  for (int tile = 0; tile < 120; ++tile) {
    const bool first = tile < 80;
    if ((first ? tile % 20 : 20 + (tile - 80) % 10) == kind) tiles.push_back(tile);
  }
  return tiles;
}

/// A board by its plain description: each cell has a layer, a row and a column.
struct PlainBoard {
  std::map<int, int> kind;  // of the cells that stand
  std::vector<int> selected;

  struct Place {
    bool top;
    int row, column;  // of the ground
  };
  static Place placeOf(int cell) {
    if (cell <= 80) return {false, (cell - 1) / 8, (cell - 1) % 8};
    return {true, (cell - 81) / 4, 2 + (cell - 81) % 4};
  }
  static int cellAt(bool top, int row, int column) {
    return top ? 81 + 4 * row + column - 2 : 1 + 8 * row + column;
  }
  bool free(int cell) const {
    const auto [top, row, column] = placeOf(cell);
    if (column == (top ? 2 : 0) || column == (top ? 5 : 7)) return true;
    return !kind.contains(cellAt(top, row, column - 1)) || !kind.contains(cellAt(top, row, column + 1));
  }
  /// The cell that is seen at the place of another.
  int seenAt(int cell) const {
    const auto [top, row, column] = placeOf(cell);
    if (!top && column >= 2 && column <= 5 && kind.contains(cellAt(true, row, column))) {
      return cellAt(true, row, column);
    }
    return cell;
  }
  bool covered(int cell) const { return seenAt(cell) != cell; }
  bool isSelected(int cell) const {
    return std::find(selected.begin(), selected.end(), cell) != selected.end();
  }
  void click(int place) {
    const int cell = seenAt(place);
    if (!kind.contains(cell)) return;
    if (isSelected(cell)) {
      selected.erase(std::find(selected.begin(), selected.end(), cell));
    } else if (selected.size() < 2 && free(cell)) {
      selected.push_back(cell);
    }
  }
  void remove() {
    if (selected.size() != 2) return;
    if (kind.at(selected[0]) == kind.at(selected[1])) {
      kind.erase(selected[0]);
      kind.erase(selected[1]);
    }
    selected.clear();
  }
  /// How many stand of each kind.
  std::array<int, 30> left() const {
    std::array<int, 30> counts{};
    for (const auto& tile : kind) ++counts.at(static_cast<std::size_t>(tile.second));
    return counts;
  }
  std::vector<int> choices() const {
    std::vector<int> cells;
    for (const auto& [cell, ignored] : kind) {
      if (free(cell) && !covered(cell)) cells.push_back(cell);
    }
    return cells;
  }
};

class MahjonggTable : public TableTest {
 protected:
  /// A board is laid; the tiles are read from the cells.
  void readBoard() {
    std::set<int> different;
    plain = {};
    for (int cell = 1; cell <= 120; ++cell) {
      const PictureId& tile = element("Commah", cell).Picture;
      ASSERT_EQ(tile.store().name, "PICMAH");
      different.insert(tile.index());
      plain.kind[cell] = tile.index() < 80 ? tile.index() % 20 : 20 + (tile.index() - 80) % 10;
      lastKind_[cell] = plain.kind[cell];
    }
    EXPECT_EQ(different.size(), 120U);
  }
  void expectSeen(std::optional<int> searched = {}) {
    for (int cell = 1; cell <= 120; ++cell) {
      const Control& tile = element("Commah", cell);
      const bool lit = searched && lastKind_.at(cell) == *searched && !plain.isSelected(cell);
      EXPECT_EQ(tile.Visible, plain.kind.contains(cell)) << cell;
      EXPECT_EQ(tile.BackColor, plain.isSelected(cell) ? Colour(kRed)
                                : lit                  ? Colour(kYellow)
                                : cell <= 80           ? Colour(0xD0D0D0)
                                                       : Colour(kWhite))
          << cell;
    }
    const auto left = plain.left();
    for (int kind = 0; kind < 30; ++kind) {
      const int standing = left.at(static_cast<std::size_t>(kind));
      const Control& row = element("labmah", kind);
      const bool lit = !plain.selected.empty() && plain.kind.at(plain.selected[0]) == kind;
      EXPECT_EQ(row.Caption, std::to_string(standing));
      EXPECT_EQ(row.Visible, standing > 0) << kind;
      EXPECT_EQ(row.BackColor, Colour(lit ? kRed : kWhite)) << kind;
      EXPECT_EQ(row.ForeColor, Colour(lit ? kYellow : kBlack)) << kind;
    }
    EXPECT_EQ(control("CERPEDMAH").Enabled, plain.selected.size() == 1);
    EXPECT_EQ(control("ELPEDMAH").Enabled, plain.selected.size() == 2);
  }

  // The same click in the room and in the reckoning.
  void clickCell(int cell) {
    click(middleOf(element("Commah", cell)));
    plain.click(cell);
  }
  void remove() {
    click("ELPEDMAH");
    plain.remove();
  }
  /// The search lights the tiles like the selected one for as long as it is held.
  void search(MouseButton button) {
    std::optional<int> kind;
    if (plain.selected.size() == 1) kind = plain.kind.at(plain.selected[0]);
    press(middleOf(control("CERPEDMAH")), button);
    expectSeen(kind);
    form().mouseMove(middleOf(element("Commah", 1)));
    expectSeen(kind);
    form().mouseUp(button);
    expectSeen();
  }
  void takeAway(int first, int second) {
    clickCell(first);
    clickCell(second);
    remove();
  }

  PlainBoard plain;

  /// An order of the tiles in which the board can be emptied, and the pairs to take, in that order.
  std::vector<int> solvableBoard(std::vector<std::pair<int, int>>& pairs) {
    for (;;) {
      PlainBoard board;
      for (int cell = 1; cell <= 120; ++cell) board.kind[cell] = 0;
      std::vector<int> tiles;
      for (int kind = 0; kind < 30; ++kind) {
        const auto four = tilesOf(kind);
        tiles.insert(tiles.end(), four.begin(), four.end());
      }
      std::vector<int> order(120);
      pairs.clear();
      while (!board.kind.empty()) {
        auto free = board.choices();
        if (free.size() < 2) break;
        std::shuffle(free.begin(), free.end(), engine);
        for (std::size_t i = 0; i < 2; ++i) {
          order.at(static_cast<std::size_t>(free[i] - 1)) = tiles.back();
          tiles.pop_back();
        }
        pairs.emplace_back(free[0], free[1]);
        board.kind.erase(free[0]);
        board.kind.erase(free[1]);
      }
      if (board.kind.empty()) return order;
    }
  }

 private:
  std::map<int, int> lastKind_;  // of all cells, those that are gone too
};

TEST_F(MahjonggTable, EachWayInLaysAnotherBoard) {
  for (int times = 0; times < 3; ++times) {
    const Point at = middleOf(element("commpr", 6));
    form().mouseMove(at);
    form().mouseDown(MouseButton::Left);
    EXPECT_EQ(room("screen"), "Frame7");
    form().mouseUp(MouseButton::Left);
    readBoard();
    expectSeen();
    for (const int standing : plain.left()) EXPECT_EQ(standing, 4);
    clickCell(1);
    clickCell(8);
    expectSeen();
    if (times == 1) {
      click("ALTRAPARTITAMAH");
      readBoard();
      expectSeen();
    }
    click("Command17");
    EXPECT_EQ(room("screen"), "Frameprincipale");
  }
  room.expect({"Commah(0) Visible=0", "Commah(121) Visible=0", "Commah(120) MouseIcon=Label13",
               "CERPEDMAH MouseIcon=Label13", "ImAH Picture=ImAH", "IImAH(5) Picture=IImAH(5)",
               "IImAH(5) Top=6990", "IImAH(28) Top=1470", "Commah(81) Left=2280", "Commah(120) Top=4800"});
}

TEST_F(MahjonggTable, AnyClickOnManyBoardsDoesWhatTheReckoningSays) {
  constexpr int kBoards = kSanitized ? 30 : 1000;
  constexpr std::array kButtons{MouseButton::Left, MouseButton::Right, MouseButton::Middle};
  room.play({"click commpr(6)"});
  int removed = 0;
  for (int board = 0; board < kBoards; ++board) {
    if (board > 0) click("ALTRAPARTITAMAH");
    readBoard();
    const bool greedy = board % 2 == 0;
    for (int clicks = 0; clicks < 150; ++clicks) {
      const auto free = plain.choices();
      const auto before = plain.kind.size();
      if (free.empty()) break;
      if (greedy && plain.selected.size() == 1) {
        const auto like = [&](int cell) {
          return cell != plain.selected[0] && plain.kind.at(cell) == plain.kind.at(plain.selected[0]);
        };
        const auto found = std::find_if(free.begin(), free.end(), like);
        clickCell(found != free.end() ? *found : plain.selected[0]);
      } else if (plain.selected.size() == 2 && pick(3) != 0) {
        remove();
      } else {
        clickCell(greedy || pick(2) == 0 ? free.at(static_cast<std::size_t>(pick(free.size())))
                                         : 1 + pick(120));
      }
      removed += plain.kind.size() < before;
      expectSeen();
      if (pick(20) == 0) search(kButtons.at(static_cast<std::size_t>(pick(3))));
      ASSERT_FALSE(HasFailure()) << "board " << board << ", click " << clicks;
    }
  }
  EXPECT_GT(removed, kBoards * 5);
}

TEST_F(MahjonggTable, ABoardIsEmptiedToTheLastPair) {
  std::vector<std::pair<int, int>> pairs;
  std::vector<int> order = solvableBoard(pairs);
  room.queueCards(120, order);
  room.play({"click commpr(6)"});
  readBoard();
  for (const auto& [first, second] : pairs) {
    takeAway(first, second);
    expectSeen();
    ASSERT_FALSE(HasFailure());
  }
  EXPECT_TRUE(plain.kind.empty());
  room.expect({"ELPEDMAH Enabled=0", "CERPEDMAH Enabled=0", "labmah(29) Visible=0", "ImAH Visible=1"});
  click("ALTRAPARTITAMAH");
  readBoard();
  expectSeen();
}

TEST_F(MahjonggTable, NeighboursOverlapAndTheLaterOneLiesOnTop) {
  room.play({"click commpr(6)"});
  readBoard();
  // Both at the edge of the board, one below the other: cells 1 and 9.
  const Control& upper = element("Commah", 1);
  const Control& lower = element("Commah", 9);
  ASSERT_EQ(upper.Top + upper.Height - lower.Top, 15);
  click(lower.origin() + Point{400, 7});
  plain.click(9);
  expectSeen();
  click(lower.origin() + Point{400, -1});
  plain.click(1);
  expectSeen();
}

TEST(MahjonggRules, SelectNothingWhereNoTileStands) {
  mahjongg::Mahjongg bare;
  bare.press(1);
  EXPECT_EQ(bare.selected(), 0);
}

}  // namespace
}  // namespace tombolario
