// How the menus work: which items are enabled, and what happens when one is chosen.
#ifndef VAMO_TOOLKIT_WINDOW_MENU_SERVICE_H_
#define VAMO_TOOLKIT_WINDOW_MENU_SERVICE_H_

#include <string>
#include <vector>

#include "toolkit/object/object.h"
#include "toolkit/runtime/key.h"
#include "toolkit/window/menu_item.h"

namespace vamo {

// The current menu bar: the active window's, or else the application's, or nil.
Ref<MenuBar> ActiveMenuBar();

// A menu as every display draws it.
struct DrawnMenu {
  std::string text;
  std::vector<Ref<MenuItem>> items;
};

// Whether an item is drawn as a separator line.
bool IsSeparator(const MenuItem& item);
// Whether a display draws the item: it is visible and has a text.
bool IsDrawn(const MenuItem& item);

// The menus of a bar as every display draws them. Menus and items that are invisible or have no
// text are left out. The View menu comes before "Window", or else at the end. AppleMenuItems go to
// a "Help" menu at the end of the bar, where users look for them; a display whose platform has an
// application menu moves them there.
std::vector<DrawnMenu> DrawnMenus(const MenuBar& bar);

// Updates which items are enabled. Items below the top level start with what AutoEnabled says; then
// the application's EnableMenuItems runs, then the active window's; then each Edit item that can
// act on the focused text control is enabled. The View menu's items follow their own rules.
// Top-level menus always open.
void EnableMenuItems();

// A display calls this before it opens a menu. Runs EnableMenuItems as an event.
void UserOpensMenu();

// A display calls this when the user has chosen an item. A disabled item does nothing. The active
// window's handler runs first, then the application's. If neither handles the item, the toolkit
// handles Quit and the Edit items. The View menu's items are handled by the toolkit alone.
void UserChose(const Ref<MenuItem>& item);

// Chooses the item with this shortcut. Returns whether there is one that is enabled; if not, the
// key is treated like any other.
bool ChooseByShortcut(const Key& key);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_MENU_SERVICE_H_
