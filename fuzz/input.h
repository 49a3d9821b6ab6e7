// What the bytes of a random input stand for.
#ifndef VAMO_FUZZ_INPUT_H_
#define VAMO_FUZZ_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace vamo {

// Ends the process where something that must hold does not; the fuzzer then keeps the input.
void Require(bool holds, std::string_view what);

// Takes an input apart from its front. It never runs past the end: what is not there is zero or
// empty.
class Input {
 public:
  explicit Input(std::string_view bytes) : rest_(bytes) {}

  bool AtEnd() const { return rest_.empty(); }
  // Up to `count` bytes.
  std::string_view Take(std::size_t count);
  std::uint8_t Byte();
  std::uint64_t Number(int bytes);

  // From 0 up to, not including, `bound`, which is above 0 and of two bytes at most.
  std::size_t Below(std::size_t bound) {
    return static_cast<std::size_t>(Number(bound > 256 ? 2 : 1) % bound);
  }
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
  std::string WrittenNumber();
  // What a clipboard may hold: numbers, signs, several points, broken UTF-8, zero bytes, line
  // breaks, much of it.
  std::string OddText();

 private:
  std::string_view rest_;
};

}  // namespace vamo

#endif  // VAMO_FUZZ_INPUT_H_
