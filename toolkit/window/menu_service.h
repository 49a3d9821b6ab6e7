// How the menus work: which items are enabled, and what happens when one is chosen.
#ifndef VAMO_TOOLKIT_WINDOW_MENU_SERVICE_H_
#define VAMO_TOOLKIT_WINDOW_MENU_SERVICE_H_

#include <string>
#include <vector>

#include "toolkit/object/object.h"
#include "toolkit/runtime/key.h"
#include "toolkit/window/menu_item.h"

namespace vamo {

// The bar that is in force: the active window's own or else the application's; nil for neither.
Ref<MenuBar> ActiveMenuBar();

// A menu as it is drawn where the bar lives in a window.
struct DrawnMenu {
  std::string text;
  std::vector<Ref<MenuItem>> items;
};

// Whether an item is drawn as a line between others.
bool IsSeparator(const MenuItem& item);

// The menus to be drawn where the bar lives in a window. A menu or an item that is invisible or has
// no text is left out; AppleMenuItems go to a "Help" menu at the end of the bar, where people look
// for them.
std::vector<DrawnMenu> DrawnMenus(const MenuBar& bar);

// Brings the items up to date. Those below the top level get what AutoEnabled says; then the
// application's EnableMenuItems runs, then the active window's; then each Edit item that the
// focused text control can serve is enabled. Top-level menus always open.
void EnableMenuItems();

// A display calls this before it opens a menu, as an event of its own.
void UserOpensMenu();

// A display calls this when the user has chosen an item. A disabled one does nothing. The active
// window's handler comes first, then the application's; where both pass it on, or there is none,
// the toolkit serves Quit and the Edit items.
void UserChose(const Ref<MenuItem>& item);

// Chooses the item whose shortcut the key is. Whether there is one that is enabled; else the key is
// a key like any other.
bool ChooseByShortcut(const Key& key);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_MENU_SERVICE_H_
