// Reads numbers and texts from the bytes of a random input.
#ifndef VAMO_FUZZ_INPUT_H_
#define VAMO_FUZZ_INPUT_H_

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace vamo {

// Ends the process if a condition that must hold does not; the fuzzer then keeps the input.
void Require(bool holds, std::string_view what);

// Reads an input from its front. It never reads past the end: missing bytes are zero, missing texts
// empty.
class Input {
 public:
  explicit Input(std::string_view bytes) : rest_(bytes) {}

  bool AtEnd() const { return rest_.empty(); }
  // Up to `count` bytes.
  std::string_view Take(std::size_t count);
  std::uint8_t Byte();
  std::uint64_t Number(int bytes);

  // From 0 up to but not including `bound`, which is above 0 and fits into two bytes.
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

  // A number as a user might write it into the field of r or N; usually in the range.
  std::string WrittenNumber();
  // A text as a clipboard may hold it: numbers, signs, several points, broken UTF-8, zero bytes,
  // line breaks, sometimes very long.
  std::string OddText();

 private:
  std::string_view rest_;
};

}  // namespace vamo

#endif  // VAMO_FUZZ_INPUT_H_
