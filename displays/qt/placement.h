// Where windows go on the screen.
#ifndef VAMO_DISPLAYS_QT_PLACEMENT_H_
#define VAMO_DISPLAYS_QT_PLACEMENT_H_

#include "toolkit/window/window.h"

class QPoint;
class QSize;
class QWidget;

namespace vamo {

// Puts a window that is about to be shown where the toolkit wants it. A platform that places all
// windows itself goes its own way.
void Place(QWidget& window, const Window::Placement& placement);

// Whether the screen has the room for a window of that size, with what the platform draws around
// it.
bool RoomFor(const QWidget& window, const QSize& size);

// Whether a window cannot choose its place, as under Wayland.
bool PlatformPlacesWindows();

// How wide the inside of a window can be there.
int WidthOfRoom(const QWidget& window);

// Moves the middle of a window there, as far as all of it then lies on the screen, with what the
// platform draws around it. Of one that is too large the top left corner does.
void MoveMiddle(QWidget& window, const QPoint& middle);

// Moves a window by as little as possible so that it lies on its screen.
void KeepOnScreen(QWidget& window);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_PLACEMENT_H_
