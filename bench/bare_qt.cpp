// The least that a Qt program can show: an empty window.
#include <QApplication>
#include <QWidget>

#include "probe.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const vamo::Probe probe(argc, argv);
  QWidget window;
  window.resize(300, 200);
  window.show();
  return QApplication::exec();
}
