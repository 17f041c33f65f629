#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "shell/data_files.hpp"

namespace tombolario {

/// A data file of fixed 40-byte records, numbered from 1, each with one signed 16-bit little-endian
/// number at its start; the other 38 bytes are free.
class RecordFile {
 public:
  RecordFile(DataFiles& files, std::string name) : files_(files), name_(std::move(name)) {}

  /// The number of a record; nothing where the file is too short or cannot be read.
  std::optional<std::int16_t> read(int record) const;
  /// Writes the numbers of the records from the first on, all at once, and changes no other byte. False if
  /// it could not be done, and then nothing has changed.
  bool write(std::initializer_list<std::int16_t> values) const;

 private:
  DataFiles& files_;
  std::string name_;
};

}  // namespace tombolario
