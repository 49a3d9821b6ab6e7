#ifndef VAMO_SHELL_HANDLE_ABOUT_MENU_H_
#define VAMO_SHELL_HANDLE_ABOUT_MENU_H_

#include <string_view>

#include "toolkit/object/object.h"
#include "toolkit/runtime/application.h"
#include "toolkit/window/menu_item.h"

namespace vamo {

// The application object, which handles the About items. The run time holds the one object from its
// registration to the end of the process.
class HandleAboutMenu : public Application {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }
  bool IsEventImplemented(std::string_view event) const;

  void Event_EnableMenuItems() override;
  virtual bool _AboutKEL_Action();
  virtual bool _AboutMenuItem_Action();
  // Called once by start-up, before anything else; there is nothing to set up.
  virtual void Constructor() {}
};

// The registered application object. Before its registration it is nil, and using it raises
// NilObjectException.
Ref<HandleAboutMenu> App();

// The About item of the application's menu bar.
Ref<AppleMenuItem> AboutKEL();

}  // namespace vamo

#endif  // VAMO_SHELL_HANDLE_ABOUT_MENU_H_
