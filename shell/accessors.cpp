// The accessors of the windows, where all their classes are known.
#include "controlwnd/accessors.h"

#include "controlwnd/control_wnd.h"
#include "shell/about_wnd.h"
#include "shell/info_wnd.h"

namespace vamo {

Ref<Window> AboutWnd() { return ImplicitInstance<class AboutWnd>(); }
Ref<Window> ControlWnd() { return ImplicitInstance<class ControlWnd>(); }
Ref<Window> InfoWnd() { return ImplicitInstance<class InfoWnd>(); }

}  // namespace vamo
