#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tombolario {

/// The layout of a data file, in bytes.
inline constexpr std::size_t kRecordSize = 40;
inline constexpr std::size_t kNumberSize = 2;

/// The numbers at the start of the first records; 0 where the bytes end before a number does.
void readNumbers(std::span<const unsigned char> bytes, std::span<std::int16_t> numbers);

/// Puts the numbers at the start of the first records, for which the bytes must have room; nothing else
/// changes.
void putNumbers(std::span<unsigned char> bytes, std::span<const std::int16_t> numbers);

}  // namespace tombolario
