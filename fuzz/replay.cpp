// Runs the target over kept inputs, or over random ones, in order and without the fuzzer.
//
// Usage: replay_user FILE-OR-FOLDER...     each file, and each file of each folder
//        replay_user --random SEED COUNT   so many inputs, one of each seed from SEED on
//
// An input is named before it runs, by what replays it alone: the last one named is the one that
// has ended the process.
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

// The name by which libFuzzer finds the target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kRandomBytes = 4096;

// A vector of the input's own size, so that the sanitizers see a read past its end.
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

// The generator's numbers are the same with every compiler; distributions are not.
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
