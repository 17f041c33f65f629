#include "shell/record_file.hpp"

namespace tombolario {

namespace {

constexpr std::size_t kRecordSize = 40;

/// How many bytes there are up to the number of the last of so many records, that number with them.
constexpr std::size_t extent(std::size_t records) { return (records - 1) * kRecordSize + 2; }

}  // namespace

std::optional<std::int16_t> RecordFile::read(int record) const {
  const std::size_t size = extent(static_cast<std::size_t>(record));
  const auto bytes = files_.read(name_, size);
  if (!bytes || bytes->size() < size) return std::nullopt;
  return static_cast<std::int16_t>((*bytes)[size - 2] | (*bytes)[size - 1] << 8);
}

bool RecordFile::write(std::initializer_list<std::int16_t> values) const {
  auto bytes = files_.read(name_, extent(values.size()));  // what lies between the numbers stays
  if (!bytes) return false;
  bytes->resize(extent(values.size()));
  auto place = bytes->begin();
  for (const std::int16_t value : values) {
    const auto word = static_cast<std::uint16_t>(value);
    place[0] = static_cast<unsigned char>(word & 0xFF);
    place[1] = static_cast<unsigned char>(word >> 8);
    if (&value != values.end() - 1) place += kRecordSize;
  }
  return files_.write(name_, *bytes);
}

}  // namespace tombolario
