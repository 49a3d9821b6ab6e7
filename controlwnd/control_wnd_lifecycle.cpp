// The control window: activation, closing, menu items and the "?" button.
#include <cstdint>
#include <string_view>

#include "controlwnd/control_wnd.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {

Ref<class ControlWnd> ControlWnd() { return ImplicitInstance<class ControlWnd>(); }

bool ControlWnd::IsEventImplemented(std::string_view event) const {
  return _RuntimeIsEventHandled(*this, kClass.name, event, /*user=*/true);
}

void ControlWnd::Event_Activate() {
  AboutWnd()->Hide();
  N = kLowestN;
  t = 0;
  r = 0;
}

void ControlWnd::Event_Close() { Quit(0); }

void ControlWnd::Event_EnableMenuItems() {
  ControlMenuItem()->SetEnabled(false);
  AboutMenuItem()->SetEnabled(true);
}

void ControlWnd::AddMenuHandlers(const Ref<Window>& window) {
  const auto control_wnd = Cast<class ControlWnd>(window);
  const auto bind = [&](bool (ControlWnd::*action)()) {
    return MenuHandler(control_wnd, action, ReceiverFlag::kWeak);
  };
  control_wnd->_AddMenuHandler("DescriptionMenuItem",
                               bind(&ControlWnd::_DescriptionMenuItem_Action));
  control_wnd->_AddMenuHandler("AboutKEL", bind(&ControlWnd::_AboutKEL_Action));
}

bool ControlWnd::_DescriptionMenuItem_Action() { return false; }

bool ControlWnd::_AboutKEL_Action() {
  AboutWnd()->Show();
  return false;
}

bool ControlWnd::Qbtn_MouseDown(Ref<PushButton> /*sender*/, std::int64_t /*x*/,
                                std::int64_t /*y*/) {
  InfoWnd()->Show();
  return false;
}

}  // namespace vamo
