#include "toolkit/window/menu_item.h"

#include "toolkit/object/ui_trap.h"

namespace vamo {

constinit const ClassInfo MenuItem::kClass{"MenuItem", nullptr, {}};
constinit const ClassInfo MenuBar::kClass{"MenuBar", &MenuItem::kClass, {}};
constinit const ClassInfo AppleMenuItem::kClass{"AppleMenuItem", &MenuItem::kClass, {}};
constinit const ClassInfo QuitMenuItem::kClass{"QuitMenuItem", &MenuItem::kClass, {}};

void MenuItem::SetName(std::string_view name) {
  _UITrap();
  name_ = name;
}

void MenuItem::SetValue(std::string_view value) {
  _UITrap();
  value_ = value;
}

void MenuItem::SetShortcut(std::string_view shortcut) {
  _UITrap();
  shortcut_ = shortcut;
}

void MenuItem::SetAutoEnabled(bool auto_enabled) {
  _UITrap();
  auto_enabled_ = auto_enabled;
}

void MenuItem::SetEnabled(bool enabled) {
  _UITrap();
  enabled_ = enabled;
}

void MenuItem::SetVisible(bool visible) {
  _UITrap();
  visible_ = visible;
}

std::optional<bool> MenuItem::Checked() const {
  _UITrap();
  return checked_;
}

void MenuItem::SetChecked(bool checked) {
  _UITrap();
  checked_ = checked;
}

void MenuItem::AddMenu(const Ref<MenuItem>& item) {
  _UITrap();
  if (item->has_parent_) {
    throw MenuHasParentException("The menu item \"" + item->name_ + "\" is already in a menu.");
  }
  item->has_parent_ = true;
  children_.push_back(item);
}

Ref<MenuItem> MenuItem::Child(std::string_view name) const {
  _UITrap();
  for (const Ref<MenuItem>& child : children_) {
    if (child->name_ == name) return child;
  }
  return nullptr;
}

Ref<MenuItem> MenuItem::_Lookup(std::string_view name) const {
  _UITrap();
  for (const Ref<MenuItem>& child : children_) {
    if (child->name_ == name) return child;
    if (Ref<MenuItem> found = child->_Lookup(name)) return found;
  }
  return nullptr;
}

}  // namespace vamo
