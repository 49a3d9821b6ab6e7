#ifndef VAMO_DISPLAYS_QT_MENU_H_
#define VAMO_DISPLAYS_QT_MENU_H_

#include <QMenuBar>
#include <QString>

#include "toolkit/window/menu_item.h"

namespace vamo {

class Zoom;

// Whether there is one menu bar for all windows, at the edge of the screen.
#ifdef Q_OS_MACOS
inline constexpr bool kOneMenuBarOnScreen = true;
#else
inline constexpr bool kOneMenuBarOnScreen = false;
#endif

// The text of a menu or of an entry, with its first free letter as the mnemonic.
QString WithMnemonic(const QString& title, QString& letters_in_use);

// Fills an empty bar with the menus to be drawn of a tree; the View menu has the commands of
// `zoom`, too. The items' state is fetched each time that a menu opens. On macOS Qt takes the items
// for the application menu there, by their roles.
void FillMenuBar(QMenuBar& bar, const MenuBar& tree, Zoom& zoom);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_MENU_H_
