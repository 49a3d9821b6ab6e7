#include "displays/qt/placement.h"

#include <QScreen>
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

QRect Available(const QWidget& window) { return window.screen()->availableGeometry(); }

QRect MovedInto(const QRect& screen, QRect frame) {
  frame.moveRight(std::min(frame.right(), screen.right()));
  frame.moveBottom(std::min(frame.bottom(), screen.bottom()));
  frame.moveLeft(std::max(frame.left(), screen.left()));
  frame.moveTop(std::max(frame.top(), screen.top()));
  return frame;
}

void PlaceOver(QWidget& window, const QPoint& middle, const QRect& screen) {
  QRect place(QPoint(), window.size());
  place.moveCenter(middle);
  // Without the frame, of which nothing is known before the window is on the screen.
  window.setGeometry(MovedInto(screen, place));
}

void PlaceBeside(QWidget& window, const QWidget& other) {
  const QRect neighbour = other.frameGeometry();
  const QRect screen = Available(other);
  // Its frame will be like that of the other one.
  QRect place(neighbour.topLeft(), window.size() + neighbour.size() - other.size());
  if (neighbour.right() + place.width() <= screen.right()) {
    place.moveLeft(neighbour.right() + 1);
  } else if (neighbour.left() - place.width() >= screen.left()) {
    place.moveRight(neighbour.left() - 1);
  } else {
    return;
  }
  const QPoint in_frame = other.geometry().topLeft() - neighbour.topLeft();
  window.setGeometry(QRect(MovedInto(screen, place).topLeft() + in_frame, window.size()));
}

// The platform's end of a window, which is made for it where there is none yet.
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
    PlaceOver(window, Available(window).center(), Available(window));
  } else if (placement.rule == Rule::kOver && other != nullptr) {
    PlaceOver(window, other->frameGeometry().center(), Available(*other));
  } else if (placement.rule == Rule::kBeside && other != nullptr) {
    PlaceBeside(window, *other);
  }
}

bool RoomFor(const QWidget& window, const QSize& size) {
  const QSize frame = window.frameGeometry().size() - window.size();
  const QSize room = Available(window).size();
  return (size + frame).boundedTo(room) == size + frame;
}

void MoveMiddle(QWidget& window, const QPoint& middle) {
  QRect frame = window.frameGeometry();
  frame.moveCenter(middle);
  const QPoint place = MovedInto(Available(window), frame).topLeft();
  if (place != window.pos()) window.move(place);
}

void KeepOnScreen(QWidget& window) { MoveMiddle(window, window.frameGeometry().center()); }

}  // namespace vamo
