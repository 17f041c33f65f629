#include "shell/data_directory.hpp"

#include <cstdio>
#include <memory>

namespace tombolario {

namespace {

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

std::optional<DataFiles::Bytes> readFrom(std::FILE* file, std::size_t count) {
  DataFiles::Bytes bytes(count);
  bytes.resize(std::fread(bytes.data(), 1, count, file));
  if (std::ferror(file) != 0) return std::nullopt;
  return bytes;
}

bool writeAt(std::FILE* file, std::size_t place, std::span<const unsigned char> bytes) {
  return std::fseek(file, static_cast<long>(place), SEEK_SET) == 0 &&
         std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
}

}  // namespace

std::optional<DataFiles::Bytes> DataDirectory::read(const std::string& name, std::size_t count) {
  const File file = open(path_ / name, "rb");
  return file != nullptr ? readFrom(file.get(), count) : std::nullopt;
}

bool DataDirectory::write(const std::string& name, std::span<const unsigned char> bytes) {
  const File file = open(path_ / name, "r+b");
  if (file == nullptr) return false;
  const std::optional<Bytes> before = readFrom(file.get(), bytes.size());
  if (!before) return false;
  const std::size_t present = before->size();
  // First the room behind the end, which a full disk may lack; then all at once.
  if (present < bytes.size() && !writeAt(file.get(), present, bytes.subspan(present))) return false;
  return writeAt(file.get(), 0, bytes);
}

}  // namespace tombolario
