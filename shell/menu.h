#ifndef VAMO_SHELL_MENU_H_
#define VAMO_SHELL_MENU_H_

#include "controlwnd/accessors.h"
#include "toolkit/window/menu_item.h"

namespace vamo {

// The menu bar that the application and its windows share. It has no handlers: they are bound
// elsewhere, by the names of the items.
class Menu : public MenuBar {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // Builds the five menus with their items.
  void Constructor() override;
  virtual void Untitled0();
  virtual void Untitled1();
  virtual void Untitled2();
  virtual void Untitled3();
  virtual void Untitled4();
};

// The module-level field: the menu bar, nil before its first use.
struct MenuFields {
  Ref<class Menu> _implicitInstance;
};

}  // namespace vamo

#endif  // VAMO_SHELL_MENU_H_
