#include <algorithm>
#include <cstdlib>
#include <map>
#include <sstream>
#include <utility>

#include "driver/properties.hpp"
#include "session.hpp"

namespace tombolario {
namespace {

/// A room that tells after each command what has changed of all its controls and data files, and so what has
/// not.
class ToldRoom {
 public:
  std::string after(const std::string& command) {
    changes_.clear();
    if (values_.empty()) {
      if (command != "start") room_("start");
      look();
      if (command != "start") changes_.clear();
    }
    const std::string answer = carryOut(command);
    look();
    std::string told = answer == "ok" ? "" : "  " + answer + '\n';
    for (const Change& change : changes_) told += textOf(change);
    return told;
  }

 private:
  /// What has changed of a control, or of one property of an array: properties or indices, and their values.
  struct Change {
    std::string what;
    std::vector<std::pair<std::string, std::string>> values;
    int last;  // index
  };

  /// The driver's commands, and some beside: `click` clicks on all that are named, `press` presses their
  /// buttons even if they are disabled or out of sight, `cards N C...` deals those of a pack of N next, `file
  /// NAME V...` stores records, `repeat TIMES` stands before another.
  std::string carryOut(const std::string& command) {
    std::istringstream words(command);
    std::string word, name;
    words >> word;
    std::string answer = "ok";
    if (word == "press") {
      while (answer == "ok" && words >> name) answer = press(name);
    } else if (word == "click") {
      while (answer == "ok" && words >> name) answer = room_("click " + name);
    } else if (word == "repeat") {
      int times = 0;
      std::getline(words >> times, name);
      while (answer == "ok" && times-- > 0) answer = carryOut(name);
    } else if (word == "cards") {
      int pack = 0;
      std::vector<int> cards;
      words >> pack;
      for (int card = 0; words >> card;) cards.push_back(card);
      room_.queueCards(pack, cards);
    } else if (word == "file") {
      std::vector<std::int16_t> numbers;
      words >> name;
      for (std::int16_t number = 0; words >> number;) numbers.push_back(number);
      room_.dataFiles.write(name, numbers);
    } else {
      answer = room_(command);
    }
    return answer;
  }

  /// One control, or all of an array.
  std::string press(const std::string& name) {
    std::string answer = "error: unknown control: " + name;
    for (Control* control : room_.driver.form().controls()) {
      if (name.compare(0, name.find('('), control->name().base) != 0) continue;
      if (name != control->name().base && name != control->name().text()) continue;
      control->click();
      answer = "ok";
    }
    return answer;
  }

  void look() {
    std::size_t at = 0;
    for (const Control* control : room_.driver.form().controls()) {
      for (const PropertyReader& property : properties()) {
        std::string value = property.read(*control);
        // What is hidden from the beginning is told, too.
        if (at == values_.size()) values_.push_back(property.name == "Visible" ? "1" : value);
        if (value != values_[at]) note(control->name(), std::string(property.name), value);
        values_[at++] = std::move(value);
      }
    }
    for (const auto& entry : std::filesystem::directory_iterator(room_.data.path())) {
      const std::string file = entry.path().filename();
      std::vector<std::int16_t> numbers((entry.file_size() + 39) / 40);
      std::string records;
      if (room_.dataFiles.read(file, numbers))
        for (const int number : numbers) records += (records.empty() ? "" : " ") + std::to_string(number);
      if (std::exchange(files_[file], records) != records) note(file.c_str(), "records", records);
    }
  }

  void note(const Name& name, const std::string& property, const std::string& value) {
    const std::string what = std::string(name.base) + (name.inArray ? ' ' + property : "");
    auto change =
        std::find_if(changes_.begin(), changes_.end(), [&](const Change& c) { return c.what == what; });
    if (change == changes_.end()) change = changes_.insert(change, {what, {}, 0});
    const std::string index = name.inArray ? std::to_string(name.index) : property;
    auto& values = change->values;
    if (name.inArray && !values.empty() && values.back().second == value && change->last + 1 == name.index) {
      std::string& indices = values.back().first;
      indices = indices.substr(0, indices.find('-')) + '-' + index;
    } else {
      values.emplace_back(index, value);
    }
    change->last = name.index;
  }

  static std::string textOf(const Change& change) {
    std::string lines, line = "  " + change.what;
    for (const auto& [index, value] : change.values) {
      std::string item = ' ' + index;
      item.append(1, '=').append(value);
      if (line.size() + item.size() > 110) lines += std::exchange(line, "   ") + '\n';
      line += item;
    }
    return lines + line + '\n';
  }

  Session room_;
  std::vector<std::string> values_;
  std::map<std::string, std::string> files_;
  std::vector<Change> changes_;
};

class Transcript : public testing::TestWithParam<std::string> {};

TEST_P(Transcript, IsWhatTheRoomTells) {
  const std::string file = TRANSCRIPTS "/" + GetParam() + ".txt";
  const bool recording = std::getenv("TOMBOLARIO_RECORD") != nullptr;
  std::istringstream in(contentOf(file));
  ToldRoom room;
  std::string line, command, told, seen, record;
  const auto compare = [&] {
    if (recording) told = seen;
    EXPECT_EQ(told, seen) << file << ": " << command;
    record += std::exchange(seen, "");
    told.clear();
  };
  for (int number = 1; std::getline(in, line); ++number) {
    if (line.rfind("  ", 0) == 0) {
      told += line + '\n';
      continue;
    }
    compare();
    if (HasFailure()) return;
    record += line + '\n';
    if (line.empty() || line[0] == '#') continue;
    seen = room.after(line);
    command = "line " + std::to_string(number) + ": " + line;
  }
  compare();
  if (recording) writeFile(file, record);
}

std::vector<std::string> names() {
  std::vector<std::string> found;
  for (const auto& file : std::filesystem::directory_iterator(TRANSCRIPTS))
    found.push_back(file.path().stem());
  std::sort(found.begin(), found.end());
  return found;
}

INSTANTIATE_TEST_SUITE_P(Games, Transcript, testing::ValuesIn(names()),
                         [](const auto& name) { return name.param; });

}  // namespace
}  // namespace tombolario
