#include "driver/driver.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <istream>
#include <ostream>
#include <system_error>
#include <utility>

#include "driver/properties.hpp"
#include "pictures/catalogue.hpp"
#include "toolkit/scroll_bar.hpp"

namespace tombolario {

namespace {

/// Why a command cannot be carried out: the reason, and the word of the command that it is about, if any.
struct Refusal {
  std::string reason;
  std::string_view word = {};
};

/// The word as an answer repeats it: the beginning of a long one, by whole characters of UTF-8.
std::string_view shown(std::string_view word) {
  constexpr std::size_t kMostShown = 80;
  if (word.size() <= kMostShown) return word;
  std::size_t end = kMostShown;
  while (end > 0 && (static_cast<unsigned char>(word[end]) & 0xC0) == 0x80) --end;
  return word.substr(0, end);
}

constexpr double kLargestScale = 16;
constexpr std::size_t kLongestLine = std::size_t{64} << 10;
/// Far outside the window one point is like another; this keeps sums of places inside an int.
constexpr std::int64_t kFarthest = 1'000'000'000;

std::vector<std::string> split(std::string_view line) {
  constexpr std::string_view kBlanks = " \t\r";
  std::vector<std::string> words;
  for (std::size_t at = line.find_first_not_of(kBlanks); at != std::string_view::npos;) {
    const std::size_t end = std::min(line.find_first_of(kBlanks, at), line.size());
    words.emplace_back(line.substr(at, end - at));
    at = line.find_first_not_of(kBlanks, end);
  }
  return words;
}

std::int64_t wholeNumber(const std::string& word) {
  std::int64_t number = 0;
  const char* end = word.data() + word.size();
  const auto [stopped, error] = std::from_chars(word.data(), end, number);
  if (error != std::errc() || stopped != end) throw Refusal{"not a whole number: ", word};
  return number;
}

int place(const std::string& word) {
  return static_cast<int>(std::clamp(wholeNumber(word), -kFarthest, kFarthest));
}

double number(const std::string& word) {
  // strtod alone would take "inf", "nan" and hexadecimal as well.
  const bool plain = word.find_first_not_of("0123456789.eE+-") == std::string::npos;
  char* stopped = nullptr;
  errno = 0;
  const double value = std::strtod(word.c_str(), &stopped);
  if (!plain || stopped != word.c_str() + word.size()) throw Refusal{"not a number: ", word};
  if (errno == ERANGE) throw Refusal{"a number too large or too small: ", word};
  return value;
}

double scaleIn(const std::vector<std::string>& words, std::size_t index) {
  if (words.size() <= index) return 1;
  const double scale = number(words[index]);
  if (!(scale > 0 && scale <= kLargestScale)) throw Refusal{"no such scale: ", words[index]};
  return scale;
}

MouseButton buttonIn(const std::vector<std::string>& words) {
  if (words.size() < 2 || words[1] == "left") return MouseButton::Left;
  if (words[1] == "right") return MouseButton::Right;
  if (words[1] == "middle") return MouseButton::Middle;
  throw Refusal{"no such button: ", words[1]};
}

/// The next line, and no more of a long one than shows that it is too long. False at the end.
bool readLine(std::istream& in, std::string& line) {
  line.clear();
  for (int c = in.get(); c != '\n'; c = in.get()) {
    if (c == std::istream::traits_type::eof()) return !line.empty();
    if (line.size() <= kLongestLine) line += static_cast<char>(c);
  }
  return true;
}

}  // namespace

double ScriptedSource::next() {
  if (queue_.empty()) return unitInterval(engine_());
  const double number = queue_.front();
  queue_.pop_front();
  return number;
}

Driver::Driver(Camera* camera, DataFiles& dataFiles) : host_(dataFiles), room_(host_), camera_(camera) {}

std::string Driver::answer(std::string_view line) {
  if (line.size() > kLongestLine) return "error: a line of more than 64 KiB";
  const Words words = split(line);
  try {
    return dispatch(words);
  } catch (const Refusal& refusal) {
    return ("error: " + refusal.reason).append(shown(refusal.word));
  }
}

void Driver::run(std::istream& in, std::ostream& out) {
  std::string line;
  while (!ended_ && readLine(in, line)) out << answer(line) << std::endl;
}

std::string Driver::dispatch(const Words& words) {
  struct Command {
    std::string_view name;
    std::size_t fewest, most;  // words behind the name
    std::string (Driver::*run)(const Words& words);
  };
  static constexpr std::array kCommands{
      Command{"u", 1, SIZE_MAX, &Driver::queueNumbers},
      Command{"seed", 1, 1, &Driver::seed},
      Command{"queued", 0, 0, &Driver::queued},
      Command{"start", 0, 0, &Driver::start},
      Command{"over", 1, 1, &Driver::over},
      Command{"at", 2, 2, &Driver::at},
      Command{"down", 0, 1, &Driver::down},
      Command{"up", 0, 1, &Driver::up},
      Command{"click", 1, 1, &Driver::click},
      Command{"scroll", 2, 2, &Driver::scroll},
      Command{"screen", 0, 0, &Driver::screen},
      Command{"get", 2, 2, &Driver::get},
      Command{"links", 0, 0, &Driver::links},
      Command{"dump", 0, 0, &Driver::dump},
      Command{"shot", 1, 2, &Driver::shot},
      Command{"pictures", 0, 0, &Driver::pictures},
      Command{"picture", 2, 3, &Driver::picture},
      Command{"quit", 0, 0, &Driver::quit},
  };
  if (words.empty()) throw Refusal{"no command"};
  const auto* command = std::find_if(kCommands.begin(), kCommands.end(),
                                     [&](const Command& known) { return known.name == words[0]; });
  if (command == kCommands.end()) throw Refusal{"unknown command: ", words[0]};
  const std::size_t given = words.size() - 1;
  if (given < command->fewest || given > command->most) throw Refusal{"wrong number of words: ", words[0]};
  return (this->*command->run)(words);
}

// Each command first looks whether it can be carried out, and only then starts the room and acts. What is
// on view can be told before the start, too: the start-up changes nothing there.

Form& Driver::started() {
  if (!std::exchange(started_, true)) room_.Form_Load();
  return room_.form();
}

Control& Driver::named(const std::string& name) {
  Control* control = room_.form().find(name);
  if (control == nullptr) throw Refusal{"unknown control: ", name};
  return *control;
}

Control& Driver::namedOnView(const std::string& name) {
  Control& control = named(name);
  if (!control.onView()) throw Refusal{name + " is not on view"};
  return control;
}

std::string Driver::queueNumbers(const Words& words) {
  std::vector<double> numbers;
  for (std::size_t i = 1; i < words.size(); ++i) {
    const double u = number(words[i]);
    if (!(u >= 0 && u < 1) || std::signbit(u)) throw Refusal{"not in [0,1): ", words[i]};
    numbers.push_back(u);
  }
  host_.uniform().queue(numbers);
  return "ok";
}

std::string Driver::queued(const Words&) { return std::to_string(host_.uniform().queued()); }

std::string Driver::seed(const Words& words) {
  host_.uniform().seed(wholeNumber(words[1]));
  return "ok";
}

std::string Driver::start(const Words&) {
  if (started_) throw Refusal{"the room is started already"};
  started();
  return "ok";
}

std::string Driver::over(const Words& words) {
  const Control& control = namedOnView(words[1]);
  started().mouseMove(control.origin() + Point{control.Width / 2, control.Height / 2});
  return "ok";
}

std::string Driver::at(const Words& words) {
  const Point point{place(words[1]), place(words[2])};
  started().mouseMove(point);
  return "ok";
}

std::string Driver::down(const Words& words) {
  const MouseButton button = buttonIn(words);
  started().mouseDown(button);
  return "ok";
}

std::string Driver::up(const Words& words) {
  const MouseButton button = buttonIn(words);
  started().mouseUp(button);
  return "ok";
}

std::string Driver::click(const Words& words) {
  over(words);
  room_.form().mouseDown(MouseButton::Left);
  room_.form().mouseUp(MouseButton::Left);
  return "ok";
}

std::string Driver::scroll(const Words& words) {
  auto* bar = dynamic_cast<ScrollBar*>(&namedOnView(words[1]));
  if (bar == nullptr) throw Refusal{words[1] + " is no scroll bar"};
  const int value = place(words[2]);
  started();
  if (bar->operable()) bar->Value = value;
  return "ok";
}

std::string Driver::screen(const Words&) {
  started();
  return room_.screen().name().text();
}

std::string Driver::get(const Words& words) {
  const Control& control = named(words[1]);
  const PropertyReader* property = findProperty(words[2]);
  if (property == nullptr) throw Refusal{"unknown property: ", words[2]};
  started();
  return property->read(control);
}

std::string Driver::links(const Words&) {
  started();
  if (host_.addresses.empty()) return "none";
  std::string all;
  for (const std::string& address : std::exchange(host_.addresses, {})) {
    if (!all.empty()) all += ' ';
    all += address;
  }
  return all;
}

std::string Driver::dump(const Words&) {
  std::string lines;
  for (const Control* control : started().controls()) {
    if (!control->onView()) continue;
    lines += control->name().text();
    for (const PropertyReader& property : properties()) {
      lines += ' ';
      lines += property.name;
      lines += '=';
      lines += property.read(*control);
    }
    lines += '\n';
  }
  return lines + '.';
}

Camera& Driver::cameraFor(const std::string& file) {
  if (camera_ == nullptr) throw Refusal{"this build draws no pictures"};
  // To write to a pipe would wait for its other end.
  std::error_code none;
  const auto kind = std::filesystem::status(file, none).type();
  const bool plain =
      kind == std::filesystem::file_type::regular || kind == std::filesystem::file_type::not_found;
  if (!plain || !std::ofstream(file, std::ios::app)) throw Refusal{"cannot write ", file};
  return *camera_;
}

std::string Driver::shot(const Words& words) {
  const double scale = scaleIn(words, 2);
  Camera& camera = cameraFor(words[1]);
  if (!camera.shoot(started(), words[1], scale)) throw Refusal{"cannot write ", words[1]};
  return "ok";
}

std::string Driver::pictures(const Words&) {
  started();
  std::string lines;
  for (const PictureStore* store : pictures::catalogue()) {
    for (int i = 0; i < store->count; ++i) {
      const PictureId picture(*store, store->first + i);
      const auto [width, height] = picture.size();
      lines += picture.name() + ' ' + std::to_string(width) + 'x' + std::to_string(height) + '\n';
    }
  }
  return lines + '.';
}

std::string Driver::picture(const Words& words) {
  const PictureId picture = pictures::find(words[1]);
  if (!picture) throw Refusal{"unknown picture: ", words[1]};
  const double scale = scaleIn(words, 3);
  Camera& camera = cameraFor(words[2]);
  started();
  if (!camera.shoot(picture, words[2], scale)) throw Refusal{"cannot write ", words[2]};
  return "ok";
}

std::string Driver::quit(const Words&) {
  ended_ = true;
  return "ok";
}

}  // namespace tombolario
