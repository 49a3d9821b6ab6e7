// The menu bar of the program, built from its table.
#include "shell/menu.h"

#include <array>
#include <string_view>

#include "controlwnd/menu_items.h"
#include "toolkit/runtime.h"

namespace vamo {
namespace {

enum class Level { kMenu, kItem };

struct Row {
  Level level;
  Ref<MenuItem> (*make)();
  std::string_view name;
  std::string_view text;
  // Nothing where the shortcut is never written.
  const char* shortcut;
  bool auto_enabled;
};

template <class Item>
Ref<MenuItem> Make() {
  return New<Item>();
}

#define VAMO_MENU_ROW(name, text) Row{Level::kMenu, Make<MenuItem>, #name, text, "", false},
#define VAMO_ITEM_ROW(Class, name, text, shortcut, auto_enabled) \
  Row{Level::kItem, Make<Class>, #name, text, shortcut, auto_enabled},
#define VAMO_SEPARATOR_ROW(name) Row{Level::kItem, Make<MenuItem>, #name, "-", nullptr, false},

constexpr Row kRows[] = {VAMO_MENU_ITEMS(VAMO_MENU_ROW, VAMO_ITEM_ROW, VAMO_SEPARATOR_ROW)};

Ref<MenuItem> Build(const Row& row) {
  Ref<MenuItem> item = row.make();
  item->SetName(row.name);
  item->SetAutoEnabled(row.auto_enabled);
  item->SetValue(row.text);
  item->SetVisible(true);
  if (row.shortcut != nullptr) item->SetShortcut(row.shortcut);
  return item;
}

// Adds the top-level menu of that name and the items that follow it in the table.
void AddTopLevelMenu(MenuBar& bar, std::string_view name) {
  bool inside = false;
  for (const Row& row : kRows) {
    if (row.level == Level::kMenu) {
      inside = row.name == name;
      if (inside) bar.AddMenu(Build(row));
    } else if (inside) {
      bar.Child(name)->AddMenu(Build(row));
    }
  }
}

}  // namespace

struct MenuFields {
  Ref<class Menu> implicit_instance;
};

constinit const ClassInfo Menu::kClass{"Menu.Menu", &MenuBar::kClass, {}};

Ref<MenuBar> Menu() {
  Ref<class Menu>& instance = Runtime::Current().ModuleFields<MenuFields>().implicit_instance;
  if (!instance) {
    const Ref<class Menu> menu = New<class Menu>();
    menu->Constructor();
    instance = menu;
  }
  return instance;
}

void Menu::Constructor() {
  Untitled0();
  Untitled1();
  Untitled2();
  Untitled3();
  Untitled4();
}

void Menu::Untitled0() { AddTopLevelMenu(*this, "UntitledMenu3"); }
void Menu::Untitled1() { AddTopLevelMenu(*this, "UntitledMenu2"); }
void Menu::Untitled2() { AddTopLevelMenu(*this, "UntitledMenu0"); }
void Menu::Untitled3() { AddTopLevelMenu(*this, "WindowMenu"); }
void Menu::Untitled4() { AddTopLevelMenu(*this, "UntitledMenu4"); }

}  // namespace vamo
