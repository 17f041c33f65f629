#include "shell/record_file.hpp"

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

#include "sanitized.hpp"
#include "session.hpp"

namespace tombolario {
namespace {

class RecordFileTest : public testing::Test {
 protected:
  TemporaryDirectory directory;
  std::filesystem::path path = directory.path() / "some.dat";
  DataDirectory files{directory.path()};
  RecordFile file{files, "some.dat"};
};

TEST_F(RecordFileTest, ReadingAMissingFileLeavesAnEmptyOne) {
  EXPECT_EQ(file.read(1), std::nullopt);
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_EQ(std::filesystem::file_size(path), 0U);
}

TEST_F(RecordFileTest, NumbersAreLittleEndianAtTheStartOfTheirRecord) {
  EXPECT_TRUE(file.write({0x1234, -2}));
  const std::string content = contentOf(path);
  ASSERT_EQ(content.size(), 42U);
  EXPECT_EQ(content.substr(0, 2), "\x34\x12");
  EXPECT_EQ(content.substr(40), "\xFE\xFF");
  EXPECT_EQ(file.read(1), 0x1234);
  EXPECT_EQ(file.read(2), -2);
  EXPECT_EQ(file.read(3), std::nullopt);
}

TEST_F(RecordFileTest, AWriteTouchesNothingButItsNumbersAndAReadNothingAtAll) {
  std::string content(4000, 'x');
  writeFile(path, content);
  EXPECT_EQ(file.read(2), 'x' << 8 | 'x');
  EXPECT_EQ(contentOf(path), content);
  EXPECT_TRUE(file.write({8, 7}));
  content[0] = '\10';
  content[1] = '\0';
  content[40] = '\7';
  content[41] = '\0';
  EXPECT_EQ(contentOf(path), content);
}

TEST_F(RecordFileTest, HalfANumberIsNone) {
  writeFile(path, "\x64");
  EXPECT_EQ(file.read(1), std::nullopt);
  EXPECT_EQ(contentOf(path), "\x64");
}

TEST_F(RecordFileTest, WhateverStandsInTheWayIsLeftAsItIs) {
  std::filesystem::create_directory(path);
  EXPECT_EQ(file.read(1), std::nullopt);
  EXPECT_FALSE(file.write({5}));
  EXPECT_TRUE(std::filesystem::is_directory(path));
  std::filesystem::remove(path);

  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);  // to open it would wait for the other end
  EXPECT_EQ(file.read(1), std::nullopt);
  EXPECT_FALSE(file.write({5}));
  std::filesystem::remove(path);

  std::filesystem::create_symlink(directory.path() / "nowhere", path);
  EXPECT_EQ(file.read(1), std::nullopt);
  EXPECT_FALSE(file.write({5}));
  EXPECT_TRUE(std::filesystem::is_symlink(path));

  const RecordFile lost(files, "no/such/place.dat");
  EXPECT_EQ(lost.read(1), std::nullopt);
  EXPECT_FALSE(lost.write({5}));
}

TEST_F(RecordFileTest, ADirectoryThatIsGoneRefusesUntilItIsBack) {
  ASSERT_TRUE(file.write({99}));
  std::filesystem::remove_all(directory.path());
  EXPECT_EQ(file.read(1), std::nullopt);
  EXPECT_FALSE(file.write({5}));
  EXPECT_FALSE(std::filesystem::exists(directory.path()));
  std::filesystem::create_directory(directory.path());
  EXPECT_TRUE(file.write({5}));
  EXPECT_EQ(file.read(1), 5);
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
  ASSERT_TRUE(file.write({99}));
  constexpr auto kRead = perms::owner_read | perms::group_read | perms::others_read;
  constexpr auto kEnter = perms::owner_exec | perms::group_exec | perms::others_exec;
  std::filesystem::permissions(path, kRead);
  std::filesystem::permissions(directory.path(), kRead | kEnter);
  {
    const OrdinaryUser user;
    EXPECT_EQ(file.read(1), 99);
    EXPECT_FALSE(file.write({5}));
    const RecordFile missing(files, "missing.dat");
    EXPECT_EQ(missing.read(1), std::nullopt);
    EXPECT_FALSE(missing.write({5}));
  }
  std::filesystem::permissions(path, perms::owner_write | perms::others_write);
  {
    const OrdinaryUser user;
    EXPECT_EQ(file.read(1), std::nullopt);
    EXPECT_FALSE(file.write({5}));
  }
  std::filesystem::permissions(path, kRead);
  EXPECT_EQ(file.read(1), 99);
}

TEST_F(RecordFileTest, AFullDiskKeepsWhatIsStored) {
  ASSERT_TRUE(file.write({99}));
  // No file may grow past two bytes.
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{2, before.rlim_max};
  auto* handler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const bool grown = file.write({97, 5});
  const std::string whole = contentOf(path);
  const bool kept = file.write({98});
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_FALSE(grown);
  EXPECT_EQ(whole, std::string("\x63\0", 2)) << "a write that fails changes nothing";
  EXPECT_TRUE(kept);
  EXPECT_EQ(file.read(1), 98);
  EXPECT_EQ(file.read(2), std::nullopt);
}

TEST_F(RecordFileTest, AKilledProgramLeavesTheOldNumbersOrTheNewOnes) {
  constexpr int kKills = kSanitized ? 200 : 1000;
  std::mt19937 engine(20261123);
  int changed = 0;
  for (int times = 0; times < kKills; ++times) {
    const std::string before = contentOf(path);
    const int first = times % 300 * 100;  // of the numbers that this child stores
    const pid_t child = fork();
    if (child == 0) {
      for (int i = 0;; i = (i + 1) % 100) {
        const auto number = static_cast<std::int16_t>(first + i);
        if (!file.write({number, static_cast<std::int16_t>(-number)})) _exit(1);
      }
    }
    ASSERT_GT(child, 0);
    usleep(static_cast<useconds_t>(engine() % 1500));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << "a save was refused";
    const std::string after = contentOf(path);
    if (after == before) continue;
    ++changed;
    ASSERT_EQ(after.size(), 42U);
    const std::int16_t number = file.read(1).value_or(0);
    ASSERT_TRUE(number >= first && number < first + 100) << number;
    ASSERT_EQ(file.read(2), -number) << "half of a save";
  }
  EXPECT_GT(changed, kKills / 10);
}

}  // namespace
}  // namespace tombolario
