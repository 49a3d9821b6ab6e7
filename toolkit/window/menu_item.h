// The tree of menus and their items.
#ifndef VAMO_TOOLKIT_WINDOW_MENU_ITEM_H_
#define VAMO_TOOLKIT_WINDOW_MENU_ITEM_H_

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/object/class_info.h"
#include "toolkit/object/object.h"
#include "toolkit/object/ui_trap.h"

namespace vamo {

// A menu or a menu item: its state and its children. menu_service.h says when it is enabled and
// what choosing it does.
class MenuItem : public Object {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  const std::string& Name() const { return Trapped(name_); }
  void SetName(std::string_view name);
  const std::string& Value() const { return Trapped(value_); }
  void SetValue(std::string_view value);
  // The keyboard shortcut, such as "Cmd+Q"; empty for none.
  const std::string& Shortcut() const { return Trapped(shortcut_); }
  void SetShortcut(std::string_view shortcut);
  bool AutoEnabled() const { return Trapped(auto_enabled_); }
  void SetAutoEnabled(bool auto_enabled);
  bool Enabled() const { return Trapped(enabled_); }
  void SetEnabled(bool enabled);
  bool Visible() const { return Trapped(visible_); }
  void SetVisible(bool visible);
  // Whether the item has its check mark; nothing for an item that never has one.
  std::optional<bool> Checked() const;
  void SetChecked(bool checked);

  // Appends a child. Raises MenuHasParentException if `item` is already in a menu.
  virtual void AddMenu(const Ref<MenuItem>& item);
  // The direct child of that name, or nil.
  virtual Ref<MenuItem> Child(std::string_view name) const;
  // Called on a new item before its state is set.
  virtual void Constructor() {}
  // The item of that name anywhere below this one, or nil.
  virtual Ref<MenuItem> _Lookup(std::string_view name) const;
  const std::vector<Ref<MenuItem>>& Children() const { return Trapped(children_); }

 private:
  std::string name_;
  std::string value_;
  std::string shortcut_;
  bool auto_enabled_ = true;
  bool enabled_ = true;
  bool visible_ = true;
  std::optional<bool> checked_;
  bool has_parent_ = false;
  std::vector<Ref<MenuItem>> children_;
};

// The root of a menu tree. It is never shown as an item.
class MenuBar : public MenuItem {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }
};

// An item that goes to the application menu if the platform has one, else to the Help menu.
class AppleMenuItem : public MenuItem {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }
};

// The Quit item. Choosing it ends the program with exit code 0.
class QuitMenuItem : public MenuItem {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_MENU_ITEM_H_
