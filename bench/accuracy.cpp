// Writes the results for a program that checks them.
//
// Usage: accuracy values        for each N from 4 to 1000 and each r from 0 to .999 by .001:
//                               t, p, z and the limits of the interval as native doubles
//        accuracy texts MASK    for each double on standard input, a line with its text
#include <array>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

#include "stats/interval.h"
#include "stats/significance.h"
#include "toolkit/conversions.h"

namespace vamo {
namespace {

void PrintValues() {
  for (std::int64_t N = 4; N <= 1000; ++N) {
    for (std::int64_t k = 0; k < 1000; ++k) {
      const double r = static_cast<double>(k) / 1000.0;
      const double t = ComputeT(r, N);
      const Interval interval = ComputeInterval(r, N);
      const std::array values{t, ComputeP(t, N), FisherZ(r), interval.lo, interval.hi};
      std::fwrite(values.data(), sizeof(double), values.size(), stdout);
    }
  }
}

void PrintTexts(const char* mask) {
  double value = 0;
  while (std::fread(&value, sizeof value, 1, stdin) == 1) {
    std::puts(Format(value, mask).c_str());
  }
}

}  // namespace
}  // namespace vamo

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "values") == 0) {
    vamo::PrintValues();
  } else if (argc == 3 && std::strcmp(argv[1], "texts") == 0) {
    vamo::PrintTexts(argv[2]);
  } else {
    std::cerr << "usage: accuracy values | accuracy texts MASK\n";
    return 1;
  }
  return std::fflush(stdout) == 0 ? 0 : 1;
}
