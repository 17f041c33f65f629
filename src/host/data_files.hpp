#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace tombolario {

/// Where the room keeps its data files, each under its name. A file has records of 40 bytes, and each record
/// a signed 16-bit little-endian number at its start; the other 38 bytes are free. Whatever stands in the way
/// of a call makes it fail, and harms nothing that is stored.
class DataFiles {
 public:
  virtual ~DataFiles() = default;
  /// Fills in the numbers of the first records, 0 where the file is too short for one; an empty file is made
  /// where there is none. False if it cannot be read, and then the numbers stay as they are.
  virtual bool read(const std::string& name, std::span<std::int16_t> numbers) = 0;
  /// Stores the numbers of the first records. The file is made where there is none and grows to whole
  /// records; what else it holds stays. False if that could not be done.
  virtual bool write(const std::string& name, std::span<const std::int16_t> numbers) = 0;
};

}  // namespace tombolario
