#pragma once

#include <filesystem>

#include "host/data_directory.hpp"
#include "invariants.hpp"
#include "toolkit/form.hpp"

namespace tombolario {

/// The data files of a room in a directory, looked at around each call: nothing but what is asked for may
/// change, and what is stored is what the player sees stored. Throws a Violation otherwise.
class WatchedFiles : public DataFiles {
 public:
  explicit WatchedFiles(std::filesystem::path directory);

  /// The room whose files these are, if there is one.
  void watch(Form& room) { room_ = &room; }
  bool read(const std::string& name, std::span<std::int16_t> numbers) override;
  bool write(const std::string& name, std::span<const std::int16_t> numbers) override;

  /// Something happens to a file behind the room's back; kind and size are any numbers. There are so many
  /// kinds for each of the two files: the even kinds are videopoker.dat's.
  static constexpr int kHarms = 8;
  void harm(int kind, int size);
  /// How often a game was stored in each of the files, and one of them taken up.
  const Reached& reached() const { return reached_; }

 private:
  void checkNumbers(const std::string& name, std::span<const std::int16_t> numbers) const;

  std::filesystem::path directory_;
  DataDirectory files_;
  Form* room_ = nullptr;
  Reached reached_;
};

}  // namespace tombolario
