// Times the calculation and one slider event, and prints the medians in nanoseconds: a name, a tab,
// a number.
#include <benchmark/benchmark.h>

#include <array>
#include <bit>
#include <cstdio>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "controlwnd/control_wnd.h"
#include "displays/headless/user.h"
#include "flat_window.h"
#include "p_references.h"
#include "shell/startup.h"
#include "stats/interval.h"
#include "stats/significance.h"
#include "toolkit/conversions.h"

namespace vamo {
namespace {

constexpr std::int64_t kPositions = 100;

struct Sample {
  double r;
  std::int64_t N;
};
constexpr Sample kSteep{0.9, 1000};
constexpr Sample kFlat{0.1, 1000};
constexpr Sample kUsual{0.5, 30};
// The angle of kFlat, and all that a calculation does beside its passes.
constexpr Sample kOnePass{0.1, 6};

using WayToP = double (*)(double t, std::int64_t N);

// p alone, by one of the ways to it.
void P(benchmark::State& state, WayToP way, Sample sample) {
  double t = ComputeT(sample.r, sample.N);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(t);
    benchmark::DoNotOptimize(way(t, sample.N));
  }
}

// As many links as kFlat has passes. The numerator makes up for what c takes away, so that the
// value stays near 1 and the divider never gets an easy operand.
void ChainAlone(benchmark::State& state) {
  double c = Cos(ATan(ComputeT(kFlat.r, kFlat.N) / Sqrt(static_cast<double>(kFlat.N - 2))));
  double denominator = 997.0 / 3.0;
  double numerator = denominator / (c * c);
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(c);
    benchmark::DoNotOptimize(numerator);
    benchmark::DoNotOptimize(denominator);
    benchmark::DoNotOptimize(Chain(PassesOf(kFlat.N), c, numerator, denominator));
  }
}

// All results and their texts.
void Texts(benchmark::State& state, Sample sample) {
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(sample);
    const double t = ComputeT(sample.r, sample.N);
    const Interval interval = ComputeInterval(sample.r, sample.N);
    benchmark::DoNotOptimize(Format(t, "#####.00"));
    benchmark::DoNotOptimize(Format(ComputeP(t, sample.N), ".00000"));
    benchmark::DoNotOptimize(Format(interval.lo, "+.000") + " to " + Format(interval.hi, "+.000"));
    benchmark::DoNotOptimize(Format(FisherZ(sample.r), "##0.000"));
  }
}

// Moves of the slider of r over its whole range and back to the start, written flat.
void FlatEvent(benchmark::State& state, const char* n) {
  FlatWindow window(n);
  std::int64_t position = 0;
  for ([[maybe_unused]] auto _ : state) {
    position = (position + 1) % kPositions;
    window.MoveR(position);
  }
}

// Runs the program without pixels and does something with its control window, N being set.
template <class Function>
void WithControlWindow(const char* n, const Function& function) {
  Main(std::make_unique<HeadlessDisplay>([&](HeadlessUser& user) {
    user.Type(" ");
    const auto window = Cast<class ControlWnd>(ControlWnd());
    window->nEdit()->SetText(n);
    function(*window);
  }));
}

// The same moves as the display reports them to the program.
void SliderEvent(benchmark::State& state, const char* n) {
  WithControlWindow(n, [&](class ControlWnd& window) {
    const Ref<Slider> slider = window.rSlider();
    for ([[maybe_unused]] auto _ : state) slider->UserMovedTo((slider->Value() + 1) % kPositions);
  });
}

// A comparison of unlike things would mean nothing.
bool SeriesAgrees() {
  for (std::int64_t N = 5; N <= 1000; ++N) {
    for (std::int64_t k = 0; k < kPositions; ++k) {
      const double t = ComputeT(static_cast<double>(k) / 100.0, N);
      const double p = ComputeP(t, N);
      if (std::bit_cast<std::uint64_t>(p) != std::bit_cast<std::uint64_t>(PlainP(t, N))) {
        return false;
      }
    }
  }
  return true;
}

bool WindowsAgree(const char* n) {
  bool agree = true;
  WithControlWindow(n, [&](class ControlWnd& window) {
    FlatWindow flat(n);
    for (std::int64_t k = 1; k <= kPositions; ++k) {
      const std::int64_t position = k % kPositions;
      flat.MoveR(position);
      window.rSlider()->UserMovedTo(position);
      agree = agree && flat.Texts() == window.rEdit()->Text() + ' ' + window.tText()->Text() + ' ' +
                                           window.pText()->Text() + ' ' + window.ciText()->Text() +
                                           ' ' + window.zFld()->Text();
    }
  });
  return agree;
}

// Keeps the medians alone.
class MedianReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.aggregate_name != "median") continue;
      medians_[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
  }
  double Median(const std::string& name) const { return medians_.at(name); }
  void Print() const {
    for (const auto& [name, median] : medians_) std::printf("%s\t%.6g\n", name.c_str(), median);
  }

 private:
  std::map<std::string, double> medians_;
};

// A pass by itself, without what a calculation does beside its passes, and its least.
void PrintPass(const MedianReporter& reporter) {
  const auto passes = static_cast<double>(PassesOf(kFlat.N));
  const auto more_passes = passes - static_cast<double>(PassesOf(kOnePass.N));
  const double more_time = reporter.Median("p_flat") - reporter.Median("p_one_pass");
  std::printf("pass\t%.6g\n", more_time / more_passes);
  std::printf("pass_chain\t%.6g\n", reporter.Median("p_flat_chain") / passes);
}

void Register() {
  const struct {
    const char* name;
    WayToP way;
    Sample sample;
  } ways[] = {
      {"p_steep", ComputeP, kSteep},     {"p_steep_plain", PlainP, kSteep},
      {"p_flat", ComputeP, kFlat},       {"p_flat_rmath", RmathP, kFlat},
      {"p_flat_boost", BoostP, kFlat},   {"p_usual", ComputeP, kUsual},
      {"p_usual_rmath", RmathP, kUsual}, {"p_usual_boost", BoostP, kUsual},
  };
  for (const auto& row : ways) benchmark::RegisterBenchmark(row.name, P, row.way, row.sample);
  benchmark::RegisterBenchmark("p_one_pass", P, ComputeP, kOnePass);
  benchmark::RegisterBenchmark("p_flat_chain", ChainAlone);
  benchmark::RegisterBenchmark("texts_flat", Texts, kFlat);
  benchmark::RegisterBenchmark("texts_usual", Texts, kUsual);
  benchmark::RegisterBenchmark("event_1000", SliderEvent, "1000");
  benchmark::RegisterBenchmark("event_1000_flat", FlatEvent, "1000");
  benchmark::RegisterBenchmark("event_30", SliderEvent, "30");
  benchmark::RegisterBenchmark("event_30_flat", FlatEvent, "30");
}

int Bench(int argc, char** argv) {
  if (!SeriesAgrees() || !WindowsAgree("30") || !WindowsAgree("1000")) {
    std::cerr << "The results differ from those of the comparison.\n";
    return 1;
  }
  std::vector<char*> arguments(argv, argv + argc);
  std::array<std::string, 3> defaults{"--benchmark_enable_random_interleaving=true",
                                      "--benchmark_repetitions=21", "--benchmark_min_time=0.05"};
  for (std::string& argument : defaults) {
    arguments.insert(arguments.begin() + 1, argument.data());
  }
  int count = static_cast<int>(arguments.size());
  arguments.push_back(nullptr);
  benchmark::Initialize(&count, arguments.data());
  Register();
  MedianReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.Print();
  PrintPass(reporter);
  return 0;
}

}  // namespace
}  // namespace vamo

int main(int argc, char** argv) { return vamo::Bench(argc, argv); }
