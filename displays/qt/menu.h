#ifndef VAMO_DISPLAYS_QT_MENU_H_
#define VAMO_DISPLAYS_QT_MENU_H_

#include <QMenuBar>
#include <QString>

#include "toolkit/window/menu_item.h"

namespace vamo {

class Zoom;

// Whether all windows share one menu bar at the edge of the screen.
#ifdef Q_OS_MACOS
inline constexpr bool kOneMenuBarOnScreen = true;
#else
inline constexpr bool kOneMenuBarOnScreen = false;
#endif

// The text of a menu or an item, with its first free letter as the mnemonic.
QString WithMnemonic(const QString& title, QString& letters_in_use);

// Fills an empty bar with the menus of a tree, and its View menu with the commands of `zoom` too.
// The state of the items is read each time a menu opens. On macOS Qt moves items to the application
// menu, by their roles.
void FillMenuBar(QMenuBar& bar, const MenuBar& tree, Zoom& zoom);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_MENU_H_
