// What the fuzz targets share. A target is one function that takes any bytes.
#ifndef VAMO_FUZZ_TARGET_H_
#define VAMO_FUZZ_TARGET_H_

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

// The name by which libFuzzer finds the target, and the replay of kept inputs.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace vamo {

// Ends the process where something that must hold does not; the fuzzer then keeps the input.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

// Takes an input apart from its front. It never runs past the end: what is not there is zero or
// empty.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : rest_(reinterpret_cast<const char*>(data), size) {}

  bool AtEnd() const { return rest_.empty(); }
  std::uint8_t Byte() {
    const std::string_view byte = Take(1);
    return byte.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(byte[0]);
  }
  std::uint64_t Number(int bytes) {
    std::uint64_t number = 0;
    for (; bytes > 0; --bytes) number = number << 8U | Byte();
    return number;
  }
  // A text of up to 255 bytes, behind its length.
  std::string_view ShortText() { return Take(Byte()); }
  std::string_view Rest() { return Take(rest_.size()); }

 private:
  std::string_view Take(std::size_t count) {
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  std::string_view rest_;
};

// What a target does with an input; each defines it.
void TryInput(Input input);

}  // namespace vamo

#endif  // VAMO_FUZZ_TARGET_H_
