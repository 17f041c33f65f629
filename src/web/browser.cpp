#include "web/browser.hpp"

namespace tombolario {

namespace {

extern "C" {
/// How many bytes were read; -1 if the file cannot be read.
int files_read(const char* name, unsigned char* bytes, std::size_t count);
bool files_write(const char* name, const unsigned char* bytes, std::size_t count);
void link_open(const char* address);
}

}  // namespace

std::optional<DataFiles::Bytes> BrowserFiles::read(const std::string& name, std::size_t count) {
  Bytes bytes(count);
  const int present = files_read(name.c_str(), bytes.data(), count);
  if (present < 0) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(present));
  return bytes;
}

bool BrowserFiles::write(const std::string& name, std::span<const unsigned char> bytes) {
  return files_write(name.c_str(), bytes.data(), bytes.size());
}

void BrowserHost::openAddress(const std::string& address) { link_open(address.c_str()); }

}  // namespace tombolario
