#include "host/records.hpp"

namespace tombolario {

void readNumbers(std::span<const unsigned char> bytes, std::span<std::int16_t> numbers) {
  std::size_t place = 0;
  for (std::int16_t& number : numbers) {
    const bool whole = place + kNumberSize <= bytes.size();
    number = whole ? static_cast<std::int16_t>(bytes[place] | bytes[place + 1] << 8) : std::int16_t{0};
    place += kRecordSize;
  }
}

void putNumbers(std::span<unsigned char> bytes, std::span<const std::int16_t> numbers) {
  std::size_t place = 0;
  for (const std::int16_t number : numbers) {
    const auto word = static_cast<std::uint16_t>(number);
    bytes[place] = static_cast<unsigned char>(word & 0xFF);
    bytes[place + 1] = static_cast<unsigned char>(word >> 8);
    place += kRecordSize;
  }
}

}  // namespace tombolario
