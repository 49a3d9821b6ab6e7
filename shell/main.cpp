// The program: Vamo on the Qt display.
#include "displays/qt/display.h"
#include "shell/startup.h"

int main(int argc, char** argv) {
  return vamo::Main(vamo::MakeQtDisplay(argc > 0 ? argv[0] : "vamo"));
}
