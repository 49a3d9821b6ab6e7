// Where windows are placed on the screen.
#ifndef VAMO_DISPLAYS_QT_PLACEMENT_H_
#define VAMO_DISPLAYS_QT_PLACEMENT_H_

#include "toolkit/window/window.h"

class QPoint;
class QSize;
class QWidget;

namespace vamo {

// Places a window that is about to be shown where the toolkit wants it. A platform that places all
// windows itself ignores this.
void Place(QWidget& window, const Window::Placement& placement);

// Whether the screen has room for a window of that size and its frame.
bool RoomFor(const QWidget& window, const QSize& size);

// Whether windows cannot choose their place, as on Wayland.
bool PlatformPlacesWindows();

// The largest inner width that a window can have on its screen.
int WidthOfRoom(const QWidget& window);

// Centres a window on that point, as far as the window and its frame then lie on the screen. If
// they are larger than the screen, their top left corner does.
void MoveMiddle(QWidget& window, const QPoint& middle);

// Moves a window as little as possible so that it lies on its screen.
void KeepOnScreen(QWidget& window);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_PLACEMENT_H_
