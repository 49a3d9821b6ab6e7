// Runs the target on stored or random inputs, in order and without the fuzzer.
//
// Usage: replay_user FILE-OR-FOLDER...     runs each file, and each file of each folder
//        replay_user --random SEED COUNT   runs COUNT random inputs, one per seed from SEED on
//
// Before each input it prints the arguments that replay this input alone, so the last line names
// the input that ended the process.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string_view>
#include <vector>

// libFuzzer finds the target by this name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kRandomBytes = 4096;

// The vector has exactly the size of the input, so that the sanitizers see a read past its end.
void Run(const std::vector<char>& input) {
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

bool RunFile(const fs::path& file) {
  std::cout << file.string() << std::endl;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return false;
  Run({std::istreambuf_iterator<char>(stream), {}});
  return true;
}

bool RunFilesOf(const fs::path& path) {
  if (!fs::is_directory(path)) return RunFile(path);
  const std::vector<fs::path> files(fs::directory_iterator(path), {});
  return !files.empty() && std::all_of(files.begin(), files.end(), RunFile);
}

// Uses the generator without a distribution: its numbers are the same with every compiler.
void RunRandom(std::uint64_t seed) {
  std::cout << "--random " << seed << " 1" << std::endl;
  std::mt19937_64 engine(seed);
  std::vector<char> input(kRandomBytes);
  std::generate(input.begin(), input.end(), [&] { return static_cast<char>(engine() & 0xFFU); });
  Run(input);
}

bool RunRandomFrom(const char* seed, const char* count) {
  constexpr int kDecimal = 10;
  const std::uint64_t first = std::strtoull(seed, nullptr, kDecimal);
  const std::uint64_t inputs = std::strtoull(count, nullptr, kDecimal);
  for (std::uint64_t i = 0; i < inputs; ++i) RunRandom(first + i);
  return inputs > 0;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  const bool random = argc == 4 && arguments[0] == "--random";
  if (random ? RunRandomFrom(argv[2], argv[3])
             : argc > 1 && std::all_of(arguments.begin(), arguments.end(), RunFilesOf)) {
    return 0;
  }
  std::cerr << "no input, or one that cannot be read\n";
  return 1;
}
