// The one table of the menu bar: the bar itself and the accessors of the windows come from it.
#ifndef VAMO_CONTROLWND_MENU_ITEMS_H_
#define VAMO_CONTROLWND_MENU_ITEMS_H_

#include "toolkit/menu_item.h"

// MENU(name, text) opens a top-level menu; ITEM(class, name, text, shortcut, auto_enabled) is an
// item of the menu above it, and SEPARATOR(name) a line between two. Items are found by name alone;
// one with an empty text is not drawn.
#define VAMO_MENU_ITEMS(MENU, ITEM, SEPARATOR)           \
  MENU(UntitledMenu3, "")                                \
  MENU(UntitledMenu2, "File")                            \
  ITEM(QuitMenuItem, FileQuit, "Quit", "Cmd+Q", true)    \
  ITEM(MenuItem, UntitledMenu8, "", "", false)           \
  MENU(UntitledMenu0, "Edit")                            \
  ITEM(MenuItem, EditUndo, "Undo", "Cmd+Z", false)       \
  SEPARATOR(UntitledMenu1)                               \
  ITEM(MenuItem, EditCut, "Cut", "Cmd+X", false)         \
  ITEM(MenuItem, EditCopy, "Copy", "Cmd+C", false)       \
  ITEM(MenuItem, EditPaste, "Paste", "Cmd+V", false)     \
  ITEM(MenuItem, EditClear, "", "", false)               \
  ITEM(MenuItem, UntitledMenu7, "", "", false)           \
  MENU(WindowMenu, "Window")                             \
  ITEM(MenuItem, ControlMenuItem, "Control", "", false)  \
  ITEM(MenuItem, AboutMenuItem, "About Vamo", "", false) \
  ITEM(MenuItem, UntitledMenu6, "", "", false)           \
  ITEM(AppleMenuItem, AboutKEL, "About Vamo", "", false) \
  ITEM(AppleMenuItem, UntitledMenu5, "", "", false)      \
  MENU(UntitledMenu4, "")

// The accessors of a window class that has a MenuBar(): one for each item, named as the item. Each
// raises IllegalCastException for an item of another class.
#define VAMO_MENU_ACCESSOR(Class, Item) \
  Ref<Class> Item() const { return Cast<Class>(MenuBar()->_Lookup(#Item)); }
#define VAMO_MENU_ACCESSOR_OF_MENU(Item, text) VAMO_MENU_ACCESSOR(MenuItem, Item)
#define VAMO_MENU_ACCESSOR_OF_ITEM(Class, Item, text, shortcut, auto_enabled) \
  VAMO_MENU_ACCESSOR(Class, Item)
#define VAMO_MENU_ACCESSOR_OF_SEPARATOR(Item) VAMO_MENU_ACCESSOR(MenuItem, Item)
#define VAMO_MENU_ACCESSORS                                               \
  VAMO_MENU_ITEMS(VAMO_MENU_ACCESSOR_OF_MENU, VAMO_MENU_ACCESSOR_OF_ITEM, \
                  VAMO_MENU_ACCESSOR_OF_SEPARATOR)

#endif  // VAMO_CONTROLWND_MENU_ITEMS_H_
