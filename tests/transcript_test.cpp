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
    if (values_.empty()) {
      if (command != "start") room_("start");
      look();
    }
    changes_.clear();
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
    if (word == "press") {
      while (words >> name) press(name);
      return "ok";
    }
    std::string answer = "ok";
    if (word == "repeat") {
      int times = 0;
      std::getline(words >> times, name);
      while (answer == "ok" && times-- > 0) answer = carryOut(name);
      return answer;
    }
    if (word == "click") {
      while (answer == "ok" && words >> name) answer = room_("click " + name);
      return answer;
    }
    if (word != "cards" && word != "file") return room_(command);
    words >> name;
    std::vector<int> numbers;
    for (int number = 0; words >> number;) numbers.push_back(number);
    if (word == "cards") {
      room_.queueCards(std::stoi(name), numbers);
    } else {
      std::string records(40 * numbers.size(), '\0');
      for (std::size_t i = 0; i < numbers.size(); ++i) {
        records[40 * i] = static_cast<char>(numbers[i]);
        records[40 * i + 1] = static_cast<char>(numbers[i] >> 8);
      }
      writeFile(room_.data.path() / name, records);
    }
    return "ok";
  }

  /// One control, or all of an array.
  void press(const std::string& name) {
    for (Control* control : room_.driver.form().controls()) {
      if (name.compare(0, name.find('('), control->name().base) != 0) continue;
      if (name == control->name().base || name == control->name().text()) control->click();
    }
  }

  void look() {
    std::size_t at = 0;
    for (const Control* control : room_.driver.form().controls()) {
      for (const PropertyReader& property : properties()) {
        std::string value = property.read(*control);
        if (at == values_.size()) values_.push_back(value);
        if (value != values_[at]) note(control->name(), std::string(property.name), value);
        values_[at++] = std::move(value);
      }
    }
    for (const char* file : {"videopoker.dat", "CATENA.dat"}) {
      const std::string content = contentOf(room_.data.path() / file);
      std::string records;
      for (std::size_t i = 0; i + 1 < content.size(); i += 40)
        records += ' ' + std::to_string(static_cast<std::int16_t>(content[i + 1] << 8 | (content[i] & 255)));
      if (std::exchange(files_[file], records) != records) note(file, "records", records);
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
      const std::string item = ' ' + index + '=' + value;
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
