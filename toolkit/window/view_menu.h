// The View menu. It is in every menu bar but in no tree of items: it controls how windows are
// shown, not what the program does.
#ifndef VAMO_TOOLKIT_WINDOW_VIEW_MENU_H_
#define VAMO_TOOLKIT_WINDOW_VIEW_MENU_H_

#include <string_view>
#include <vector>

#include "toolkit/object/object.h"
#include "toolkit/window/menu_item.h"

namespace vamo {

inline constexpr std::string_view kViewMenu = "View";

// Its items. A display that scales its windows adds its own items below them.
std::vector<Ref<MenuItem>> ViewItems();

// Enables the items if a visible window has a pane and no splash is active, and checks them if that
// pane is open.
void EnableViewItems();

// Performs the item's command. Returns false if it is not an item of this menu.
bool ChooseViewItem(const MenuItem& item);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_VIEW_MENU_H_
