#include "displays/qt/start.h"

#include <QPalette>
#include <QScreen>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

#include "displays/qt/style.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace vamo {
namespace {

// Without a desktop, Qt explains itself at length and ends with a core dump.
void SayNoDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*text*/) {
  if (type != QtFatalMsg) return;
  const bool platform_set = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
  std::fprintf(stderr, "vamo: no display to connect to; %s.\n",
               platform_set ? "QT_QPA_PLATFORM may not fit this desktop"
                            : "start it in a desktop session or set DISPLAY");
  std::_Exit(EXIT_FAILURE);
}

// Qt crashes if it cannot paint.
void EndWithTooFewColours() {
  constexpr int kLeastDepth = 15;
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr || screen->depth() >= kLeastDepth) return;
  std::fprintf(stderr, "vamo: the display has too few colours; it needs a depth of %d bits.\n",
               kLeastDepth);
  std::_Exit(EXIT_FAILURE);
}

// The windows have their own colours, which a dark theme would make illegible in places.
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

// The parent process may have closed the standard streams. The next file that is opened, such as
// the connection to the display, would then take the number of one of them and receive its output.
void KeepStandardStreams() {
#ifdef Q_OS_UNIX
  int file = open("/dev/null", O_RDWR);
  while (file >= 0 && file <= STDERR_FILENO) file = dup(file);
  if (file >= 0) close(file);
#endif
}

}  // namespace

std::unique_ptr<QApplication> StartApplication(int& argc, char** argv) {
  KeepStandardStreams();
  const QtMessageHandler usual = qInstallMessageHandler(SayNoDisplay);
  auto application = std::make_unique<QApplication>(argc, argv);
  qInstallMessageHandler(usual);
  EndWithTooFewColours();
  QApplication::setStyle(new OutlinedStyle);
  QApplication::setPalette(LightColours());
  // On a desktop with right-to-left text, a number that begins with a point would end with it.
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  QApplication::setQuitOnLastWindowClosed(false);
  // The desktop knows an installed program by its desktop file, and its icon by the theme.
  QGuiApplication::setDesktopFileName(QStringLiteral("vamo"));
  QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("vamo")));
  return application;
}

}  // namespace vamo
