#include "probe.h"

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <limits>

#include "screen_user.h"

namespace vamo {
namespace {

using Clock = std::chrono::steady_clock;

// Long enough for the window manager to finish and for the focus to arrive.
constexpr std::chrono::milliseconds kRest{300};

// The sample size at which the slider of r is moved. There every move changes every result.
constexpr int kN = 30;

double Milliseconds(Clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

long ResidentKibibytes() {
  long all = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> all >> resident;
  return resident * sysconf(_SC_PAGESIZE) / 1024;
}

// Ends without closing the windows: the measurement is over.
[[noreturn]] void End(bool success) {
  std::fflush(stdout);
  std::_Exit(success ? EXIT_SUCCESS : EXIT_FAILURE);
}

// The slider that ends at `maximum`.
QSlider* SliderTo(const QWidget& window, int maximum) {
  for (QSlider* slider : window.findChildren<QSlider*>()) {
    if (slider->maximum() == maximum) return slider;
  }
  return nullptr;
}

void SendMouse(QSlider& slider, QEvent::Type type, int position) {
  const Scale scale{.least = 1.0 * slider.minimum(), .greatest = 1.0 * slider.maximum()};
  const QPoint at(KnobAt(position, scale, slider.width()), slider.height() / 2);
  const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, at, slider.mapToGlobal(at), button, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&slider, &event);
}

}  // namespace

Probe::Probe(int argc, char** argv) : mode_(argc > 1 ? argv[1] : "") {
  if (!mode_.empty()) qApp->installEventFilter(this);
}

bool Probe::eventFilter(QObject* watched, QEvent* event) {
  // A QWindow gets paint events too, before its widgets.
  if (event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
  painted_ = true;
  auto* widget = static_cast<QWidget*>(watched)->window();
  if (splash_ == nullptr) {
    splash_ = widget;
    OncePainted([this] { SplashShown(); });
  } else if (window_ == nullptr && widget != splash_) {
    window_ = widget;
    OncePainted([this] { WindowShown(); });
  }
  return false;
}

void Probe::OncePainted(const std::function<void()>& then) {
  QTimer::singleShot(0, this, [then] {
    QGuiApplication::sync();
    then();
  });
}

void Probe::SplashShown() {
  if (mode_ == "splash") {
    std::printf("%.3f\n", Milliseconds(Clock::now().time_since_epoch()));
    End(true);
  }
  QTimer::singleShot(kRest, this, [this] {
    key_pressed_ = Clock::now();
    QApplication::postEvent(splash_, new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier,
                                                   QStringLiteral(" ")));
  });
}

void Probe::WindowShown() {
  if (mode_ == "window") {
    std::printf("%.3f\n", Milliseconds(Clock::now() - key_pressed_));
    End(true);
  }
  QTimer::singleShot(kRest, this, [this] {
    SliderTo(*window_, 1000)->setValue(kN);
    slider_ = SliderTo(*window_, 99);
    Paint();
    if (mode_ == "chart" || mode_ == "growth") OpenChart();
    if (mode_ == "slide" || mode_ == "chart") MeasureSlide();
    if (mode_ == "memory") MeasureMemory();
    if (mode_ == "growth") MeasureGrowth();
    if (mode_ == "texts") PrintTexts();
    End(true);
  });
}

void Probe::OpenChart() {
  const int closed = window_->width();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier);
  QApplication::sendEvent(window_, &press);
  Paint();
  if (window_->width() > closed) return;
  std::fputs("The chart does not open.\n", stderr);
  End(false);
}

void Probe::MeasureSlide() {
  Slide(100, 1);
  const std::clock_t before = std::clock();
  Slide(1000, 1);
  std::printf("%.3f\n", static_cast<double>(std::clock() - before) * 1e3 / CLOCKS_PER_SEC);
}

void Probe::MeasureMemory() {
  Slide(1000, 1);
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  std::printf("%ld\n", usage.ru_maxrss);
}

// Paints only every hundred moves, because a million paintings would take too long, and always at
// this rate, because Qt keeps the memory of its longest event queue. The smallest of ten heap
// readings counts, because queued events come and go.
void Probe::MeasureGrowth() {
  // Each position is painted once, so that all caches are full.
  Slide(200, 1);
  for (const int moves : {1000, 998'000}) {
    Slide(moves, 100);
    double heap = std::numeric_limits<double>::max();
    for (int i = 0; i < 10; ++i) {
      Slide(100, 100);
      heap = std::min(heap, static_cast<double>(mallinfo2().uordblks) / 1024);
    }
    std::printf("%.2f %ld\n", heap, ResidentKibibytes());
  }
}

void Probe::PrintTexts() {
  Slide(37, 1);
  QStringList texts;
  for (const QLabel* label : window_->findChildren<QLabel*>()) texts += label->text();
  for (const QLineEdit* field : window_->findChildren<QLineEdit*>()) texts += field->text();
  // A label with a picture has no text.
  texts.removeAll(QString());
  texts.sort();
  std::printf("%s\n", qPrintable(texts.join(u'|')));
}

void Probe::Slide(int moves, int moves_a_paint) {
  for (int i = 1; i <= moves; ++i) {
    const int position = slider_->value();
    if (position == slider_->maximum()) step_ = -1;
    if (position == slider_->minimum()) step_ = 1;
    DragTo(position + step_);
    if (i % moves_a_paint == 0) Paint();
  }
}

void Probe::DragTo(int position) {
  if (!slider_->isSliderDown()) SendMouse(*slider_, QEvent::MouseButtonPress, slider_->value());
  SendMouse(*slider_, QEvent::MouseMove, position);
  if (slider_->value() == position) return;
  std::fputs("The knob does not follow the mouse.\n", stderr);
  End(false);
}

void Probe::Paint() {
  painted_ = false;
  while (!painted_) QCoreApplication::processEvents();
}

}  // namespace vamo
