#include "displays/qt/presses.h"

#include <QApplication>
#include <QWindow>
#include <utility>

#include "displays/qt/activation.h"
#include "displays/qt/window.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// The control at a position in a window, or null.
RectControl* ControlAt(const QWidget& window, const QPoint& at) {
  QWidget* widget = window.childAt(at);
  // A control's widget may contain others.
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (const auto* found = dynamic_cast<ControlWidget*>(widget)) return found->Control();
  }
  return nullptr;
}

}  // namespace

PressRouter::PressRouter(WindowWidget& window, Activation& activation)
    : QObject(&window), window_(window), activation_(activation) {}

void PressRouter::WatchPlatformWindow() {
  if (QWindow* platform_window = window_.windowHandle()) platform_window->installEventFilter(this);
}

bool PressRouter::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      // An open menu handles it.
      if (QApplication::activePopupWidget() != nullptr) return false;
      ignoring_ = !HandlePress(static_cast<QMouseEvent&>(*event));
      return ignoring_;
    case QEvent::MouseMove:
      return ignoring_;
    case QEvent::MouseButtonRelease:
      return std::exchange(ignoring_, false);
    default:
      return false;
  }
}

bool PressRouter::HandlePress(const QMouseEvent& event) {
  if (window_.ShownWindow() == nullptr) return false;
  const Ref<Window> window = Self(window_.ShownWindow());
  const bool repeat = event.type() == QEvent::MouseButtonDblClick;
  if (!window->UserBeginsPress(repeat)) return false;
  activation_.Pressed(window_);
  RectControl* control = ControlAt(window_, event.position().toPoint());
  if (control != nullptr) window->UserFocused(Self(control));
  return true;
}

}  // namespace vamo
