#include "toolkit/window/menu_service.h"

#include <string>
#include <string_view>
#include <utility>

#include "toolkit/runtime/runtime.h"
#include "toolkit/text/edit_commands.h"
#include "toolkit/window/view_menu.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

constexpr std::string_view kCommandPrefix = "Cmd+";

TextEdit* FocusedTextControl() {
  const Ref<Window>& window = Runtime::Current().ActiveWindow();
  if (!window || !window->Focus()) return nullptr;
  return dynamic_cast<TextEdit*>(&*window->Focus());
}

bool CallHandler(const MenuHandlers& handlers, const std::string& name) {
  const auto found = handlers.find(name);
  return found != handlers.end() && found->second.Invoke();
}

void Choose(const Ref<MenuItem>& item) {
  if (!item->Enabled() || ChooseViewItem(*item)) return;
  const Ref<Window> window = Runtime::Current().ActiveWindow();
  if (window && CallHandler(window->MenuHandlers(), item->Name())) return;
  const Ref<Application> app = Runtime::Current().App();
  if (app && CallHandler(app->MenuHandlers(), item->Name())) return;
  if (dynamic_cast<QuitMenuItem*>(&*item) != nullptr) Quit(0);
  for (const EditCommand& command : kEditCommands) {
    TextEdit* text = command.item == item->Name() ? FocusedTextControl() : nullptr;
    if (text != nullptr) (text->*command.act)();
  }
}

Ref<MenuItem> FindByShortcut(const std::vector<Ref<MenuItem>>& items, std::string_view shortcut) {
  for (const Ref<MenuItem>& item : items) {
    if (item->Shortcut() == shortcut) return item;
    if (Ref<MenuItem> found = FindByShortcut(item->Children(), shortcut)) return found;
  }
  return nullptr;
}

// The shortcut that the key would match; empty if it can match none.
std::string ShortcutText(const Key& key) {
  if (key.code == KeyCode::kF9 && !key.shift && !key.command) return "F9";
  if (!key.command || key.shift || key.text.size() != 1) return "";
  const char letter = key.text[0];
  std::string shortcut(kCommandPrefix);
  // Shortcuts are written in capitals. std::toupper would depend on the locale.
  shortcut += letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
  return shortcut;
}

}  // namespace

Ref<MenuBar> ActiveMenuBar() {
  const Runtime& runtime = Runtime::Current();
  if (runtime.ActiveWindow() && runtime.ActiveWindow()->MenuBar()) {
    return runtime.ActiveWindow()->MenuBar();
  }
  return runtime.App() ? runtime.App()->MenuBar() : nullptr;
}

bool IsSeparator(const MenuItem& item) { return item.Value() == "-"; }
bool IsDrawn(const MenuItem& item) { return item.Visible() && !item.Value().empty(); }

std::vector<DrawnMenu> DrawnMenus(const MenuBar& bar) {
  std::vector<DrawnMenu> menus;
  DrawnMenu help{"Help", {}};
  bool has_view = false;
  const auto add_view = [&] {
    if (!std::exchange(has_view, true)) menus.push_back({std::string(kViewMenu), ViewItems()});
  };
  for (const Ref<MenuItem>& menu : bar.Children()) {
    if (!IsDrawn(*menu)) continue;
    if (menu->Value() == "Window") add_view();
    menus.push_back({menu->Value(), {}});
    for (const Ref<MenuItem>& item : menu->Children()) {
      const bool is_apple = dynamic_cast<AppleMenuItem*>(&*item) != nullptr;
      if (IsDrawn(*item)) (is_apple ? help : menus.back()).items.push_back(item);
    }
  }
  add_view();
  if (!help.items.empty()) menus.push_back(std::move(help));
  return menus;
}

void EnableMenuItems() {
  EnableViewItems();
  const Ref<MenuBar> bar = ActiveMenuBar();
  if (!bar) return;
  for (const Ref<MenuItem>& menu : bar->Children()) {
    for (const Ref<MenuItem>& item : menu->Children()) item->SetEnabled(item->AutoEnabled());
  }
  const Ref<Application> app = Runtime::Current().App();
  if (app) app->Event_EnableMenuItems();
  const Ref<Window> window = Runtime::Current().ActiveWindow();
  if (window) window->Event_EnableMenuItems();
  const TextEdit* text = FocusedTextControl();
  for (const EditCommand& command : kEditCommands) {
    const Ref<MenuItem> item = bar->_Lookup(command.item);
    if (item && text != nullptr && (text->*command.can_act)()) item->SetEnabled(true);
  }
}

void UserOpensMenu() { Runtime::Current().Dispatch(EnableMenuItems); }

void UserChose(const Ref<MenuItem>& item) {
  Runtime::Current().Dispatch([&] { Choose(item); });
}

bool ChooseByShortcut(const Key& key) {
  const Ref<MenuBar> bar = ActiveMenuBar();
  const std::string shortcut = ShortcutText(key);
  if (!bar || shortcut.empty()) return false;
  Ref<MenuItem> item = FindByShortcut(bar->Children(), shortcut);
  if (!item) item = FindByShortcut(ViewItems(), shortcut);
  if (!item) return false;
  EnableMenuItems();
  if (!item->Enabled()) return false;
  Choose(item);
  return true;
}

}  // namespace vamo
