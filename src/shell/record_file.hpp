#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <optional>

namespace tombolario {

/// A data file of fixed 40-byte records, numbered from 1, each with one signed 16-bit little-endian
/// number at its start; the other 38 bytes are free. Each call opens the file, which makes an empty one
/// where there is none, and closes it again. Whatever stands in the way (a directory or a pipe of that
/// name, no right, a full disk) makes the call fail and harms nothing that is stored.
class RecordFile {
 public:
  explicit RecordFile(std::filesystem::path path) : path_(std::move(path)) {}

  /// The number of a record; nothing where the file is too short or cannot be read.
  std::optional<std::int16_t> read(int record) const;
  /// Writes the numbers of the records from the first on, all at once, and changes no other byte; the file
  /// grows if it must and is never shortened. False if it could not be done.
  bool write(std::initializer_list<std::int16_t> values) const;

 private:
  std::filesystem::path path_;
};

}  // namespace tombolario
