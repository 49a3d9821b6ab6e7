// Runs the program and its comparisons in turn and prints the medians of what their probes say: a
// name, a tab, a number.
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace vamo {
namespace {

double MillisecondsNow() {
  return std::chrono::duration<double, std::milli>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

std::string ReadAll(int file) {
  std::string text;
  char buffer[4096];
  for (ssize_t got = 0; (got = read(file, buffer, sizeof buffer)) > 0;) {
    text.append(buffer, static_cast<std::size_t>(got));
  }
  return text;
}

// What a program of this folder prints when its probe is to take a measurement.
std::string Run(const std::string& folder, const std::string& program, const std::string& mode) {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("no pipe");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  posix_spawn_file_actions_addclose(&actions, ends[0]);
  posix_spawn_file_actions_addclose(&actions, ends[1]);
  std::string path = folder + "/" + program;
  std::string argument = mode;
  char* arguments[] = {path.data(), argument.data(), nullptr};
  pid_t child = 0;
  if (posix_spawn(&child, path.c_str(), &actions, nullptr, arguments, environ) != 0) {
    throw std::runtime_error("cannot start " + path);
  }
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  std::string text = ReadAll(ends[0]);
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (status != 0) throw std::runtime_error(program + " " + mode + " has failed");
  return text;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t half = values.size() / 2;
  return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

// A measurement of two or more programs.
struct Comparison {
  std::string mode;
  std::vector<std::string> programs;
  int repetitions;
};

double Measure(const std::string& folder, const std::string& program, const std::string& mode) {
  const double start = MillisecondsNow();
  const double number = std::stod(Run(folder, program, mode));
  return mode == "splash" ? number - start : number;
}

void Compare(const std::string& folder, const Comparison& comparison) {
  std::vector<std::vector<double>> values(comparison.programs.size());
  // The first round warms up and does not count.
  for (int round = 0; round <= comparison.repetitions; ++round) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const double value = Measure(folder, comparison.programs[i], comparison.mode);
      if (round > 0) values[i].push_back(value);
    }
  }
  for (std::size_t i = 0; i < values.size(); ++i) {
    std::cout << comparison.mode << "_" << comparison.programs[i] << '\t' << Median(values[i])
              << std::endl;
  }
}

// Memory after a thousand moves, a hundred thousand and a million of them.
void PrintGrowth(const std::string& folder) {
  std::istringstream text(Run(folder, "program", "growth"));
  for (const char* moves : {"thousand", "hundred_thousand", "million"}) {
    double heap = 0;
    double resident = 0;
    text >> heap >> resident;
    std::cout << "heap_" << moves << '\t' << heap / 1024 << "\nresident_" << moves << '\t'
              << resident << std::endl;
  }
}

int Main(const std::string& folder) {
  std::cout.precision(8);
  if (Run(folder, "program", "texts") != Run(folder, "plain_qt", "texts")) {
    throw std::runtime_error("the windows show different texts");
  }
  const std::vector<std::string> both{"program", "plain_qt"};
  Compare(folder, {"splash", {"program", "bare_qt", "plain_qt"}, 51});
  Compare(folder, {"window", both, 31});
  Compare(folder, {"slide", both, 15});
  Compare(folder, {"memory", both, 7});
  PrintGrowth(folder);
  return 0;
}

}  // namespace
}  // namespace vamo

int main(int argc, char** argv) {
  try {
    if (argc != 2) throw std::runtime_error("usage: processes FOLDER");
    return vamo::Main(argv[1]);
  } catch (const std::exception& exception) {
    std::cerr << "processes: " << exception.what() << '\n';
    return 1;
  }
}
