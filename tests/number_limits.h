// The limits of numbers, by short names.
#ifndef VAMO_TESTS_NUMBER_LIMITS_H_
#define VAMO_TESTS_NUMBER_LIMITS_H_

#include <cstdint>
#include <limits>

namespace vamo {

inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
inline constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

}  // namespace vamo

#endif  // VAMO_TESTS_NUMBER_LIMITS_H_
