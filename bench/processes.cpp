// Runs the program and the program written by hand in turn and prints the medians of what their
// probes measure.
#include <chrono>
#include <iostream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "child.h"
#include "median.h"

namespace vamo {
namespace {

// The programs of a folder, each with a probe.
class Programs {
 public:
  explicit Programs(std::string folder) : folder_(std::move(folder)) {}

  std::string Run(const std::string& program, const std::string& mode) const {
    return Output({folder_ + "/" + program, mode});
  }

  // Measures both programs in `mode` and, if `other` is given, the program in that mode too.
  void Compare(const std::string& mode, int repetitions, const std::string& other = "") const {
    std::map<std::string, std::vector<double>> values;
    // The first round is for warming up.
    for (int round = 0; round <= repetitions; ++round) {
      const auto measure = [&](const std::string& program, const std::string& in_mode) {
        const double value = Measure(program, in_mode);
        if (round > 0) values[in_mode + "_" + program].push_back(value);
      };
      for (const std::string program : {"program", "plain_qt"}) measure(program, mode);
      if (!other.empty()) measure("program", other);
    }
    for (const auto& [name, measured] : values) PrintMedian(name, measured);
  }

 private:
  double Measure(const std::string& program, const std::string& mode) const {
    const std::chrono::duration<double, std::milli> start =
        std::chrono::steady_clock::now().time_since_epoch();
    const double number = std::stod(Run(program, mode));
    return mode == "splash" ? number - start.count() : number;
  }

  const std::string folder_;
};

void Measure(const Programs& programs) {
  if (programs.Run("program", "texts") != programs.Run("plain_qt", "texts")) {
    throw std::runtime_error("the windows show different texts");
  }
  programs.Compare("splash", 51);
  programs.Compare("window", 31);
  programs.Compare("slide", 15, "chart");
  programs.Compare("memory", 7);
  std::istringstream growth(programs.Run("program", "growth"));
  for (const std::string moves : {"thousand", "million"}) {
    double heap = 0;
    double resident = 0;
    growth >> heap >> resident;
    PrintMedian("heap_" + moves, {heap});
    PrintMedian("resident_" + moves, {resident});
  }
}

}  // namespace
}  // namespace vamo

int main(int argc, char** argv) {
  try {
    if (argc != 2) throw std::runtime_error("usage: processes FOLDER");
    vamo::Measure(vamo::Programs(argv[1]));
  } catch (const std::exception& exception) {
    std::cerr << "processes: " << exception.what() << '\n';
    return 1;
  }
}
