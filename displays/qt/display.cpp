// The display on Qt 6 Widgets: loop, clock, clipboard, alert.
#include "displays/qt/display.h"

#include <QClipboard>
#include <QMimeData>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <string>
#include <utility>

#include "displays/qt/accessible.h"
#include "displays/qt/activation.h"
#include "displays/qt/convert.h"
#include "displays/qt/menu.h"
#include "displays/qt/picture.h"
#include "displays/qt/speaker.h"
#include "displays/qt/start.h"
#include "displays/qt/visible_bell.h"
#include "displays/qt/window.h"
#include "displays/qt/zoom.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {
namespace {

class QtTimer : public RunningTimer {
 public:
  QtTimer(std::chrono::milliseconds period, std::function<void()> fire) : timer_(new QTimer) {
    timer_->setTimerType(Qt::PreciseTimer);
    // Runs a copy, because `fire` may destroy this object.
    QObject::connect(timer_, &QTimer::timeout, timer_, [fire = std::move(fire)] {
      const std::function<void()> running = fire;
      running();
    });
    timer_->start(
        static_cast<int>(std::min<std::int64_t>(period.count(), std::numeric_limits<int>::max())));
  }
  ~QtTimer() override {
    timer_->stop();
    timer_->deleteLater();
  }
  QtTimer(const QtTimer&) = delete;
  QtTimer& operator=(const QtTimer&) = delete;

 private:
  QTimer* timer_;
};

}  // namespace

struct QtDisplay::Parts {
  explicit Parts(const char* program)
      : name(program), application(StartApplication(argument_count, arguments.data())) {
    QAccessible::installFactory(MakeAccessible);
  }
  ~Parts() {
    QAccessible::removeFactory(MakeAccessible);
    // Destroys the windows and timers that were released after the loop ended.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  // The arguments of main for Qt, which refers to them as long as it lives.
  std::string name;
  std::array<char*, 2> arguments{name.data(), nullptr};
  int argument_count = 1;
  std::unique_ptr<QApplication> application;
  Activation activation;
  Zoom zoom;
  Speaker speaker;
  VisibleBell visible_bell;
};

QtDisplay::QtDisplay(const char* program) : parts_(std::make_unique<Parts>(program)) {}
QtDisplay::~QtDisplay() = default;

// Newer versions of Qt end the loop with an error if the connection to the display breaks; older
// ones end the process.
void QtDisplay::Run() {
  if (QApplication::exec() != 0) Runtime::Current().End(EXIT_FAILURE);
}

// Not quit(), which asks every window first whether it agrees.
void QtDisplay::Stop() { QCoreApplication::exit(0); }

std::unique_ptr<WindowView> QtDisplay::OpenWindow(Window& window) {
  return std::make_unique<QtWindowView>(window, parts_->activation, parts_->zoom);
}

void QtDisplay::Beep() {
  // Few desktops sound it: Wayland has no such sound, and X11 leaves it to the machine's speaker.
  QApplication::beep();
  parts_->visible_bell.Flash(QApplication::focusWidget());
}

void QtDisplay::Announce(std::string_view sentence) { parts_->speaker.Say(ToQString(sentence)); }

std::shared_ptr<DisplayPicture> QtDisplay::OpenPicture(std::string_view file_name) {
  return FindPicture(file_name);
}

std::unique_ptr<RunningTimer> QtDisplay::StartTimer(std::chrono::milliseconds period,
                                                    std::function<void()> fire) {
  return std::make_unique<QtTimer>(period, std::move(fire));
}

std::string QtDisplay::ClipboardText() {
  const QClipboard* clipboard = QGuiApplication::clipboard();
  // Each request blocks if the clipboard's owner hangs. This one spares the second wait.
  const QMimeData* held = clipboard->mimeData();
  if (held == nullptr || held->formats().isEmpty()) return "";
  return ToUtf8(clipboard->text());
}

// Asking another program what it holds would block until it answers.
bool QtDisplay::ClipboardMayHoldText() const {
  const QClipboard* clipboard = QGuiApplication::clipboard();
  return !clipboard->ownsClipboard() || clipboard->mimeData()->hasText();
}

void QtDisplay::SetClipboardText(std::string_view text) {
  QGuiApplication::clipboard()->setText(ToQString(text));
}

bool QtDisplay::MenuBarsLiveInWindows() const { return !kOneMenuBarOnScreen; }

std::unique_ptr<Display> MakeQtDisplay(const char* program) {
  return std::make_unique<QtDisplay>(program);
}

}  // namespace vamo
