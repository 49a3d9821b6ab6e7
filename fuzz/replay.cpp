// Runs the target on stored or random inputs, in order and without the fuzzer.
//
// Usage: replay_user FILE...               runs these inputs
//        replay_user --random SEED COUNT   runs COUNT random inputs, one per seed from SEED on
//
// Before each input it prints the arguments that replay this input alone, so the last line names
// the input that ended the process.
#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

// libFuzzer finds the target by this name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr std::size_t kRandomBytes = 4096;

// The vector has exactly the size of the input, so that the sanitizers see a read past its end.
void Run(const std::vector<char>& input) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

bool RunFile(const char* file) {
  std::cout << file << std::endl;
  std::ifstream stream(file, std::ios::binary);
  if (stream) Run({std::istreambuf_iterator<char>(stream), {}});
  return bool(stream);
}

// Uses the generator without a distribution: its numbers are the same with every compiler.
void RunRandom(std::uint64_t seed) {
  std::cout << "--random " << seed << " 1" << std::endl;
  std::mt19937_64 engine(seed);
  std::vector<char> input(kRandomBytes);
  std::generate(input.begin(), input.end(), [&] { return static_cast<char>(engine() & 0xFFU); });
  Run(input);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 4 && std::string_view(argv[1]) == "--random") {
    const std::uint64_t seed = std::stoull(argv[2]);
    const std::uint64_t count = std::stoull(argv[3]);
    for (std::uint64_t i = 0; i < count; ++i) RunRandom(seed + i);
    return 0;
  }
  if (argc > 1 && std::all_of(argv + 1, argv + argc, RunFile)) return 0;
  std::cerr << "no input, or one that cannot be read\n";
  return 1;
}
