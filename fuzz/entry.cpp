// Where libFuzzer and the replay of kept inputs come in.
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vamo::TryInput(vamo::Input(data, size));
  return 0;
}
