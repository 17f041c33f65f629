#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tombolario {

/// Where the room keeps its data files, each under its name. Whatever stands in the way of a call makes it
/// fail, and harms nothing that is stored.
class DataFiles {
 public:
  using Bytes = std::vector<unsigned char>;

  virtual ~DataFiles() = default;
  /// The first bytes of the file, that many or as many as it has; an empty file is made where there is none.
  /// Nothing if it cannot be read.
  virtual std::optional<Bytes> read(const std::string& name, std::size_t count) = 0;
  /// Puts the bytes in the place of the file's first ones and changes no other; the file is made where there
  /// is none, grows if it must and is never shortened. False if that could not be done.
  virtual bool write(const std::string& name, std::span<const unsigned char> bytes) = 0;
};

}  // namespace tombolario
