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
#include <functional>
#include <random>

#include "sanitized.hpp"
#include "session.hpp"
#include "watched_files.hpp"

namespace {

int synced = 0;
std::function<void()> afterWriting;

}  // namespace

/// In the place of the library's, and only counted: nothing here has to outlive the machine.
extern "C" int fdatasync(int /*file*/) {
  ++synced;
  return 0;
}

/// In the place of the library's, with a look at what lies on the disk then.
extern "C" ssize_t pwrite(int file, const void* bytes, std::size_t count, off_t place) {
  const ssize_t written = syscall(SYS_pwrite64, file, bytes, count, place);
  if (afterWriting) afterWriting();
  return written;
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
    return files.write("CATENA.dat", numbersOf(first, second).items);
  }

  TemporaryDirectory directory;
  std::filesystem::path path = directory.path() / "CATENA.dat";
  DataDirectory files{directory.path()};
  RecordFile<2> file{files, "CATENA.dat"};
};

/// The watched files look themselves at what has changed.
TEST_F(RecordFileTest, WhateverStandsThereIsReadOrCountsAsNoughtAndIsReplacedOrLeft) {
  WatchedFiles watched(directory.path());
  RecordFile<2> watchedFile(watched, "CATENA.dat");
  int replaced = 0;
  for (int kind = 0; kind < WatchedFiles::kHarms; ++kind) {
    for (int size = 0; size < 100; ++size) {
      watched.harm(2 * kind + 1, size);
      Numbers2 numbers = numbersOf(7, 7);
      const bool readable = watched.read("CATENA.dat", numbers.items);
      EXPECT_TRUE(readable || numbers.items == numbersOf(7, 7).items);
      EXPECT_EQ(watchedFile.read().items, readable ? numbers.items : numbersOf(0, 0).items);
      const bool linked = std::filesystem::is_symlink(path);
      watchedFile.write(numbersOf(0x1234, -2));
      EXPECT_EQ(std::filesystem::is_symlink(path), linked);
      replaced += watchedFile.read().items == numbersOf(0x1234, -2).items;
    }
  }
  EXPECT_EQ(replaced, 500) << "all but a directory, a pipe and where none can be made";
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
  const mode_t mask = umask(027);
  ASSERT_TRUE(store(99, 1));
  umask(mask);
  EXPECT_EQ(std::filesystem::status(path).permissions(), perms{0640});
  constexpr auto kRead = perms::owner_read | perms::group_read | perms::others_read;
  constexpr auto kEnter = perms::owner_exec | perms::group_exec | perms::others_exec;
  std::filesystem::permissions(path, kRead);
  std::filesystem::permissions(directory.path(), kRead | kEnter);
  {
    const OrdinaryUser user;
    EXPECT_EQ(stored(), std::pair(99, 1));
    EXPECT_FALSE(store(5, 5));
    EXPECT_EQ(RecordFile<2>(files, "missing.dat").read().items, numbersOf(0, 0).items);
    EXPECT_FALSE(files.write("missing.dat", numbersOf(5, 5).items));
  }
  std::filesystem::permissions(path, perms::owner_write | perms::others_write);
  {
    const OrdinaryUser user;
    EXPECT_EQ(stored(), std::pair(0, 0));
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
      std::filesystem::remove(path);  // a file that is cut short some systems put on the disk at once
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
    const std::string content = contentOf(path).substr(0, engine() % 160);
    std::filesystem::remove(path);
    writeFile(path, content);
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

TEST_F(RecordFileTest, AProgramThatEndsBetweenTwoWritesLeavesTheOldNumbersOrTheNewOnes) {
  for (std::size_t length = 0; length <= 81; ++length) {
    writeFile(path, std::string(length, '\1'));
    const auto before = stored();
    int writes = 0;
    afterWriting = [&] {
      ++writes;
      EXPECT_TRUE(stored() == before || stored() == std::pair(97, 5)) << length;
    };
    EXPECT_TRUE(store(97, 5));
    afterWriting = nullptr;
    EXPECT_EQ(writes, length < 80 ? 2 : 1) << length;
  }
}

TEST_F(RecordFileTest, WhatIsNoFileOrCannotBeReadIsLeftAlone) {
  for (const char* other : {"/dev/zero", "/proc/self/mem"}) {
    std::filesystem::create_symlink(other, path);
    Numbers2 numbers = numbersOf(7, 7);
    EXPECT_FALSE(files.read("CATENA.dat", numbers.items)) << other;
    EXPECT_FALSE(store(1, 2)) << other;
    std::filesystem::remove(path);
  }
}

}  // namespace
}  // namespace tombolario
