// Runs a target over kept inputs: each file, and each file of each folder, that is named.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "target.h"

namespace {

// The files that an argument stands for.
std::vector<std::filesystem::path> FilesOf(const std::filesystem::path& path) {
  if (!std::filesystem::is_directory(path)) return {path};
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(path)) {
    files.push_back(entry.path());
  }
  return files;
}

// The name is said first: it is the last line where the input ends the process.
bool Replay(const std::filesystem::path& file) {
  std::cout << file.filename().string() << std::endl;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return false;
  // A vector of its own size, so that the sanitizers see a read past its end.
  const std::vector<char> input{std::istreambuf_iterator<char>(stream), {}};
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  int replayed = 0;
  for (int i = 1; i < argc; ++i) {
    for (const auto& file : FilesOf(argv[i])) {
      if (!Replay(file)) {
        std::cerr << "cannot read " << file << "\n";
        return 1;
      }
      ++replayed;
    }
  }
  if (replayed == 0) std::cerr << "no inputs\n";
  return replayed == 0 ? 1 : 0;
}
