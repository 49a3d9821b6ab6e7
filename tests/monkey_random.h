// What a monkey's choices come from: the same ones for the same seed, with every compiler.
#ifndef VAMO_TESTS_MONKEY_RANDOM_H_
#define VAMO_TESTS_MONKEY_RANDOM_H_

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

namespace vamo {

// Random choices from a seed. It knows no program. The distributions of the standard library are
// left aside: each library has its own.
class Random {
 public:
  explicit Random(std::uint64_t seed) : engine_(seed) {}

  // From 0 up to, not including, `bound`, which is above 0.
  std::size_t Below(std::size_t bound) { return static_cast<std::size_t>(engine_() % bound); }
  // From `least` to `greatest`.
  std::int64_t Between(std::int64_t least, std::int64_t greatest) {
    return least + static_cast<std::int64_t>(Below(static_cast<std::size_t>(greatest - least + 1)));
  }
  bool OneIn(std::size_t count) { return Below(count) == 0; }
  template <class List>
  const auto& Pick(const List& list) {
    return std::data(list)[Below(std::size(list))];
  }

  // A number as somebody might write one into the field of r or of N; mostly within its range.
  std::string Number();
  // What a clipboard may hold: signs, several points, broken UTF-8, zero bytes, line breaks, much
  // of it.
  std::string OddText();

 private:
  std::mt19937_64 engine_;
};

}  // namespace vamo

#endif  // VAMO_TESTS_MONKEY_RANDOM_H_
