#include "shell/record_file.hpp"

#include <array>
#include <cstdio>
#include <memory>

namespace tombolario {

namespace {

constexpr long kRecordSize = 40;

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
  // Without a buffer the two bytes go out in one piece, and nothing is written back that was only read.
  if (file != nullptr) std::setvbuf(file.get(), nullptr, _IONBF, 0);
  return file;
}

bool seek(std::FILE* file, int record) { return std::fseek(file, (record - 1) * kRecordSize, SEEK_SET) == 0; }

}  // namespace

std::optional<std::int16_t> RecordFile::read(int record) const {
  const File file = open(path_, "rb");
  std::array<unsigned char, 2> bytes{};
  if (file == nullptr || !seek(file.get(), record)) return std::nullopt;
  if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) return std::nullopt;
  return static_cast<std::int16_t>(bytes[0] | bytes[1] << 8);
}

bool RecordFile::write(int record, std::int16_t value) const {
  const File file = open(path_, "r+b");
  const auto word = static_cast<std::uint16_t>(value);
  const std::array<unsigned char, 2> bytes{static_cast<unsigned char>(word & 0xFF),
                                           static_cast<unsigned char>(word >> 8)};
  return file != nullptr && seek(file.get(), record) &&
         std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
}

}  // namespace tombolario
