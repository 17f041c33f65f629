#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <utility>

#include "host/data_files.hpp"

namespace tombolario {

/// Data files in a directory. Each call opens its file once, and makes it where there is none, also at the
/// end of a link. Only plain files are used: a directory or a pipe of that name is left as it is.
class DataDirectory : public DataFiles {
 public:
  explicit DataDirectory(std::filesystem::path path) : path_(std::move(path)) {}

  bool read(const std::string& name, std::span<std::int16_t> numbers) override;
  /// What is stored is on the disk on return. Whenever the program is killed or a step fails meanwhile, the
  /// file has all the old numbers or all the new ones.
  bool write(const std::string& name, std::span<const std::int16_t> numbers) override;

 private:
  std::filesystem::path path_;
};

}  // namespace tombolario
