#include "invariants.hpp"

#include <algorithm>
#include <bitset>
#include <cctype>
#include <set>
#include <string_view>

#include "pictures/catalogue.hpp"
#include "pieces/chain_set.hpp"
#include "pieces/domino_set.hpp"
#include "pieces/mahjongg_set.hpp"
#include "toolkit/reading.hpp"

namespace tombolario {

namespace {

using Check = std::function<std::string()>;

bool visible(const Control* control) { return control->Visible; }
long visibleOf(const Row& row) { return std::count_if(row.begin(), row.end(), visible); }
int numberOn(const Control* label) { return std::stoi(label->Caption.get()); }
std::string wordOn(const Control* result) {
  const std::string& caption = result->Caption;
  return caption == "HAI VINTO" ? "won" : caption == "HAI PERSO" ? "lost" : "drawn";
}

bool isNumber(std::string_view caption) {
  if (caption.substr(0, 1) == "-") caption.remove_prefix(1);
  return !caption.empty() &&
         std::all_of(caption.begin(), caption.end(), [](unsigned char c) { return std::isdigit(c); });
}

/// Cards or tiles of one game that are seen: each is there once.
class Seen {
 public:
  Seen(const PictureStore& store, int pack) : store_(store), pack_(pack) {}

  /// The number of what a control shows; reversed faces follow those that are not.
  int faceOn(const Control* control) const {
    const PictureId& picture = control->Picture;
    if (!picture || &picture.store() != &store_) complain(control);
    return picture.index();
  }
  void add(const Control* control) {
    auto seen = numbers_[static_cast<std::size_t>(faceOn(control) % pack_)];
    if (seen) complain(control);
    seen = true;
  }
  void add(const Row& row) {
    for (const Control* control : row) add(control);
  }

 private:
  [[noreturn]] static void complain(const Control* control) {
    throw Violation(control->name().text() + " shows " + control->Picture.get().name());
  }

  const PictureStore& store_;
  int pack_;
  std::bitset<kPieces> numbers_;
};

Check videoPoker(Form& form) {
  return [hand = row(form, "Pict", 0, 4), rows = row(form, "segn", 0, 10), change = form.find("Command3"),
          table = form.find("Frame3BIS"), summary = form.find("Framecen"),
          gain = form.find("Label6")]() -> std::string {
    const long lit = visibleOf(rows);
    require(lit <= 1, "a hand is paid twice");
    if (summary->Visible) return numberOn(gain) > 0 ? "run won" : "run lost";
    if (!table->Visible) return "";
    Seen(pictures::Picture1, 53).add(hand);
    require(lit == 0 || !change->Enabled, "a hand that is paid can be changed");
    return "";
  };
}

Check poker(Form& form) {
  return [player = row(form, "Pictt", 0, 4), computer = row(form, "Pictt", 10, 14),
          change = form.find("Command33"), next = form.find("Command11"), mark = form.find("Command22(0)"),
          result = form.find("result"), table = form.find("Frame2BIS")]() -> std::string {
    if (!table->Visible) return "";
    Seen cards(pictures::Picture11, 52);
    cards.add(player);
    const bool covered = computer.front()->Picture == PictureId(pictures::ufo);
    if (!covered) cards.add(computer);
    require(covered == mark->Visible, "the computer shows its cards before the player has changed");
    require(change->Enabled.get() == mark->Visible, "a hand is changed while it can be marked");
    if (result->Visible) require(!change->Enabled && !next->Enabled, "a match that is over goes on");
    return result->Visible ? "match " + wordOn(result) : "";
  };
}

/// The line is one chain; together with both hands it is the whole set.
Check domino(Form& form) {
  return [hand = row(form, "domin", 1, 14), buttons = row(form, "LEF", 1, 14),
          line = row(form, "VISUAL", 0, 60), pass = form.find("passadomban"),
          computer = form.find("Commdomban"), result = form.find("NUOVAPARDOM"),
          playerHas = form.find("domcont1"), computerHas = form.find("domcont2"),
          leftEnd = form.find("wwwdom2"), rightEnd = form.find("wwwdom"), bar = form.find("HScrolldom"),
          leave = form.find("FINEDOM"), table = form.find("Frame5BIS")]() -> std::string {
    const auto box = [&line](int number) { return line.at(static_cast<std::size_t>(number)); };
    require(pass->Enabled + computer->Enabled + result->Visible <= 1, "it is nobody's turn, or two turns");
    require(visibleOf(line) == 1 && box(bar->Value)->Visible, "the bar and the line differ");
    if (!table->Visible) return "";

    const auto isBlank = [](const Control* end) {
      return end->Picture == PictureId(pictures::domin, kFaces);
    };
    const int first = bar->Min - !isBlank(leftEnd);
    const int last = bar->Max + !isBlank(rightEnd);
    Seen tiles(pictures::dominob, kTiles);
    for (int number = first; number <= last; ++number) tiles.add(box(number));
    for (int number = first + 1; number <= last; ++number) {
      const Tile& before = kFaceNumbers[tiles.faceOn(box(number - 1))];
      require(before.second == kFaceNumbers[tiles.faceOn(box(number))].first,
              "neighbours in the line do not match");
    }
    for (const Control* tile : hand) {
      if (tile->Visible) tiles.add(tile);
    }
    require(visibleOf(hand) == visibleOf(buttons) && visibleOf(hand) == numberOn(playerHas),
            "the player's tiles are miscounted");
    require(last - first + 1 + numberOn(playerHas) + numberOn(computerHas) == kTiles, "a tile is lost");
    if (!result->Visible) return "";
    return (leave->BackColor == Colour(kRed) ? "match " : "game ") + wordOn(result);
  };
}

Check chain(Form& form) {
  return [onTable = row(form, "pictca", 1, 5), marks = row(form, "Sh", 1, 5), full = form.find("Lok"),
          linked = form.find("Lll1"), next = form.find("nmcat"), left = form.find("Lmacatpu"),
          score = form.find("Lpuca"), table = form.find("Frame4BIS")]() -> std::string {
    const auto exchanged = [](const Control* mark) { return mark->BorderColor == Colour(kRed); };
    const auto substituted = [](const Control* mark) { return mark->FillColor == Colour(0xFFFF80); };
    require(std::count_if(marks.begin(), marks.end(), exchanged) <= 2, "three tiles to exchange");
    require(std::count_if(marks.begin(), marks.end(), substituted) <= 2, "three tiles to substitute");
    const bool levelIsOver = !next->Enabled && left->Caption == "10";
    if (!table->Visible) return !levelIsOver ? "" : numberOn(score) >= 30 ? "level won" : "level lost";

    Seen tiles(pictures::Picture2, kChainTiles);
    tiles.add(onTable);
    int links = 0;
    for (std::size_t i = 1; i < onTable.size(); ++i) {
      links += kChainSet[tiles.faceOn(onTable[i - 1])].second == kChainSet[tiles.faceOn(onTable[i])].first;
    }
    require(numberOn(linked) == links && full->Visible == (links == 4), "the links are miscounted");
    require(numberOn(left) >= 1 && numberOn(left) <= 10, "a level of more than ten hands");
    return "";
  };
}

Check ramino(Form& form) {
  return [player = row(form, "ramin", 0, 8), computer = row(form, "ramin", 10, 20),
          list = row(form, "visualram", 0, 36),
          ends = Row{form.find("ramvin"), form.find("ramper"), form.find("rampar")},
          inPlay = form.find("ramin(9)"), fromStock = form.find("Ramfr(9)"),
          fromTable = form.find("Frame19b"), onTable = form.find("cartatr"), bar = form.find("VScrollram1"),
          draw = form.find("mazzoram"), leave = form.find("ramlas"), turn = form.find("ramturncom"),
          button = form.find("ramCom(0)"), goOn = form.find("Continuaramino")]() -> std::string {
    const long ended = visibleOf(ends);
    require(ended <= 1, "a hand has two ends");
    require(draw->Enabled + leave->Enabled + turn->Enabled == 1 - ended, "it is nobody's turn, or two turns");
    require(button->Enabled == (ended == 0), "a hand that is over goes on");

    Seen cards(pictures::ramcar, 52);
    cards.add(player);
    cards.add(computer);
    cards.add(onTable);
    if (fromStock->Visible) cards.add(inPlay);
    if (fromTable->Visible) require(inPlay->Picture == onTable->Picture.get(), "another card was taken");
    const long seen = visibleOf(list);
    require(seen <= 1, "two entries of a list at once");
    // A card that was just covered stays on view until the turn is done.
    const int covered = seen == 0 ? 0 : bar->Max + !fromStock->Visible;
    for (int i = 0; i < covered; ++i) cards.add(list.at(static_cast<std::size_t>(i)));
    if (ended == 0) return "";
    const char* how = ends[0]->Visible ? "won" : ends[1]->Visible ? "lost" : "drawn";
    return std::string(goOn->Visible ? "hand " : "match ") + how;
  };
}

Check mahjongg(Form& form) {
  return [cells = row(form, "Commah", 1, 120), bench = row(form, "labmah", 0, kKinds - 1),
          search = form.find("CERPEDMAH"), remove = form.find("ELPEDMAH"),
          screen = form.find("Frame7")]() -> std::string {
    if (!screen->Visible) return "";
    const auto selected = [](const Control* cell) { return cell->BackColor == Colour(kRed); };
    const auto chosen = std::count_if(cells.begin(), cells.end(), selected);
    require(search->Enabled == (chosen == 1) && remove->Enabled == (chosen == 2),
            "the selection is miscounted");
    Seen tiles(pictures::PICMAH, kPieces);
    std::array<int, kKinds> left{};
    for (const Control* cell : cells) {
      if (!cell->Visible) continue;
      tiles.add(cell);
      ++left.at(static_cast<std::size_t>(kindOfPiece(tiles.faceOn(cell))));
    }
    for (std::size_t kind = 0; kind < left.size(); ++kind) {
      require(left[kind] % 2 == 0 && numberOn(bench[kind]) == left[kind], "a kind is miscounted");
      require(bench[kind]->Visible == (left[kind] > 0), "a kind that is gone is seen");
    }
    if (chosen > 0 || !freeAlike(cells).empty()) return "";
    return visibleOf(cells) == 0 ? "board won" : "board lost";
  };
}

/// What can be pressed has a name and can be heard where it is, and nothing else can.
void checkReading(Form& room) {
  std::set<const Control*> heard;
  for (const Reading& reading : readingOf(room)) {
    if (reading.name.empty()) throw Violation(reading.control->name().text() + " has no name");
    heard.insert(reading.control);
  }
  for (Control* control : room.controls()) {
    const Role role = control->role();
    if (role != Role::Button && role != Role::Tile && role != Role::Option && role != Role::Bar) continue;
    const Point middle = control->origin() + Point{control->Width / 2, control->Height / 2};
    if (heard.contains(control) != (room.at(middle) == control))
      throw Violation(control->name().text() + " is heard and not there, or there and not heard");
  }
}

}  // namespace

Invariants::Invariants(Form& room)
    : room_(room), games_{{"poker", poker(room)},   {"videopoker", videoPoker(room)},
                          {"domino", domino(room)}, {"chain", chain(room)},
                          {"ramino", ramino(room)}, {"mahjongg", mahjongg(room)}} {
  require(std::ssize(games_) == pictures::commpr.count, "tests/invariants.cpp does not know the last game");
  screens_.assign(room.children().begin(), room.children().end());
  for (const char* name : {"Label2", "Label5", "Label6", "hum1", "comp1", "scoredom1", "scoredom2",
                           "domcont1", "domcont2", "PRAMC", "PRAMH", "Lpuca", "Lmacatpu", "Llivpuca",
                           "Label3ca", "Label10ca", "Label14ca", "SCALABELCAT", "Lll1"}) {
    counts_.push_back(room.find(name));
  }
  const Row counters = row(room, "peddom", 0, 2 * kNumbers - 1);
  counts_.insert(counts_.end(), counters.begin(), counters.end());
}

void Invariants::check() {
  if (checks_++ % 50 == 0) checkReading(room_);
  if (visibleOf(screens_) != 1) {
    std::string names;
    for (const Control* screen : screens_) names += screen->Visible ? screen->name().text() + ' ' : "";
    throw Violation("not one screen in sight but these: " + names);
  }
  for (const Control* label : counts_) {
    const std::string& caption = label->Caption;
    if (!caption.empty() && !isNumber(caption)) throw Violation(label->name().text() + " says " + caption);
  }
  for (Game& game : games_) {
    const std::string end = game.check();
    if (!end.empty() && end != game.end) ++reached_[game.name + ' ' + end];
    game.end = end;
  }
}

}  // namespace tombolario
