// Accessors of the menu items, for the window classes that have the menu bar.
#ifndef VAMO_CONTROLWND_MENU_ACCESSORS_H_
#define VAMO_CONTROLWND_MENU_ACCESSORS_H_

#include "toolkit/window/menu_item.h"

// Each accessor has the name of its item, which it finds in the window's menu bar. It raises
// IllegalCastException if the item is of another class.
#define VAMO_MENU_ACCESSOR(Class, Item) \
  virtual Ref<Class> Item() const { return Cast<Class>(MenuBar()->_Lookup(#Item)); }

#define VAMO_MENU_ACCESSORS                        \
  VAMO_MENU_ACCESSOR(MenuItem, UntitledMenu4)      \
  VAMO_MENU_ACCESSOR(MenuItem, WindowMenu)         \
  VAMO_MENU_ACCESSOR(AppleMenuItem, UntitledMenu5) \
  VAMO_MENU_ACCESSOR(AppleMenuItem, AboutKEL)      \
  VAMO_MENU_ACCESSOR(MenuItem, UntitledMenu6)      \
  VAMO_MENU_ACCESSOR(MenuItem, AboutMenuItem)      \
  VAMO_MENU_ACCESSOR(MenuItem, ControlMenuItem)    \
  VAMO_MENU_ACCESSOR(MenuItem, UntitledMenu0)      \
  VAMO_MENU_ACCESSOR(MenuItem, UntitledMenu7)      \
  VAMO_MENU_ACCESSOR(MenuItem, EditClear)          \
  VAMO_MENU_ACCESSOR(MenuItem, EditPaste)          \
  VAMO_MENU_ACCESSOR(MenuItem, EditCopy)           \
  VAMO_MENU_ACCESSOR(MenuItem, EditCut)            \
  VAMO_MENU_ACCESSOR(MenuItem, UntitledMenu1)      \
  VAMO_MENU_ACCESSOR(MenuItem, EditUndo)           \
  VAMO_MENU_ACCESSOR(MenuItem, UntitledMenu2)      \
  VAMO_MENU_ACCESSOR(MenuItem, UntitledMenu8)      \
  VAMO_MENU_ACCESSOR(QuitMenuItem, FileQuit)       \
  VAMO_MENU_ACCESSOR(MenuItem, UntitledMenu3)

#endif  // VAMO_CONTROLWND_MENU_ACCESSORS_H_
