// How Qt's application object is made.
#include "qt_start.h"

#include <QPalette>
#include <QStyle>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

namespace vamo {
namespace {

// Qt says at length why it finds no desktop, and ends with a core dump.
void SayNoDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*text*/) {
  if (type != QtFatalMsg) return;
  const bool platform_set = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
  std::fprintf(stderr, "vamo: no display to connect to; %s.\n",
               platform_set ? "QT_QPA_PLATFORM may not fit this desktop"
                            : "start it in a desktop session or set DISPLAY");
  std::_Exit(EXIT_FAILURE);
}

// The windows have colours of their own, which a dark theme would make illegible in places.
QPalette LightColours() {
  QPalette colours(QColor(0xef, 0xef, 0xef));
  const auto set = [&](QPalette::ColorRole role, QColor colour, QColor disabled) {
    colours.setColor(role, colour);
    colours.setColor(QPalette::Disabled, role, disabled);
  };
  const QColor grey(0x8c, 0x8c, 0x8c);
  set(QPalette::WindowText, Qt::black, grey);
  set(QPalette::Text, Qt::black, grey);
  set(QPalette::ButtonText, Qt::black, grey);
  set(QPalette::PlaceholderText, grey, grey);
  set(QPalette::Base, Qt::white, QColor(0xf6, 0xf6, 0xf6));
  set(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6), QColor(0x91, 0x91, 0x91));
  set(QPalette::HighlightedText, Qt::white, Qt::white);
  set(QPalette::ToolTipBase, QColor(0xff, 0xff, 0xdc), QColor(0xff, 0xff, 0xdc));
  set(QPalette::ToolTipText, Qt::black, Qt::black);
  return colours;
}

}  // namespace

std::unique_ptr<QApplication> StartApplication(int& argc, char** argv) {
  const QtMessageHandler usual = qInstallMessageHandler(SayNoDisplay);
  auto application = std::make_unique<QApplication>(argc, argv);
  qInstallMessageHandler(usual);
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setPalette(LightColours());
  QApplication::setQuitOnLastWindowClosed(false);
  // An installed program is known to the desktop by its desktop file, and its icon by the theme.
  QGuiApplication::setDesktopFileName(QStringLiteral("vamo"));
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("vamo")));
  return application;
}

}  // namespace vamo
