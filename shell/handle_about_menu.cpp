#include "shell/handle_about_menu.h"

#include "controlwnd/accessors.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {
namespace {

constexpr std::string_view kApplicationEvents[] = {"EnableMenuItems"};

}  // namespace

constinit const ClassInfo HandleAboutMenu::kClass{
    "HandleAboutMenu", &Application::kClass, {}, kApplicationEvents};

Ref<HandleAboutMenu> App() { return Cast<HandleAboutMenu>(_GetAppObject()); }

Ref<AppleMenuItem> AboutKEL() { return Cast<AppleMenuItem>(App()->MenuBar()->_Lookup("AboutKEL")); }

bool HandleAboutMenu::IsEventImplemented(std::string_view event) const {
  return _RuntimeIsEventHandled(*this, kClass.name, event, /*user=*/true);
}

void HandleAboutMenu::Event_EnableMenuItems() { AboutKEL()->SetEnabled(true); }

bool HandleAboutMenu::_AboutKEL_Action() {
  AboutWnd()->Show();
  return false;
}

bool HandleAboutMenu::_AboutMenuItem_Action() {
  AboutWnd()->Show();
  return false;
}

}  // namespace vamo
