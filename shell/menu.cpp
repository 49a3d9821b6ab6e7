#include "shell/menu.h"

#include <string_view>

#include "toolkit/runtime/runtime.h"

namespace vamo {
namespace {

enum class Level { kMenu, kItem };

// A menu, or an item of the menu above it. Items are found only by name; one with an empty text is
// not drawn.
struct Row {
  Level level;
  Ref<MenuItem> (*make)();
  std::string_view name;
  std::string_view text = {};
  // Null leaves the shortcut unset.
  const char* shortcut = "";
  bool auto_enabled = false;
};

template <class Item>
Ref<MenuItem> Make() {
  return New<Item>();
}

constexpr Row kRows[] = {
    {Level::kMenu, Make<MenuItem>, "UntitledMenu3"},
    {Level::kMenu, Make<MenuItem>, "UntitledMenu2", "File"},
    {Level::kItem, Make<QuitMenuItem>, "FileQuit", "Quit", "Cmd+Q", true},
    {Level::kItem, Make<MenuItem>, "UntitledMenu8"},
    {Level::kMenu, Make<MenuItem>, "UntitledMenu0", "Edit"},
    {Level::kItem, Make<MenuItem>, "EditUndo", "Undo", "Cmd+Z"},
    {Level::kItem, Make<MenuItem>, "UntitledMenu1", "-", nullptr},
    {Level::kItem, Make<MenuItem>, "EditCut", "Cut", "Cmd+X"},
    {Level::kItem, Make<MenuItem>, "EditCopy", "Copy", "Cmd+C"},
    {Level::kItem, Make<MenuItem>, "EditPaste", "Paste", "Cmd+V"},
    {Level::kItem, Make<MenuItem>, "EditClear"},
    {Level::kItem, Make<MenuItem>, "UntitledMenu7"},
    {Level::kMenu, Make<MenuItem>, "WindowMenu", "Window"},
    {Level::kItem, Make<MenuItem>, "ControlMenuItem", "Control"},
    {Level::kItem, Make<MenuItem>, "AboutMenuItem", "About Vamo"},
    {Level::kItem, Make<MenuItem>, "UntitledMenu6"},
    {Level::kItem, Make<AppleMenuItem>, "AboutKEL", "About Vamo"},
    {Level::kItem, Make<AppleMenuItem>, "UntitledMenu5"},
    {Level::kMenu, Make<MenuItem>, "UntitledMenu4"},
};

Ref<MenuItem> Build(const Row& row) {
  Ref<MenuItem> item = row.make();
  item->Constructor();
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
      const Ref<MenuItem> item = Build(row);
      bar.Child(name)->AddMenu(item);
    }
  }
}

}  // namespace

constinit const ClassInfo Menu::kClass{"Menu.Menu", &MenuBar::kClass, {}};

Ref<MenuBar> Menu() {
  Ref<class Menu>& instance = Runtime::Current().ModuleFields<MenuFields>()._implicitInstance;
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
