#pragma once

#include <filesystem>

#include "shell/data_files.hpp"

namespace tombolario {

/// Data files in a directory. Each call opens its file and closes it again. Only plain files are opened: a
/// directory, a pipe or a dangling link of that name is left as it is.
class DataDirectory : public DataFiles {
 public:
  explicit DataDirectory(std::filesystem::path path) : path_(std::move(path)) {}

  std::optional<Bytes> read(const std::string& name, std::size_t count) override;
  /// A full disk is met before anything that is stored has changed.
  bool write(const std::string& name, std::span<const unsigned char> bytes) override;

 private:
  std::filesystem::path path_;
};

}  // namespace tombolario
