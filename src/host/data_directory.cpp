#include "host/data_directory.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstddef>
#include <optional>
#include <vector>

#include "host/records.hpp"

namespace tombolario {

namespace {

using Bytes = std::vector<unsigned char>;

/// An open plain file.
class File {
 public:
  /// `access` is O_RDONLY or O_RDWR. To open a pipe without O_NONBLOCK would wait for its other end.
  File(const std::filesystem::path& path, int access)
      : file_(open(path.c_str(), access | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666)) {}
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() {
    if (file_ >= 0) close(file_);
  }

  bool isPlain() const {
    struct stat found {};
    return file_ >= 0 && fstat(file_, &found) == 0 && S_ISREG(found.st_mode);
  }
  /// The first bytes, that many or as many as there are.
  std::optional<Bytes> head(std::size_t count) const {
    Bytes bytes(count);
    const ssize_t present = pread(file_, bytes.data(), count, 0);
    if (present < 0) return std::nullopt;
    bytes.resize(static_cast<std::size_t>(present));
    return bytes;
  }
  /// False if not all of it could be written.
  bool put(std::span<const unsigned char> bytes, std::size_t place) const {
    return pwrite(file_, bytes.data(), bytes.size(), static_cast<off_t>(place)) ==
           static_cast<ssize_t>(bytes.size());
  }
  bool cut(std::size_t length) const { return ftruncate(file_, static_cast<off_t>(length)) == 0; }
  bool sync() const { return fdatasync(file_) == 0; }

 private:
  int file_;
};

/// A file that may not grow any more is like a full disk: a write fails. Without this it would end the
/// program.
class LimitsFail {
 public:
  LimitsFail() : before_(std::signal(SIGXFSZ, SIG_IGN)) {}
  LimitsFail(const LimitsFail&) = delete;
  LimitsFail& operator=(const LimitsFail&) = delete;
  ~LimitsFail() { std::signal(SIGXFSZ, before_); }

 private:
  void (*before_)(int);
};

/// Zeros from the end of the file on, where the numbers that it lacks count as zeros anyhow. Half a number at
/// the end counts as none, and so goes with them.
bool grow(const File& file, std::size_t from, std::size_t to) {
  if (from % kRecordSize != 0 && from % kRecordSize < kNumberSize) from -= from % kRecordSize;
  return from >= to || file.put(Bytes(to - from), from);
}

}  // namespace

bool DataDirectory::read(const std::string& name, std::span<std::int16_t> numbers) {
  const File file(path_ / name, O_RDONLY);
  if (!file.isPlain()) return false;
  const std::optional<Bytes> bytes = file.head(numbers.size() * kRecordSize);
  if (bytes) readNumbers(*bytes, numbers);
  return bytes.has_value();
}

bool DataDirectory::write(const std::string& name, std::span<const std::int16_t> numbers) {
  const LimitsFail whileWriting;
  const File file(path_ / name, O_RDWR);
  if (!file.isPlain()) return false;
  const std::size_t length = numbers.size() * kRecordSize;
  const std::optional<Bytes> before = file.head(length);
  if (!before) return false;
  Bytes records = *before;
  records.resize(length);
  putNumbers(records, numbers);
  // Where the file must grow, a disk may be full: there is room for all of the numbers before the first of
  // them is written.
  if (grow(file, before->size(), length) && file.put(records, 0) && file.sync()) return true;
  file.put(*before, 0);
  if (before->size() < length) file.cut(before->size());
  return false;
}

}  // namespace tombolario
