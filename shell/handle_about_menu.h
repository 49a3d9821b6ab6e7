#ifndef VAMO_SHELL_HANDLE_ABOUT_MENU_H_
#define VAMO_SHELL_HANDLE_ABOUT_MENU_H_

#include <string_view>

#include "toolkit/object/object.h"
#include "toolkit/runtime/application.h"
#include "toolkit/window/menu_item.h"

namespace vamo {

// The application: it answers the About items. One object lives from its registration to the end of
// the process; the run time holds it.
class HandleAboutMenu : public Application {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }
  bool IsEventImplemented(std::string_view event) const;

  void Event_EnableMenuItems() override;
  virtual bool _AboutKEL_Action();
  virtual bool _AboutMenuItem_Action();
  // Called by start-up before anything else is; there is nothing to set up.
  virtual void Constructor() {}
};

// The registered application object. Raises NilObjectException on use before its registration.
Ref<HandleAboutMenu> App();

// The About item of the application's menu bar.
Ref<AppleMenuItem> AboutKEL();

}  // namespace vamo

#endif  // VAMO_SHELL_HANDLE_ABOUT_MENU_H_
