// The program itself, with a probe.
#include "displays/qt/display.h"
#include "probe.h"
#include "shell/startup.h"

int main(int argc, char** argv) {
  auto display = vamo::MakeQtDisplay(argv[0]);
  const vamo::Probe probe(argc, argv);
  return vamo::Main(std::move(display));
}
