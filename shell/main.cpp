// The program: Vamo on the Qt display.
#include "shell/startup.h"
#include "toolkit/qt/qt_display.h"

int main(int argc, char** argv) {
  return vamo::Main(vamo::MakeQtDisplay(argc > 0 ? argv[0] : "vamo"));
}
