#include "displays/qt/activation.h"

#include <QApplication>
#include <QWindow>
#include <chrono>

#include "displays/qt/placement.h"
#include "displays/qt/window.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// Longer than a window manager needs, shorter than a user needs to go to another window.
constexpr std::chrono::milliseconds kPatience{1000};
// The time that a compositor needs to return the focus from a menu to its window.
constexpr std::chrono::milliseconds kTimeToReturn{1000};

void Report(const WindowWidget& widget) {
  if (Window* window = widget.ShownWindow()) window->UserActivated();
}

bool FocusIsInMenuOrNowhere() {
  const QWindow* focus = QGuiApplication::focusWindow();
  return focus == nullptr || focus->type() == Qt::Popup;
}

}  // namespace

Activation::Activation() {
  patience_.setSingleShot(true);
  QObject::connect(&patience_, &QTimer::timeout, [this] { GiveUp(); });
  return_.setSingleShot(true);
  QObject::connect(&return_, &QTimer::timeout, [this] { GiveUpReturn(); });
}

void Activation::Pressed(WindowWidget& window) {
  if (awaited_ != &window) awaited_ = nullptr;
  if (!window.isActiveWindow()) window.activateWindow();
}

void Activation::Await(WindowWidget& window) {
  if (window.isActiveWindow()) {
    Activated(window);
    return;
  }
  AwaitAgain(window);
}

void Activation::AwaitAgain(WindowWidget& window) {
  awaited_ = &window;
  patience_.start(kPatience);
}

void Activation::Activated(const WindowWidget& window) {
  if (awaited_ != nullptr && awaited_ != &window && awaited_->isVisible()) return;
  awaited_ = nullptr;
  patience_.stop();
  left_for_menu_ = nullptr;
  Report(window);
}

void Activation::Deactivated(WindowWidget& window) {
  if (awaited_ == &window) return;
  if (PlatformPlacesWindows() && FocusIsInMenuOrNowhere()) {
    left_for_menu_ = &window;
    return_.start(kTimeToReturn);
  } else if (Window* deactivated = window.ShownWindow()) {
    deactivated->UserDeactivated();
  }
}

void Activation::GiveUpReturn() {
  if (left_for_menu_ == nullptr || left_for_menu_->isActiveWindow()) return;
  if (Window* left = left_for_menu_->ShownWindow()) left->UserDeactivated();
}

void Activation::GiveUp() {
  awaited_ = nullptr;
  if (const auto* active = dynamic_cast<WindowWidget*>(QApplication::activeWindow()))
    Report(*active);
}

}  // namespace vamo
