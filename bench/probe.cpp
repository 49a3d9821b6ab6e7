#include "probe.h"

#include <malloc.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <limits>
#include <string>

namespace vamo {
namespace {

// Long enough for the window manager and the input focus to have come to rest.
constexpr std::chrono::milliseconds kRest{300};

// The sample size at which the slider of r is moved: every move changes every result there.
constexpr int kN = 30;

double Milliseconds(std::chrono::steady_clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

double ProcessorMilliseconds() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// A line of the kernel's account of this process, in KiB.
long Kibibytes(const std::string& name) {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line)) {
    if (line.starts_with(name + ":")) return std::stol(line.substr(name.size() + 1));
  }
  return 0;
}

// The windows are not taken down: what is measured is over.
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

void SendMouse(QWidget& widget, QEvent::Type type, QPoint at) {
  const bool up = type == QEvent::MouseButtonRelease;
  QMouseEvent event(type, at, widget.mapToGlobal(at),
                    type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                    up ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

// The middle of the knob at a position.
QPoint KnobAt(const QSlider& slider, int position) {
  QStyleOptionSlider option;
  option.initFrom(&slider);
  option.minimum = slider.minimum();
  option.maximum = slider.maximum();
  option.subControls = QStyle::SC_All;
  const auto part = [&](QStyle::SubControl which) {
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, which, &slider);
  };
  const QRect groove = part(QStyle::SC_SliderGroove);
  const QRect knob = part(QStyle::SC_SliderHandle);
  const int offset = QStyle::sliderPositionFromValue(slider.minimum(), slider.maximum(), position,
                                                     groove.width() - knob.width());
  return {groove.left() + offset + knob.width() / 2, knob.center().y()};
}

}  // namespace

Probe::Probe(int argc, char** argv) : mode_(argc > 1 ? QString::fromLatin1(argv[1]) : QString()) {
  if (!mode_.isEmpty()) qApp->installEventFilter(this);
}

bool Probe::eventFilter(QObject* watched, QEvent* event) {
  // A QWindow gets paint events too, ahead of its widgets.
  if (event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
  painted_ = true;
  auto* widget = static_cast<QWidget*>(watched)->window();
  if (splash_ == nullptr) {
    splash_ = widget;
    OncePainted([this] { SplashShown(*splash_); });
  } else if (window_ == nullptr && widget != splash_) {
    window_ = widget;
    OncePainted([this] { WindowShown(*window_); });
  }
  return false;
}

void Probe::OncePainted(const std::function<void()>& then) {
  QTimer::singleShot(0, this, [then] {
    QGuiApplication::sync();
    then();
  });
}

void Probe::SplashShown(QWidget& /*splash*/) {
  if (mode_ == QStringLiteral("splash")) {
    std::printf("%.3f\n", Milliseconds(Clock::now().time_since_epoch()));
    End(true);
  }
  QTimer::singleShot(kRest, this, [this] { PressKey(); });
}

void Probe::PressKey() {
  key_pressed_ = Clock::now();
  QApplication::postEvent(
      splash_, new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" ")));
}

void Probe::WindowShown(QWidget& window) {
  if (mode_ == QStringLiteral("window")) {
    std::printf("%.3f\n", Milliseconds(Clock::now() - key_pressed_));
    End(true);
  }
  QTimer::singleShot(kRest, this, [this, &window] {
    SliderTo(window, 1000)->setValue(kN);
    slider_ = SliderTo(window, 99);
    Paint();
    if (mode_ == QStringLiteral("slide")) MeasureSlide();
    if (mode_ == QStringLiteral("memory")) MeasureMemory();
    if (mode_ == QStringLiteral("growth")) MeasureGrowth();
    if (mode_ == QStringLiteral("texts")) PrintTexts();
    End(true);
  });
}

void Probe::MeasureSlide() {
  Slide(100, 1);
  const double before = ProcessorMilliseconds();
  Slide(1000, 1);
  std::printf("%.3f\n", ProcessorMilliseconds() - before);
}

void Probe::MeasureMemory() {
  Slide(1000, 1);
  std::printf("%ld\n", Kibibytes("VmHWM"));
}

void Probe::MeasureGrowth() {
  int moves = 0;
  for (const int until : {1000, 100'000, 1'000'000}) {
    SlideAndPaintSeldom(until - moves);
    PrintMemoryOfAThousand();
    moves = until + 1000;
  }
}

// A million moves would take long with a painting each. The rhythm is the same all through, since
// Qt keeps the room for the longest queue that it has had.
void Probe::SlideAndPaintSeldom(int moves) { Slide(moves, 100); }

// Of the heap the least of ten readings: what just waits for its turn does not count.
void Probe::PrintMemoryOfAThousand() {
  std::size_t heap = std::numeric_limits<std::size_t>::max();
  for (int i = 0; i < 10; ++i) {
    SlideAndPaintSeldom(100);
    heap = std::min(heap, mallinfo2().uordblks);
  }
  std::printf("%zu %ld\n", heap, Kibibytes("VmRSS"));
}

void Probe::PrintTexts() {
  for (int position = 0; position <= slider_->maximum(); ++position) {
    if (position > 0) {
      DragTo(position);
      Paint();
    }
    QStringList texts;
    for (const QLabel* label : window_->findChildren<QLabel*>()) texts += label->text();
    for (const QLineEdit* field : window_->findChildren<QLineEdit*>()) texts += field->text();
    // What shows a picture has no text.
    texts.removeAll(QString());
    texts.sort();
    std::printf("%s\n", qPrintable(texts.join(u'|')));
  }
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
  if (!slider_->isSliderDown()) {
    SendMouse(*slider_, QEvent::MouseButtonPress, KnobAt(*slider_, slider_->value()));
  }
  SendMouse(*slider_, QEvent::MouseMove, KnobAt(*slider_, position));
  if (slider_->value() == position) return;
  std::fputs("The knob does not follow the mouse.\n", stderr);
  End(false);
}

void Probe::Paint() {
  painted_ = false;
  while (!painted_) QCoreApplication::processEvents();
}

}  // namespace vamo
