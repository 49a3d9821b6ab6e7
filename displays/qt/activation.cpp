#include "displays/qt/activation.h"

#include <QApplication>
#include <chrono>

#include "displays/qt/window.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// More than a window manager needs, less than a user to go to another window.
constexpr std::chrono::milliseconds kPatience{1000};

void Report(const WindowWidget& widget) {
  if (Window* window = widget.ShownWindow()) window->UserActivated();
}

}  // namespace

Activation::Activation() {
  patience_.setSingleShot(true);
  QObject::connect(&patience_, &QTimer::timeout, [this] { GiveUp(); });
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
  awaited_ = &window;
  patience_.start(kPatience);
}

void Activation::Activated(const WindowWidget& window) {
  if (awaited_ != nullptr && awaited_ != &window && awaited_->isVisible()) return;
  awaited_ = nullptr;
  patience_.stop();
  Report(window);
}

void Activation::Deactivated(const WindowWidget& window) {
  if (Window* deactivated = window.ShownWindow()) deactivated->UserDeactivated();
}

void Activation::GiveUp() {
  awaited_ = nullptr;
  if (const auto* active = dynamic_cast<WindowWidget*>(QApplication::activeWindow()))
    Report(*active);
}

}  // namespace vamo
