// The View menu, which is in every menu bar and in no tree of items: it is about how windows are
// shown, not about what the program does.
#ifndef VAMO_TOOLKIT_WINDOW_VIEW_MENU_H_
#define VAMO_TOOLKIT_WINDOW_VIEW_MENU_H_

#include <string_view>
#include <vector>

#include "toolkit/object/object.h"
#include "toolkit/window/menu_item.h"

namespace vamo {

inline constexpr std::string_view kViewMenu = "View";

// Its items. A display that scales its windows adds its own below them.
std::vector<Ref<MenuItem>> ViewItems();

// Brings them up to date: whether there is a window with a pane, unless a splash has the keys, and
// whether that pane is open.
void EnableViewItems();

// Does what the item is for. False: it is none of them.
bool ChooseViewItem(const MenuItem& item);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_VIEW_MENU_H_
