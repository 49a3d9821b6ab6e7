// The accessors of the windows whose classes are defined in this layer.
#include "controlwnd/accessors.h"

#include "shell/about_wnd.h"
#include "shell/info_wnd.h"

namespace vamo {

Ref<Window> AboutWnd() { return ImplicitInstance<class AboutWnd>(); }
Ref<Window> InfoWnd() { return ImplicitInstance<class InfoWnd>(); }

}  // namespace vamo
