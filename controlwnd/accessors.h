// Accessors through which windows find each other and the menu bar without knowing their classes.
//
// The control window and the About window use each other. So the control window includes only this
// header, and the layer above defines the accessors of its own windows and of the menu bar.
#ifndef VAMO_CONTROLWND_ACCESSORS_H_
#define VAMO_CONTROLWND_ACCESSORS_H_

#include "toolkit/window/menu_item.h"
#include "toolkit/window/window.h"

namespace vamo {

// Each accessor returns the one live window of the class of the same name. It creates the window if
// there is none, and a new window shows itself if its initial state is visible. Raises
// IllegalCastException if the live window of that class name is of another class.
//
// An accessor hides the class of the same name. So write the class as `class AboutWnd`, and inside
// the class call the accessor as `vamo::AboutWnd()`.
Ref<Window> AboutWnd();
Ref<Window> InfoWnd();
#pragma GCC diagnostic push
// The class must be declared before the accessor that hides its name.
#pragma GCC diagnostic ignored "-Wshadow"
Ref<class ControlWnd> ControlWnd();
#pragma GCC diagnostic pop

// The program's one menu bar, created at its first use and never replaced.
Ref<MenuBar> Menu();

}  // namespace vamo

#endif  // VAMO_CONTROLWND_ACCESSORS_H_
