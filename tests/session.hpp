#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <string>
#include <string_view>

#include "driver/driver.hpp"
#include "host/data_directory.hpp"

namespace tombolario {

// What a failed expectation shows.
inline void PrintTo(const PictureId& picture, std::ostream* out) { *out << picture.name(); }

/// A directory of its own for the data files of one test, gone after it.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    static int made = 0;
    path_ = std::filesystem::temp_directory_path() /
            ("tombolario-" + std::to_string(getpid()) + '-' + std::to_string(++made));
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline std::string contentOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

inline void writeFile(const std::filesystem::path& file, std::string_view content) {
  std::ofstream(file, std::ios::binary) << content;
}

/// A room that is played by commands, with data files of its own.
class Session {
 public:
  std::string operator()(const std::string& command) { return driver.answer(command); }

  /// Commands that must all answer "ok".
  void play(std::initializer_list<const char*> commands) {
    for (const char* command : commands) EXPECT_EQ(driver.answer(command), "ok") << command;
  }
  std::string get(const std::string& control, const std::string& property) {
    return driver.answer("get " + control + ' ' + property);
  }
  /// The next cards to be dealt from a pack of that many, in order.
  void queueCards(int pack, const std::vector<int>& cards) {
    std::string command = "u";
    for (const int card : cards) command += ' ' + std::to_string((card + 0.5) / pack);
    EXPECT_EQ(driver.answer(command), "ok");
  }

  TemporaryDirectory data;
  DataDirectory dataFiles{data.path()};
  Driver driver{nullptr, dataFiles};
};

}  // namespace tombolario
