#include "shell/record_file.hpp"

#include <array>
#include <cstdio>
#include <memory>
#include <vector>

namespace tombolario {

namespace {

constexpr std::size_t kRecordSize = 40;

struct Closer {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

/// Opens the file, after making it where there is none. Anything but a plain file is refused: to open a
/// pipe would wait for its other end.
File open(const std::filesystem::path& path, const char* mode) {
  std::error_code error;
  const auto kind = std::filesystem::status(path, error).type();
  if (kind == std::filesystem::file_type::not_found) {
    File made(std::fopen(path.string().c_str(), "wbx"));
  } else if (kind != std::filesystem::file_type::regular) {
    return nullptr;
  }
  File file(std::fopen(path.string().c_str(), mode));
  // Without a buffer what is written goes out in one piece, and nothing is written back that was only read.
  if (file != nullptr) std::setvbuf(file.get(), nullptr, _IONBF, 0);
  return file;
}

bool put(std::FILE* file, long place, const unsigned char* bytes, std::size_t count) {
  return std::fseek(file, place, SEEK_SET) == 0 && std::fwrite(bytes, 1, count, file) == count;
}

}  // namespace

std::optional<std::int16_t> RecordFile::read(int record) const {
  const File file = open(path_, "rb");
  std::array<unsigned char, 2> bytes{};
  if (file == nullptr) return std::nullopt;
  if (std::fseek(file.get(), (record - 1) * static_cast<long>(kRecordSize), SEEK_SET) != 0)
    return std::nullopt;
  if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) return std::nullopt;
  return static_cast<std::int16_t>(bytes[0] | bytes[1] << 8);
}

bool RecordFile::write(std::initializer_list<std::int16_t> values) const {
  const File file = open(path_, "r+b");
  if (file == nullptr) return false;
  // One write from the first number to the last, over what lies between them now.
  std::vector<unsigned char> bytes((values.size() - 1) * kRecordSize + 2);
  const std::size_t present = std::fread(bytes.data(), 1, bytes.size(), file.get());
  if (std::ferror(file.get()) != 0) return false;
  // First the room, so that a full disk is met before anything that is stored has changed.
  const std::size_t missing = bytes.size() - present;
  if (missing > 0 && !put(file.get(), static_cast<long>(present), bytes.data() + present, missing))
    return false;
  auto place = bytes.begin();
  for (const std::int16_t value : values) {
    const auto word = static_cast<std::uint16_t>(value);
    place[0] = static_cast<unsigned char>(word & 0xFF);
    place[1] = static_cast<unsigned char>(word >> 8);
    if (&value != values.end() - 1) place += kRecordSize;
  }
  return put(file.get(), 0, bytes.data(), bytes.size());
}

}  // namespace tombolario
