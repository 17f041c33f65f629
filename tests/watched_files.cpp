#include "watched_files.hpp"

#include <sys/stat.h>

#include <algorithm>
#include <fstream>

namespace tombolario {

namespace {

namespace fs = std::filesystem;

/// What lies in the place of a file, also at the end of a link, its whole content with it.
struct Stored {
  fs::file_type type = fs::file_type::none;
  std::string content;
  bool operator==(const Stored&) const = default;
};

Stored storedIn(const fs::path& path) {
  std::error_code ignored;
  Stored found{fs::status(path, ignored).type(), ""};
  if (found.type != fs::file_type::regular) return found;
  std::ifstream in(path, std::ios::binary);
  found.content.assign(std::istreambuf_iterator<char>(in), {});
  return found;
}

bool isEmptyFileInPlaceOfNone(const Stored& before, const Stored& after) {
  return before.type == fs::file_type::not_found && after == Stored{fs::file_type::regular, ""};
}

/// The content with the numbers at the start of its records, and whole records at least.
std::string withNumbers(std::string content, std::span<const std::int16_t> numbers) {
  content.resize(std::max(content.size(), 40 * numbers.size()));
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    content[40 * i] = static_cast<char>(numbers[i] & 0xFF);
    content[40 * i + 1] = static_cast<char>(numbers[i] >> 8);
  }
  return content;
}

}  // namespace

WatchedFiles::WatchedFiles(fs::path directory) : directory_(std::move(directory)), files_(directory_) {
  fs::remove_all(directory_);
  fs::create_directories(directory_);
}

bool WatchedFiles::read(const std::string& name, std::span<std::int16_t> numbers) {
  const Stored before = storedIn(directory_ / name);
  const bool done = files_.read(name, numbers);
  const Stored after = storedIn(directory_ / name);
  require(after == before || isEmptyFileInPlaceOfNone(before, after), "reading has changed a file");
  require(done == (after.type == fs::file_type::regular), "a file can and cannot be read");
  std::string whole = after.content;
  whole.resize(std::max(whole.size(), 40 * numbers.size()));
  if (whole.size() > after.content.size() && after.content.size() % 40 == 1)
    whole[after.content.size() - 1] = 0;
  require(!done || withNumbers(whole, numbers) == whole, "a file is misread");
  reached_[name + " loaded"] += done && numbers[0] > 0;
  return done;
}

bool WatchedFiles::write(const std::string& name, std::span<const std::int16_t> numbers) {
  const Stored before = storedIn(directory_ / name);
  const bool possible = before.type == fs::file_type::regular ||
                        (before.type == fs::file_type::not_found && fs::is_directory(directory_));
  const bool done = files_.write(name, numbers);
  const Stored after = storedIn(directory_ / name);
  require(done == possible, "a save is refused, or taken, against all reason");
  if (!done) {
    require(after == before || isEmptyFileInPlaceOfNone(before, after), "a refused save has changed a file");
    return false;
  }
  const Stored expected{fs::file_type::regular, withNumbers(before.content, numbers)};
  require(after == expected, "saving has changed more than it should");
  if (room_ != nullptr) checkNumbers(name, numbers);
  ++reached_[name + " saved"];
  return true;
}

void WatchedFiles::checkNumbers(const std::string& name, std::span<const std::int16_t> numbers) const {
  const auto shows = [this](const char* label, int number) {
    return room_->find(label)->Caption == std::to_string(number);
  };
  if (name == "videopoker.dat") {
    require(numbers.size() == 1 && shows("Label5", numbers[0]), "another balance is stored");
  } else {
    require(name == "CATENA.dat" && numbers.size() == 2 && shows("Label3ca", numbers[0]) &&
                shows("Label10ca", numbers[1]),
            "another level is stored");
  }
}

void WatchedFiles::harm(int kind, int size) {
  std::error_code ignored;
  fs::create_directories(directory_, ignored);
  const fs::path path = directory_ / (kind % 2 == 0 ? "videopoker.dat" : "CATENA.dat");
  const fs::path linked = path.string() + ".linked";
  fs::remove_all(path, ignored);
  fs::remove_all(linked, ignored);
  const auto fill = [&path](std::size_t length, char with) {
    std::ofstream(path, std::ios::binary) << std::string(length, with);
  };
  switch (kind / 2 % kHarms) {
    case 0: break;
    case 1: fs::create_directory(path, ignored); break;
    case 2: fs::create_symlink(linked, path, ignored); break;
    case 3: fs::remove_all(directory_, ignored); break;
    case 4: fill(static_cast<std::size_t>(size % 90), '\xFF'); break;
    case 5: fill(std::size_t{100} * static_cast<std::size_t>(size), '\x11'); break;
    case 6: require(mkfifo(path.c_str(), 0600) == 0, "no pipe"); break;  // to open it would wait
    default: fill(80, static_cast<char>(size)); break;
  }
}

}  // namespace tombolario
