#include "host/record_file.hpp"

#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstring>
#include <random>

#include "sanitized.hpp"
#include "session.hpp"

namespace {

int synced = 0;

}  // namespace

/// In the place of the library's: the same, counted.
extern "C" int fdatasync(int file) {
  ++synced;
  return static_cast<int>(syscall(SYS_fdatasync, file));
}

namespace tombolario {
namespace {

using Numbers2 = RecordFile<2>::Records;

Numbers2 numbersOf(std::int16_t first, std::int16_t second) { return {{first, second}}; }

class RecordFileTest : public testing::Test {
 protected:
  std::pair<int, int> stored() {
    const Numbers2 numbers = file.read();
    return {numbers[1], numbers[2]};
  }
  bool store(std::int16_t first, std::int16_t second) {
    return files.write("some.dat", numbersOf(first, second).items);
  }
  bool readable(const std::string& name = "some.dat") {
    Numbers2 numbers = numbersOf(7, 7);
    const bool done = files.read(name, numbers.items);
    EXPECT_TRUE(done || numbers.items == numbersOf(7, 7).items);
    return done;
  }

  TemporaryDirectory directory;
  std::filesystem::path path = directory.path() / "some.dat";
  DataDirectory files{directory.path()};
  RecordFile<2> file{files, "some.dat"};
};

TEST_F(RecordFileTest, ReadingAMissingFileLeavesAnEmptyOne) {
  EXPECT_EQ(stored(), std::pair(0, 0));
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_EQ(std::filesystem::file_size(path), 0U);
}

TEST_F(RecordFileTest, NumbersAreLittleEndianAtTheStartOfWholeRecords) {
  file.write(numbersOf(0x1234, -2));
  const std::string content = contentOf(path);
  EXPECT_EQ(content, std::string("\x34\x12") + std::string(38, '\0') + "\xFE\xFF" + std::string(38, '\0'));
  EXPECT_EQ(stored(), std::pair(0x1234, -2));
}

TEST_F(RecordFileTest, AWriteTouchesNothingButItsNumbersAndAReadNothingAtAll) {
  std::string content(4000, 'x');
  writeFile(path, content);
  EXPECT_EQ(stored(), std::pair('x' << 8 | 'x', 'x' << 8 | 'x'));
  EXPECT_EQ(contentOf(path), content);
  file.write(numbersOf(8, 7));
  content[0] = '\10';
  content[1] = '\0';
  content[40] = '\7';
  content[41] = '\0';
  EXPECT_EQ(contentOf(path), content);
}

TEST_F(RecordFileTest, ALoadAndASaveOpenTheFileOnceAndASaveIsOnTheDisk) {
  const int watch = inotify_init1(IN_NONBLOCK);
  ASSERT_GE(inotify_add_watch(watch, directory.path().c_str(), IN_OPEN | IN_CREATE | IN_MOVE), 0);
  const auto events = [watch] {
    alignas(inotify_event) std::array<char, 4096> bytes{};
    int count = 0;
    for (ssize_t left = ::read(watch, bytes.data(), bytes.size()), at = 0; at < left; ++count) {
      inotify_event event{};
      std::memcpy(&event, bytes.data() + at, sizeof event);
      at += static_cast<ssize_t>(sizeof event + event.len);
    }
    return count;
  };
  synced = 0;
  file.write(numbersOf(1, 2));
  EXPECT_EQ(events(), 2) << "made and opened";
  EXPECT_EQ(synced, 1);
  file.read();
  EXPECT_EQ(events(), 1);
  file.write(numbersOf(3, 4));
  EXPECT_EQ(events(), 1);
  EXPECT_EQ(synced, 2);
  close(watch);
}

TEST_F(RecordFileTest, WhateverStandsInTheWayIsLeftAsItIs) {
  std::filesystem::create_directory(path);
  EXPECT_FALSE(readable());
  EXPECT_FALSE(store(5, 5));
  EXPECT_TRUE(std::filesystem::is_directory(path));
  std::filesystem::remove(path);

  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);  // to open it would wait for the other end
  EXPECT_FALSE(readable());
  EXPECT_FALSE(store(5, 5));
  std::filesystem::remove(path);

  EXPECT_FALSE(readable("no/such/place.dat"));
  EXPECT_FALSE(files.write("no/such/place.dat", numbersOf(5, 5).items));
}

TEST_F(RecordFileTest, AFileIsMadeAtTheEndOfALinkToo) {
  const auto target = directory.path() / "elsewhere.dat";
  std::filesystem::create_symlink(target, path);
  EXPECT_EQ(stored(), std::pair(0, 0));
  EXPECT_EQ(contentOf(target), "");
  EXPECT_TRUE(std::filesystem::remove(target));
  EXPECT_TRUE(store(5, 6));
  EXPECT_EQ(contentOf(target).size(), 80U);
  EXPECT_TRUE(std::filesystem::is_symlink(path));
}

TEST_F(RecordFileTest, ADirectoryThatIsGoneRefusesUntilItIsBack) {
  ASSERT_TRUE(store(99, 1));
  std::filesystem::remove_all(directory.path());
  EXPECT_FALSE(readable());
  EXPECT_FALSE(store(5, 5));
  EXPECT_FALSE(std::filesystem::exists(directory.path()));
  std::filesystem::create_directory(directory.path());
  EXPECT_TRUE(store(5, 6));
  EXPECT_EQ(stored(), std::pair(5, 6));
}

/// Root may write everything; for as long as this lives the process is an ordinary user.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    if (wasRoot_) setUser(65534);
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (wasRoot_) setUser(0);
  }

 private:
  static void setUser(uid_t user) { EXPECT_EQ(seteuid(user), 0); }

  bool wasRoot_ = geteuid() == 0;
};

TEST_F(RecordFileTest, WithoutTheRightToReadOrToWriteNothingIsHarmed) {
  using std::filesystem::perms;
  ASSERT_TRUE(store(99, 1));
  constexpr auto kRead = perms::owner_read | perms::group_read | perms::others_read;
  constexpr auto kEnter = perms::owner_exec | perms::group_exec | perms::others_exec;
  std::filesystem::permissions(path, kRead);
  std::filesystem::permissions(directory.path(), kRead | kEnter);
  {
    const OrdinaryUser user;
    EXPECT_EQ(stored(), std::pair(99, 1));
    EXPECT_FALSE(store(5, 5));
    EXPECT_FALSE(readable("missing.dat"));
    EXPECT_FALSE(files.write("missing.dat", numbersOf(5, 5).items));
  }
  std::filesystem::permissions(path, perms::owner_write | perms::others_write);
  {
    const OrdinaryUser user;
    EXPECT_FALSE(readable());
    EXPECT_FALSE(store(5, 5));
  }
  std::filesystem::permissions(path, kRead);
  EXPECT_EQ(stored(), std::pair(99, 1));
}

/// As long as this lives no file may grow past so many bytes.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &before_), 0);
    const rlimit small{bytes, before_.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_{};
};

/// As a full disk, at any byte: the file is as it was, or whole. Nothing is ignored or handled here: the
/// limit must not end the program.
TEST_F(RecordFileTest, AFileOfAnyLengthThatMayNotGrowKeepsWhatIsStored) {
  for (std::size_t length = 0; length <= 81; ++length) {
    const std::string content(length, 'x');
    for (rlim_t limit = 0; limit <= 81; ++limit) {
      writeFile(path, content);
      bool done = false;
      {
        const FileSizeLimit whileWriting(limit);
        done = store(97, 5);
      }
      EXPECT_EQ(done, limit >= 80) << length << ' ' << limit;
      if (done) {
        EXPECT_EQ(stored(), std::pair(97, 5)) << length << ' ' << limit;
      } else {
        EXPECT_EQ(contentOf(path), content) << length << ' ' << limit;
      }
    }
  }
}

TEST_F(RecordFileTest, AKilledProgramLeavesTheOldNumbersOrTheNewOnes) {
  constexpr int kKills = kSanitized ? 200 : 1000;
  std::mt19937 engine(20261123);
  int changed = 0;
  for (int times = 0; times < kKills; ++times) {
    writeFile(path, contentOf(path).substr(0, engine() % 160));
    const auto before = stored();
    const int first = times % 300 * 100;  // of the numbers that this child stores
    std::array<int, 2> saved{};
    ASSERT_EQ(pipe(saved.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
      for (int i = 0;; i = (i + 1) % 100) {
        const auto number = static_cast<std::int16_t>(first + i);
        if (!store(number, static_cast<std::int16_t>(-number)) || ::write(saved[1], "", 1) != 1) _exit(1);
      }
    }
    ASSERT_GT(child, 0);
    close(saved[1]);
    char byte = 0;
    for (auto saves = engine() % 4; saves > 0; --saves)
      ASSERT_EQ(::read(saved[0], &byte, 1), 1) << "it has died";
    usleep(static_cast<useconds_t>(engine() % 500));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    close(saved[0]);
    ASSERT_TRUE(WIFSIGNALED(status)) << "a save was refused";
    const auto [number, other] = stored();
    if (std::pair(number, other) == before) continue;
    ++changed;
    ASSERT_EQ(contentOf(path).size(), 80U);
    ASSERT_TRUE(number >= first && number < first + 100) << number;
    ASSERT_EQ(other, -number) << "half of a save";
  }
  EXPECT_GT(changed, kKills / 2);
}

}  // namespace
}  // namespace tombolario
