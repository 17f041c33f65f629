#include "invariants.hpp"

#include <algorithm>
#include <bitset>
#include <cctype>
#include <string_view>

#include "pictures/catalogue.hpp"
#include "shell/chain_set.hpp"
#include "shell/domino_set.hpp"
#include "shell/mahjongg_set.hpp"

namespace tombolario {

namespace {

using Row = std::vector<const Control*>;

/// The controls of an array, from one index to another.
Row row(Form& form, const std::string& name, int first, int last) {
  Row found;
  for (int i = first; i <= last; ++i) found.push_back(form.find(name + '(' + std::to_string(i) + ')'));
  return found;
}

bool visible(const Control* control) { return control->Visible; }
long visibleOf(const Row& row) { return std::count_if(row.begin(), row.end(), visible); }
int numberOn(const Control* label) { return std::stoi(label->Caption.get()); }

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

class VideoPoker : public Invariant {
 public:
  explicit VideoPoker(Form& form)
      : hand_(row(form, "Pict", 0, 4)),
        rows_(row(form, "segn", 0, 10)),
        change_(form.find("Command3")),
        table_(form.find("Frame3BIS")) {}

  void check() override {
    const long lit = visibleOf(rows_);
    require(lit <= 1, "a hand is paid twice");
    if (!table_->Visible) return;
    Seen(pictures::Picture1, 53).add(hand_);
    require(lit == 0 || !change_->Enabled, "a hand that is paid can be changed");
    count(lit == 1);
  }

 private:
  Row hand_, rows_;
  const Control* change_;
  const Control* table_;
};

class Poker : public Invariant {
 public:
  explicit Poker(Form& form)
      : player_(row(form, "Pictt", 0, 4)),
        computer_(row(form, "Pictt", 10, 14)),
        change_(form.find("Command33")),
        next_(form.find("Command11")),
        mark_(form.find("Command22(0)")),
        result_(form.find("result")),
        table_(form.find("Frame2BIS")) {}

  void check() override {
    if (!table_->Visible) return;
    Seen cards(pictures::Picture11, 52);
    cards.add(player_);
    const bool covered = computer_.front()->Picture == PictureId(pictures::ufo);
    if (!covered) cards.add(computer_);
    require(covered == mark_->Visible, "the computer shows its cards before the player has changed");
    require(change_->Enabled.get() == mark_->Visible, "a hand is changed while it can be marked");
    if (result_->Visible) require(!change_->Enabled && !next_->Enabled, "a match that is over goes on");
    count(result_->Visible);
  }

 private:
  Row player_, computer_;
  const Control* change_;
  const Control* next_;
  const Control* mark_;
  const Control* result_;
  const Control* table_;
};

class Domino : public Invariant {
 public:
  explicit Domino(Form& form)
      : hand_(row(form, "domin", 1, 14)),
        left_(row(form, "LEF", 1, 14)),
        line_(row(form, "VISUAL", 0, 60)),
        pass_(form.find("passadomban")),
        computer_(form.find("Commdomban")),
        result_(form.find("NUOVAPARDOM")),
        playerHas_(form.find("domcont1")),
        computerHas_(form.find("domcont2")),
        leftEnd_(form.find("wwwdom2")),
        rightEnd_(form.find("wwwdom")),
        bar_(form.find("HScrolldom")),
        table_(form.find("Frame5BIS")) {}

  void check() override {
    require(pass_->Enabled + computer_->Enabled + result_->Visible <= 1, "it is nobody's turn, or two turns");
    require(visibleOf(line_) == 1 && box(bar_->Value)->Visible, "the bar and the line differ");
    if (!table_->Visible) return;
    checkTiles();
    count(result_->Visible);
  }

 private:
  const Control* box(int number) const { return line_.at(static_cast<std::size_t>(number)); }

  /// The line is one chain; together with both hands it is the whole set.
  void checkTiles() const {
    constexpr int kHand = 14;
    const auto isBlank = [](const Control* end) {
      return end->Picture == PictureId(pictures::domin, kFaces);
    };
    const int first = bar_->Min - !isBlank(leftEnd_);
    const int last = bar_->Max + !isBlank(rightEnd_);
    Seen tiles(pictures::dominob, kTiles);
    for (int number = first; number <= last; ++number) {
      tiles.add(box(number));
      if (number == first) continue;
      require(
          kFaceNumbers[tiles.faceOn(box(number - 1))].second == kFaceNumbers[tiles.faceOn(box(number))].first,
          "neighbours in the line do not match");
    }
    for (const Control* tile : hand_) {
      if (tile->Visible) tiles.add(tile);
    }
    require(visibleOf(hand_) == visibleOf(left_) && visibleOf(hand_) == numberOn(playerHas_),
            "the player's tiles are miscounted");
    require(last - first + 1 == 2 * kHand - numberOn(playerHas_) - numberOn(computerHas_), "a tile is lost");
  }

  Row hand_, left_, line_;
  const Control* pass_;
  const Control* computer_;
  const Control* result_;
  const Control* playerHas_;
  const Control* computerHas_;
  const Control* leftEnd_;
  const Control* rightEnd_;
  const Control* bar_;
  const Control* table_;
};

class Chain : public Invariant {
 public:
  explicit Chain(Form& form)
      : tiles_(row(form, "pictca", 1, 5)),
        marks_(row(form, "Sh", 1, 5)),
        full_(form.find("Lok")),
        links_(form.find("Lll1")),
        count_(form.find("nmcat")),
        left_(form.find("Lmacatpu")),
        table_(form.find("Frame4BIS")) {}

  void check() override {
    const auto exchanged = [](const Control* mark) { return mark->BorderColor == Colour(kRed); };
    const auto substituted = [](const Control* mark) { return mark->FillColor == Colour(0xFFFF80); };
    require(std::count_if(marks_.begin(), marks_.end(), exchanged) <= 2, "three tiles to exchange");
    require(std::count_if(marks_.begin(), marks_.end(), substituted) <= 2, "three tiles to substitute");
    count(!count_->Enabled && left_->Caption == "10");
    if (!table_->Visible) return;
    Seen tiles(pictures::Picture2, kChainTiles);
    tiles.add(tiles_);
    int links = 0;
    for (std::size_t i = 1; i < tiles_.size(); ++i) {
      links += kChainSet[tiles.faceOn(tiles_[i - 1])].second == kChainSet[tiles.faceOn(tiles_[i])].first;
    }
    require(numberOn(links_) == links && full_->Visible == (links == 4), "the links are miscounted");
    require(numberOn(left_) >= 1 && numberOn(left_) <= 10, "a level of more than ten hands");
  }

 private:
  Row tiles_, marks_;
  const Control* full_;
  const Control* links_;
  const Control* count_;
  const Control* left_;
  const Control* table_;
};

class Ramino : public Invariant {
 public:
  explicit Ramino(Form& form)
      : player_(row(form, "ramin", 0, 8)),
        computer_(row(form, "ramin", 10, 20)),
        list_(row(form, "visualram", 0, 36)),
        ends_{form.find("ramvin"), form.find("ramper"), form.find("rampar")},
        inPlay_(form.find("ramin(9)")),
        fromStock_(form.find("Ramfr(9)")),
        fromTable_(form.find("Frame19b")),
        onTable_(form.find("cartatr")),
        bar_(form.find("VScrollram1")),
        draw_(form.find("mazzoram")),
        leave_(form.find("ramlas")),
        turn_(form.find("ramturncom")),
        button_(form.find("ramCom(0)")) {}

  void check() override {
    const long ended = visibleOf(ends_);
    require(ended <= 1, "a hand has two ends");
    require(draw_->Enabled + leave_->Enabled + turn_->Enabled == 1 - ended,
            "it is nobody's turn, or two turns");
    require(button_->Enabled == (ended == 0), "a hand that is over goes on");
    checkCards();
    count(ended == 1);
  }

 private:
  void checkCards() const {
    Seen cards(pictures::ramcar, 52);
    cards.add(player_);
    cards.add(computer_);
    cards.add(onTable_);
    if (fromStock_->Visible) cards.add(inPlay_);
    if (fromTable_->Visible) require(inPlay_->Picture == onTable_->Picture.get(), "another card was taken");
    const long seen = visibleOf(list_);
    require(seen <= 1, "two entries of a list at once");
    // A card that was just covered stays on view until the turn is done.
    const int covered = seen == 0 ? 0 : bar_->Max + !fromStock_->Visible;
    for (int i = 0; i < covered; ++i) cards.add(list_.at(static_cast<std::size_t>(i)));
  }

  Row player_, computer_, list_, ends_;
  const Control* inPlay_;
  const Control* fromStock_;
  const Control* fromTable_;
  const Control* onTable_;
  const Control* bar_;
  const Control* draw_;
  const Control* leave_;
  const Control* turn_;
  const Control* button_;
};

class Mahjongg : public Invariant {
 public:
  explicit Mahjongg(Form& form)
      : cells_(row(form, "Commah", 1, 120)),
        bench_(row(form, "labmah", 0, kKinds - 1)),
        search_(form.find("CERPEDMAH")),
        remove_(form.find("ELPEDMAH")),
        screen_(form.find("Frame7")) {}

  void check() override {
    if (!screen_->Visible) return;
    const auto selected = [](const Control* cell) { return cell->BackColor == Colour(kRed); };
    const auto chosen = std::count_if(cells_.begin(), cells_.end(), selected);
    require(search_->Enabled == (chosen == 1) && remove_->Enabled == (chosen == 2),
            "the selection is miscounted");
    Seen tiles(pictures::PICMAH, kPieces);
    std::array<int, kKinds> left{};
    for (const Control* cell : cells_) {
      if (!cell->Visible) continue;
      tiles.add(cell);
      ++left.at(static_cast<std::size_t>(kindOfPiece(tiles.faceOn(cell))));
    }
    for (std::size_t kind = 0; kind < left.size(); ++kind) {
      require(left[kind] % 2 == 0 && numberOn(bench_[kind]) == left[kind], "a kind is miscounted");
      require(bench_[kind]->Visible == (left[kind] > 0), "a kind that is gone is seen");
    }
    count(chosen == 2);
  }

 private:
  Row cells_, bench_;
  const Control* search_;
  const Control* remove_;
  const Control* screen_;
};

}  // namespace

Invariants::Invariants(Form& room)
    : games_{std::make_unique<Poker>(room),  std::make_unique<VideoPoker>(room),
             std::make_unique<Domino>(room), std::make_unique<Chain>(room),
             std::make_unique<Ramino>(room), std::make_unique<Mahjongg>(room)} {
  for (const Control* control : room.controls()) {
    if (control->parent() == &room) screens_.push_back(control);
  }
  require(screens_.size() == 12, "not twelve screens");
  for (const char* name : {"Label2", "Label5", "Label6", "hum1", "comp1", "scoredom1", "scoredom2",
                           "domcont1", "domcont2", "PRAMC", "PRAMH", "Lpuca", "Lmacatpu", "Llivpuca",
                           "Label3ca", "Label10ca", "Label14ca", "SCALABELCAT", "Lll1"}) {
    counts_.push_back(room.find(name));
  }
  const Row counters = row(room, "peddom", 0, 2 * kNumbers - 1);
  counts_.insert(counts_.end(), counters.begin(), counters.end());
}

void Invariants::check() {
  require(visibleOf(screens_) == 1, "not one screen");
  for (const Control* label : counts_) {
    const std::string& caption = label->Caption;
    if (!caption.empty() && !isNumber(caption)) throw Violation(label->name().text() + " says " + caption);
  }
  for (const auto& game : games_) game->check();
}

}  // namespace tombolario
