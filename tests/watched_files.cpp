#include "watched_files.hpp"

#include <algorithm>
#include <fstream>

#include "invariants.hpp"

namespace tombolario {

namespace {

namespace fs = std::filesystem;

/// What lies in the place of a file, its whole content with it.
struct Stored {
  fs::file_type type = fs::file_type::none;
  std::string content;
  bool operator==(const Stored&) const = default;
};

Stored storedIn(const fs::path& path) {
  std::error_code ignored;
  Stored found{fs::symlink_status(path, ignored).type(), ""};
  if (found.type != fs::file_type::regular) return found;
  std::ifstream in(path, std::ios::binary);
  found.content.assign(std::istreambuf_iterator<char>(in), {});
  return found;
}

bool isEmptyFileInPlaceOfNone(const Stored& before, const Stored& after) {
  return before.type == fs::file_type::not_found && after == Stored{fs::file_type::regular, ""};
}

int numberAt(std::span<const unsigned char> bytes, std::size_t place) {
  return static_cast<std::int16_t>(bytes[place] | bytes[place + 1] << 8);
}

}  // namespace

WatchedFiles::WatchedFiles(fs::path directory) : directory_(std::move(directory)), files_(directory_) {
  fs::remove_all(directory_);
  fs::create_directories(directory_);
}

std::optional<DataFiles::Bytes> WatchedFiles::read(const std::string& name, std::size_t count) {
  const Stored before = storedIn(directory_ / name);
  auto bytes = files_.read(name, count);
  const Stored after = storedIn(directory_ / name);
  require(after == before || isEmptyFileInPlaceOfNone(before, after), "reading has changed a file");
  require(bytes.has_value() == (after.type == fs::file_type::regular), "a file can and cannot be read");
  if (bytes)
    require(std::string(bytes->begin(), bytes->end()) == after.content.substr(0, count), "a file is misread");
  return bytes;
}

bool WatchedFiles::write(const std::string& name, std::span<const unsigned char> bytes) {
  const Stored before = storedIn(directory_ / name);
  const bool written = files_.write(name, bytes);
  const Stored after = storedIn(directory_ / name);
  if (!written) {
    require(after == before || isEmptyFileInPlaceOfNone(before, after), "a refused save has changed a file");
    return false;
  }
  Stored expected{fs::file_type::regular, before.content};
  expected.content.resize(std::max(before.content.size(), bytes.size()));
  std::copy(bytes.begin(), bytes.end(), expected.content.begin());
  require(after == expected, "saving has changed more than it should");
  checkNumbers(name, bytes);
  ++saves_;
  return true;
}

void WatchedFiles::checkNumbers(const std::string& name, std::span<const unsigned char> bytes) const {
  const auto shows = [this](const char* label, int number) {
    return room_->find(label)->Caption == std::to_string(number);
  };
  if (name == "videopoker.dat") {
    require(bytes.size() == 2 && shows("Label5", numberAt(bytes, 0)), "another balance is stored");
  } else {
    require(name == "CATENA.dat" && bytes.size() == 42 && shows("Label3ca", numberAt(bytes, 0)) &&
                shows("Label10ca", numberAt(bytes, 40)),
            "another level is stored");
  }
}

void WatchedFiles::harm(int kind, int size) {
  std::error_code ignored;
  fs::create_directories(directory_, ignored);
  const fs::path path = directory_ / (kind % 2 == 0 ? "videopoker.dat" : "CATENA.dat");
  fs::remove_all(path, ignored);
  const auto fill = [&path](std::size_t length, char with) {
    std::ofstream(path, std::ios::binary) << std::string(length, with);
  };
  switch (kind / 2 % 8) {
    case 0: break;
    case 1: fs::create_directory(path, ignored); break;
    case 2: fs::create_symlink(directory_ / "nowhere", path, ignored); break;
    case 3: fs::remove_all(directory_, ignored); break;
    case 4: fill(static_cast<std::size_t>(size % 50), '\xFF'); break;
    case 5: fill(std::size_t{100} * static_cast<std::size_t>(size), '\x11'); break;
    default: fill(42, static_cast<char>(size)); break;
  }
}

}  // namespace tombolario
