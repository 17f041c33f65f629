#include "player.hpp"

#include <algorithm>
#include <initializer_list>

#include "pieces/cards.hpp"
#include "pieces/chain_set.hpp"
#include "pieces/domino_set.hpp"
#include "pieces/mahjongg_set.hpp"
#include "ramino/tris.hpp"
#include "toolkit/marks.hpp"

namespace tombolario {

namespace {

using Moves = std::function<Row()>;

bool open(const Control* button) { return button->onView() && button->operable(); }
bool isMarked(const Control* ground) { return ground->BackColor == Colour(kMarked); }
int faceOn(const Control* control) { return control->Picture.get().index(); }

/// Those of the buttons that can be pressed.
Moves buttons(Form& form, std::initializer_list<const char*> names, Row all = {}) {
  for (const char* name : names) all.push_back(form.find(name));
  return [all] {
    Row found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found), open);
    return found;
  };
}

/// Keeps the joker and cards of one value, and changes the others.
Moves changing(Form& form, const char* card, const char* ground, const char* mark, const char* change) {
  return [cards = row(form, card, 0, 4), grounds = row(form, ground, 0, 4), marks = row(form, mark, 0, 4),
          done = form.find(change)]() -> Row {
    if (!open(done)) return {};
    for (std::size_t i = 0; i < cards.size(); ++i) {
      const auto alike = [&](const Control* other) {
        return faceOn(other) % kValues == faceOn(cards[i]) % kValues;
      };
      const bool alone = faceOn(cards[i]) != kJoker && std::count_if(cards.begin(), cards.end(), alike) == 1;
      if (alone != isMarked(grounds[i])) return {marks[i]};
    }
    return {done};
  };
}

int linksOf(const std::vector<int>& tiles) {
  int links = 0;
  for (std::size_t i = 1; i < tiles.size(); ++i)
    links += kChainSet[tiles[i - 1]].second == kChainSet[tiles[i]].first;
  return links;
}

/// Substitutes a tile that has no link, and exchanges those two that bring most links.
Moves chaining(Form& form) {
  return
      [onTable = row(form, "pictca", 1, 5), marks = row(form, "Sh", 1, 5), swaps = row(form, "Comscam", 1, 5),
       drops = row(form, "Comsost", 1, 5), substitute = form.find("SOSTITCAT"),
       exchange = form.find("SCAMBIA"), next = form.find("nmcat")]() -> Row {
        if (!open(next)) return {};
        std::vector<int> tiles;
        for (const Control* tile : onTable) tiles.push_back(faceOn(tile));
        if (open(substitute)) {
          for (std::size_t i = 0; i < tiles.size(); ++i) {
            const bool alone = (i == 0 || linksOf({tiles[i - 1], tiles[i]}) == 0) &&
                               (i + 1 == tiles.size() || linksOf({tiles[i], tiles[i + 1]}) == 0);
            const bool marked = marks[i]->FillColor == Colour(0xFFFF80);
            if (alone && !marked && !(substitute->BackColor == Colour(kYellow))) return {drops[i]};
          }
          if (substitute->BackColor == Colour(kYellow)) return {substitute};
        }
        Row best{next};
        for (std::size_t a = 0, most = static_cast<std::size_t>(linksOf(tiles));
             open(swaps[0]) && a < tiles.size(); ++a) {
          for (std::size_t b = a + 1; b < tiles.size(); ++b) {
            auto changed = tiles;
            std::swap(changed[a], changed[b]);
            if (static_cast<std::size_t>(linksOf(changed)) <= most) continue;
            most = static_cast<std::size_t>(linksOf(changed));
            best = {exchange};
            for (std::size_t i = 0; i < tiles.size(); ++i) {
              if ((i == a || i == b) != (marks[i]->BorderColor == Colour(kRed))) best = {swaps[i]};
            }
          }
        }
        return best;
      };
}

/// Lays the tile that leaves open what the player holds and the computer does not, and begins anew where the
/// match is over.
Moves laying(Form& form) {
  return [hand = row(form, "domin", 1, 14), left = row(form, "LEF", 1, 14), right = row(form, "RIGHT", 1, 14),
          counts = row(form, "peddom", 0, 2 * kNumbers - 1), leave = form.find("FINEDOM")]() -> Row {
    if (!open(leave)) return {};
    if (leave->BackColor == Colour(kRed)) return {leave};
    const auto value = [&](std::int16_t number) {
      const auto place = static_cast<std::size_t>(number);
      return std::stoi(counts[place]->Caption.get()) - std::stoi(counts[place + kNumbers]->Caption.get());
    };
    Row best;
    int most = -kTiles;
    for (std::size_t i = 0; i < hand.size(); ++i) {
      if (!open(left[i]) || !(left[i]->BackColor == Colour(kYellow))) continue;
      const Tile& tile = kFaceNumbers[faceOn(hand[i])];
      for (const auto& [fits, stays] :
           {std::pair(tile.first, tile.second), std::pair(tile.second, tile.first)}) {
        const bool isOpen = counts[static_cast<std::size_t>(fits)]->BackColor == Colour(kRed);
        if (!isOpen || value(stays) - value(fits) <= most) continue;
        most = value(stays) - value(fits);
        best = {left[i], right[i]};
      }
    }
    return best;
  };
}

bool areTris(int a, int b, int c) {
  return ramino::isSet(a, b, c) || ramino::isRun(a, b, c) || ramino::isHighRun(a, b, c);
}

/// Calls the function with each three of the numbers below n.
template <class Function>
void eachThree(std::size_t n, Function function) {
  for (std::size_t a = 0; a < n; ++a) {
    for (std::size_t b = a + 1; b < n; ++b) {
      for (std::size_t c = b + 1; c < n; ++c) function(a, b, c);
    }
  }
}

/// More for each pair that may become a `tris`, most for each that is one.
int worth(const std::vector<int>& hand) {
  int sum = 0;
  for (const int a : hand) {
    for (const int b : hand) {
      const int apart = std::abs(cardValue(a) - cardValue(b));
      sum += apart == 0 || (cardSuit(a) == cardSuit(b) && (apart <= 2 || apart >= 11));
    }
  }
  eachThree(hand.size(), [&](auto a, auto b, auto c) { sum += 20 * areTris(hand[a], hand[b], hand[c]); });
  return sum;
}

/// Presses three cards that are a `tris`, and keeps what is worth most.
Moves collecting(Form& form) {
  return [cards = row(form, "ramin", 0, 8), grounds = row(form, "Ramfr", 0, 8),
          presses = row(form, "ramCom", 0, 8), taken = form.find("ramin(9)"), leave = form.find("ramlas"),
          onTable = form.find("cartatr"), draw = form.find("mazzoram"), take = form.find("tavoloram"),
          over = buttons(form, {"ramturncom", "Continuaramino"}), again = form.find("ALTRORAM")]() -> Row {
    if (!open(again)) return {};
    std::vector<std::size_t> loose;
    std::vector<int> hand;
    for (std::size_t i = 0; i < cards.size(); ++i) {
      if (grounds[i]->BackColor == Colour(kYellow)) continue;
      loose.push_back(i);
      hand.push_back(faceOn(cards[i]));
    }
    // The button of the card that had better be another one.
    const auto worseThan = [&](int card) {
      const Control* worst = nullptr;
      for (std::size_t i = 0, most = static_cast<std::size_t>(worth(hand)); i < hand.size(); ++i) {
        auto changed = hand;
        changed[i] = card;
        const auto found = static_cast<std::size_t>(worth(changed));
        if (found > most) worst = presses[loose[i]];
        most = std::max(most, found);
      }
      return worst;
    };
    if (open(leave)) {
      const Control* worst = worseThan(faceOn(taken));
      return {worst != nullptr ? worst : leave};
    }
    Row next = over();
    if (open(take)) next = {worseThan(faceOn(onTable)) != nullptr ? take : draw};
    eachThree(hand.size(), [&](auto a, auto b, auto c) {
      if (!open(presses[0]) || !areTris(hand[a], hand[b], hand[c])) return;
      for (std::size_t i = 0; i < hand.size(); ++i) {
        if (isMarked(grounds[loose[i]]) != (i == a || i == b || i == c)) next = {presses[loose[i]]};
      }
    });
    return next.empty() ? Row{again} : next;
  };
}

/// Takes away two tiles that are alike and free, or lays another board.
Moves pairing(Form& form) {
  return [cells = row(form, "Commah", 1, 120), remove = form.find("ELPEDMAH"),
          again = form.find("ALTRAPARTITAMAH")] {
    if (!open(again)) return Row();
    if (open(remove)) return Row{remove};
    const auto red = [](const Control* cell) { return cell->BackColor == Colour(kRed); };
    const auto selected = std::find_if(cells.begin(), cells.end(), red);
    auto pairs = freeAlike(cells);
    if (selected != cells.end()) {
      for (Row& pair : pairs) {
        if (std::erase(pair, *selected) > 0) return pair;
      }
      return Row{*selected};
    }
    return pairs.empty() ? Row{again} : pairs.front();
  };
}

}  // namespace

Row row(Form& form, const std::string& name, int first, int last) {
  Row found;
  for (int i = first; i <= last; ++i) found.push_back(form.find(name + '(' + std::to_string(i) + ')'));
  return found;
}

std::vector<Row> freeAlike(const Row& cells) {
  std::vector<Row> kinds(kKinds);
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const std::size_t column = i % (i < 80 ? 8 : 4);
    const bool atEdge = column == 0 || column == (i < 80 ? 7 : 3);
    const bool isFree = atEdge || !cells[i - 1]->Visible || !cells[i + 1]->Visible;
    if (cells[i]->Visible && isFree)
      kinds.at(static_cast<std::size_t>(kindOfPiece(faceOn(cells[i])))).push_back(cells[i]);
  }
  std::erase_if(kinds, [](const Row& kind) { return kind.size() < 2; });
  return kinds;
}

Player::Player(Form& room)
    : games_{changing(room, "Pict", "Frame1", "Command2", "Command3"),
             changing(room, "Pictt", "Frame11", "Command22", "Command33"),
             laying(room),
             chaining(room),
             collecting(room),
             pairing(room)} {
  // What carries a game on where there is nothing to think about; what drops a match, where it is over.
  Row options;
  std::copy_if(room.controls().begin(), room.controls().end(), std::back_inserter(options),
               [](const Control* control) { return control->role() == Role::Option; });
  games_.push_back(buttons(
      room,
      {"Command44", "Command11", "Command8", "Command9", "Command4", "Command7", "Command1", "giocodom",
       "passadomban", "Commdomban", "NUOVAPARDOM", "INICAT", "CoNTCAT", "CARCAT", "SALVACAT", "GIOCORAM"},
      options));
  games_.emplace_back([over = room.find("result"), again = room.find("Command15")] {
    return over->onView() ? Row{again} : Row{};
  });
}

Row Player::moves() const {
  Row all;
  for (const auto& game : games_) {
    const Row moves = game();
    all.insert(all.end(), moves.begin(), moves.end());
  }
  return all;
}

}  // namespace tombolario
