#include "displays/qt/placement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWindow>
#include <algorithm>

#include "displays/qt/window.h"

namespace vamo {
namespace {

QWidget* WidgetOf(const Ref<Window>& window) {
  for (WindowWidget* widget : AllWindows()) {
    if (window && widget->ShownWindow() == &*window) return widget;
  }
  return nullptr;
}

// The frame that the platform draws around a window, as far as it is known.
QMargins FrameOf(const QWidget& window) {
  const bool framed = !window.windowFlags().testFlag(Qt::FramelessWindowHint);
  return framed && window.windowHandle() != nullptr ? window.windowHandle()->frameMargins()
                                                    : QMargins();
}

// The available area of the screen on which the middle of a window lies. The window system may
// still name another screen for a window that has just been placed.
QRect Available(const QWidget& window) {
  const QScreen* at = window.screen()->virtualSiblingAt(window.geometry().center());
  return (at == nullptr ? window.screen() : at)->availableGeometry();
}

QRect MovedInto(const QRect& screen, QRect frame) {
  frame.moveRight(std::min(frame.right(), screen.right()));
  frame.moveBottom(std::min(frame.bottom(), screen.bottom()));
  frame.moveLeft(std::max(frame.left(), screen.left()));
  frame.moveTop(std::max(frame.top(), screen.top()));
  return frame;
}

// Puts a window there, and moves it so that it and its frame lie on the screen if they fit.
void PutInto(const QRect& screen, QWidget& window, const QRect& place, const QMargins& frame) {
  const QRect moved = MovedInto(screen, place.marginsAdded(frame)).marginsRemoved(frame);
  if (moved != window.geometry()) window.setGeometry(moved);
}

void PlaceOver(QWidget& window, const QPoint& middle, const QRect& screen) {
  QRect place(QPoint(), window.size());
  place.moveCenter(middle);
  PutInto(screen, window, place, FrameOf(window));
}

void PlaceBeside(QWidget& window, const QWidget& other) {
  const QRect screen = Available(other);
  // Its frame will be like that of the other window.
  const QMargins frame = FrameOf(other);
  const QRect neighbour = other.geometry().marginsAdded(frame);
  QRect place(neighbour.topLeft(), window.size().grownBy(frame));
  const int room_right = screen.right() - neighbour.right();
  const int room_left = neighbour.left() - screen.left();
  if (room_right >= std::min(place.width(), room_left)) {
    place.moveLeft(neighbour.right() + 1);
  } else {
    place.moveRight(neighbour.left() - 1);
  }
  PutInto(screen, window, place.marginsRemoved(frame), frame);
}

// The platform's window of a widget, created if there is none.
QWindow* Handle(QWidget& window) {
  window.winId();
  return window.windowHandle();
}

}  // namespace

void Place(QWidget& window, const Window::Placement& placement) {
  using Rule = Window::Placement::Rule;
  QWidget* other = WidgetOf(placement.other);
  Handle(window)->setTransientParent(placement.stays_with_other && other != nullptr ? Handle(*other)
                                                                                    : nullptr);
  if (placement.rule == Rule::kMiddleOfScreen) {
    const QRect screen = window.screen()->availableGeometry();
    PlaceOver(window, screen.center(), screen);
  } else if (placement.rule == Rule::kOver && other != nullptr) {
    PlaceOver(window, other->geometry().center(), Available(*other));
  } else if (placement.rule == Rule::kBeside && other != nullptr) {
    PlaceBeside(window, *other);
  }
}

bool RoomFor(const QWidget& window, const QSize& size) {
  QMargins frame = FrameOf(window);
  const bool framed = !window.windowFlags().testFlag(Qt::FramelessWindowHint);
  // The frame is unknown before the window is on the screen, and where the compositor draws it.
  if (framed && frame.isNull()) {
    frame.setTop(window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
  }
  const QSize needed = size.grownBy(frame);
  return needed.boundedTo(Available(window).size()) == needed;
}

bool PlatformPlacesWindows() {
  return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

int WidthOfRoom(const QWidget& window) {
  const QMargins frame = FrameOf(window);
  return Available(window).width() - frame.left() - frame.right();
}

void MoveMiddle(QWidget& window, const QPoint& middle) {
  PlaceOver(window, middle, Available(window));
}

void KeepOnScreen(QWidget& window) { MoveMiddle(window, window.geometry().center()); }

}  // namespace vamo
