#include "toolkit/reading.hpp"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>

#include "toolkit/controls.hpp"
#include "toolkit/marks.hpp"

namespace tombolario {

namespace {

int right(const Box& box) { return box.left + box.width; }
int bottom(const Box& box) { return box.top + box.height; }

bool encloses(const Box& outer, const Box& inner) {
  return outer.left <= inner.left && outer.top <= inner.top && right(outer) >= right(inner) &&
         bottom(outer) >= bottom(inner);
}

Box common(const Box& a, const Box& b) {
  const int left = std::max(a.left, b.left);
  const int top = std::max(a.top, b.top);
  return {left, top, std::min(right(a), right(b)) - left, std::min(bottom(a), bottom(b)) - top};
}

/// Relative to the inside of its parent.
Box boxOf(const Control& control) { return {control.Left, control.Top, control.Width, control.Height}; }

/// In one line, without blanks around it.
std::string oneLine(const std::string& text) {
  std::string line;
  for (const char c : text) {
    const bool blank = c == ' ' || c == '\n';
    if (!blank) {
      line += c;
    } else if (!line.empty() && line.back() != ' ') {
      line += ' ';
    }
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

/// Parts of a name, the empty ones left out.
std::string joined(const std::string& before, const char* stop, const std::string& after) {
  return before.empty() || after.empty() ? before + after : before + stop + after;
}

std::string colourWord(Rgb colour) {
  const int red = static_cast<int>(colour >> 16 & 0xFF);
  const int green = static_cast<int>(colour >> 8 & 0xFF);
  const int blue = static_cast<int>(colour & 0xFF);
  const auto [low, high] = std::minmax({red, green, blue});
  const int spread = high - low;
  if (spread < 0x10) return high < 0x40 ? "nero" : high < 0xF0 ? "grigio" : "bianco";
  // Degrees round the circle of colours, from red by green and blue.
  const int hue = high == red     ? (360 + 60 * (green - blue) / spread) % 360
                  : high == green ? 120 + 60 * (blue - red) / spread
                                  : 240 + 60 * (red - green) / spread;
  const char* word = hue < 15    ? "rosso"
                     : hue < 45  ? "arancione"
                     : hue < 70  ? "giallo"
                     : hue < 165 ? "verde"
                     : hue < 200 ? "azzurro"
                     : hue < 265 ? "blu"
                     : hue < 345 ? "viola"
                                 : "rosso";
  return low + high > 0x170 ? std::string(word) + " chiaro" : word;
}

std::string groundWords(Colour colour) {
  return colour == kMarked ? "segnata" : "fondo " + colourWord(colour.rgb());
}

/// A ground tells of a mark by another colour than it was made with, a loose frame by being there.
std::string marksOfGround(const Control& ground) {
  if (dynamic_cast<const Shape*>(&ground) != nullptr) {
    const bool filled = !(ground.FillColor.get() == ground.BackColor.get());
    const bool edged = !(ground.BorderColor.get() == ground.ForeColor.get());
    return joined(filled ? groundWords(ground.FillColor) : "", ", ",
                  edged ? "bordo " + colourWord(ground.BorderColor.get().rgb()) : "");
  }
  const bool loose = dynamic_cast<const Frame*>(&ground) != nullptr && ground.children().empty();
  const bool marks = loose || !(ground.BackColor.get() == ground.backAtRest());
  return marks ? groundWords(ground.BackColor) : "";
}

/// How the games mark a control: by its own colour, a picture by that of the ground on which it lies, too.
std::string marksOf(const Control& control) {
  const bool told = control.role() == Role::Tile || !(control.BackColor.get() == control.backAtRest());
  std::string marks = told ? groundWords(control.BackColor) : "";
  if (control.role() != Role::Picture) return marks;
  marks = joined(marks, ", ", marksOfGround(*control.parent()));
  for (const Control* ground : control.parent()->children()) {
    if (ground->role() == Role::Ground && ground->Visible && encloses(boxOf(*ground), boxOf(control)))
      marks = joined(marks, ", ", marksOfGround(*ground));
  }
  return marks;
}

std::string ownWords(const Control& control) {
  return joined(oneLine(control.Caption), ", ", control.Picture.get().words());
}

/// How far the middles of two boxes are from each other.
int distance(const Box& a, const Box& b) {
  return (std::abs(a.left + right(a) - b.left - right(b)) + std::abs(a.top + bottom(a) - b.top - bottom(b))) /
         2;
}

/// One of a row of buttons or numbers speaks of the picture that is nearest to it.
std::string pictureBeside(const Control& control) {
  const Control* nearest = nullptr;
  for (const Control* other : control.parent()->children()) {
    if (other->role() != Role::Picture || !other->Visible || ownWords(*other).empty()) continue;
    if (nearest == nullptr ||
        distance(boxOf(*other), boxOf(control)) < distance(boxOf(*nearest), boxOf(control)))
      nearest = other;
  }
  return nearest != nullptr ? joined(ownWords(*nearest), ", ", marksOf(*nearest)) : "";
}

/// A number speaks of the label that it continues.
std::string labelBefore(const Control& control) {
  for (const Control* other : control.parent()->children()) {
    if (other != &control && other->role() == Role::Text && other->Visible &&
        other->Top == control.Top.get() &&
        std::abs(right(boxOf(*other)) - control.Left) <= 2 * kTwipsPerPixel)
      return oneLine(other->Caption);
  }
  return "";
}

class Reader {
 public:
  void read(const Control& parent, const Box& clip) {
    for (const Control* child : parent.children()) {
      if (!child->Visible) continue;
      const Point at = child->origin();
      const Box seen = common({at.x, at.y, child->Width, child->Height}, clip);
      if (seen.width <= 0 || seen.height <= 0) continue;
      std::erase_if(readings_, [&](const Reading& below) { return encloses(seen, below.box); });
      add(*child, seen);
      read(*child, seen);
    }
  }

  std::vector<Reading> inOrder() {
    std::vector<Reading> ordered;
    std::stable_sort(readings_.begin(), readings_.end(),
                     [](const Reading& a, const Reading& b) { return a.box.top < b.box.top; });
    for (auto row = readings_.begin(); row != readings_.end();) {
      const Box first = row->box;
      const auto next = std::find_if(row, readings_.end(), [&](const Reading& reading) {
        return reading.box.top >= first.top + std::min(first.height, reading.box.height) / 2;
      });
      std::stable_sort(row, next, [](const Reading& a, const Reading& b) { return a.box.left < b.box.left; });
      row = next;
    }
    for (const Reading& reading : readings_) {
      if (reading.group != nullptr) continue;
      ordered.push_back(reading);
      for (const Reading& option : readings_) {
        if (option.group == reading.control) ordered.push_back(option);
      }
    }
    return ordered;
  }

 private:
  void add(const Control& control, const Box& seen) {
    const std::string own = ownWords(control);
    const std::string about = control.about();
    const std::string marks = marksOf(control);
    const Role role = control.role();
    switch (role) {
      case Role::Group: break;
      case Role::Ground: return addGround(control, seen, joined(about, ", ", own));
      case Role::Text: {
        if (own.empty()) return;
        std::string whose = about;
        if (control.name().inArray) whose = joined(pictureBeside(control), ", ", about);
        if (whose.empty()) whose = labelBefore(control);
        return push(control, role, seen, joined(joined(whose, ": ", own), ", ", marks));
      }
      case Role::Picture:
        if (own.empty()) return;
        return push(control, role, seen, joined(joined(about, ": ", own), ", ", marks));
      case Role::Tile: return push(control, role, seen, joined(own, ", ", placeOf(control) + ", " + marks));
      case Role::Button: {
        const std::string beside = control.name().inArray ? pictureBeside(control) : "";
        const std::string words = joined(own, ", ", marks);
        readings_.push_back({&control, role, seen, joined(words, ", ", beside), words});
        return;
      }
      case Role::Option: readings_.push_back({&control, role, seen, own, "", control.parent()}); return;
      case Role::Bar: readings_.push_back({&control, role, seen, about, ""}); return;
    }
  }

  /// A frame says its title, or is that of a group of options.
  void addGround(const Control& ground, const Box& seen, const std::string& words) {
    const auto& inside = ground.children();
    const bool group = std::any_of(inside.begin(), inside.end(),
                                   [](const Control* child) { return child->role() == Role::Option; });
    if (group) {
      readings_.push_back({&ground, Role::Group, seen, words, ""});
    } else if (!words.empty()) {
      push(ground, Role::Text, seen, words);
    }
  }

  void push(const Control& control, Role role, const Box& seen, const std::string& words) {
    readings_.push_back({&control, role, seen, words, words});
  }

  /// Where a tile lies among its fellows, standing or not: which of them are free, a player tells by that.
  std::string placeOf(const Control& tile) {
    auto& [lefts, tops] = places_[tile.parent()];
    if (lefts.empty()) {
      for (const Control* fellow : tile.parent()->children()) {
        if (fellow->role() != Role::Tile) continue;
        lefts.insert(fellow->Left);
        tops.insert(fellow->Top);
      }
    }
    const auto number = [](const std::set<int>& of, int place) {
      return std::to_string(1 + std::distance(of.begin(), of.find(place)));
    };
    return "fila " + number(tops, tile.Top) + ", posto " + number(lefts, tile.Left);
  }

  std::vector<Reading> readings_;
  std::map<const Control*, std::pair<std::set<int>, std::set<int>>> places_;
};

}  // namespace

std::vector<Reading> readingOf(const Form& form) {
  Reader reader;
  reader.read(form.inSight(), boxOf(form));
  return reader.inOrder();
}

}  // namespace tombolario
