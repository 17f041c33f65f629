#include "web/browser.hpp"

#include <cstddef>
#include <optional>
#include <vector>

#include "host/records.hpp"

namespace tombolario {

namespace {

extern "C" {
/// How many bytes were read; -1 if the file cannot be read.
int files_read(const char* name, unsigned char* bytes, std::size_t count);
bool files_write(const char* name, const unsigned char* bytes, std::size_t count);
void link_open(const char* address);
}

/// The bytes of the first records, fewer where the file is shorter; nothing if it cannot be read.
std::optional<std::vector<unsigned char>> headOf(const std::string& name, std::size_t records) {
  std::vector<unsigned char> bytes(records * kRecordSize);
  const int present = files_read(name.c_str(), bytes.data(), bytes.size());
  if (present < 0) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(present));
  return bytes;
}

}  // namespace

bool BrowserFiles::read(const std::string& name, std::span<std::int16_t> numbers) {
  const auto bytes = headOf(name, numbers.size());
  if (bytes) readNumbers(*bytes, numbers);
  return bytes.has_value();
}

bool BrowserFiles::write(const std::string& name, std::span<const std::int16_t> numbers) {
  auto bytes = headOf(name, numbers.size());
  if (!bytes) return false;
  bytes->resize(numbers.size() * kRecordSize);
  putNumbers(*bytes, numbers);
  return files_write(name.c_str(), bytes->data(), bytes->size());
}

void BrowserHost::openAddress(const std::string& address) { link_open(address.c_str()); }

}  // namespace tombolario
