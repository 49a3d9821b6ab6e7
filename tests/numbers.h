// Limits of numbers, by short names, and the digest of many texts.
#ifndef VAMO_TESTS_NUMBERS_H_
#define VAMO_TESTS_NUMBERS_H_

#include <cstdint>
#include <limits>
#include <string_view>

namespace vamo {

inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
inline constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

// FNV-1a with 64 bits. `digest` is that of the bytes before.
constexpr std::uint64_t Digest(std::string_view bytes, std::uint64_t digest = 0xCBF29CE484222325U) {
  for (const char c : bytes) digest = (digest ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  return digest;
}

}  // namespace vamo

#endif  // VAMO_TESTS_NUMBERS_H_
