// How windows find each other and the menu bar: by name, without their classes.
//
// The control window and the About window use each other. The control window includes this header
// alone for it: the classes of the other windows and of the bar are known where their accessors are
// defined, above this layer.
#ifndef VAMO_CONTROLWND_ACCESSORS_H_
#define VAMO_CONTROLWND_ACCESSORS_H_

#include "toolkit/window/menu_item.h"
#include "toolkit/window/window.h"

namespace vamo {

// Each of these is the one live window of the class of that name. It is made when there is none,
// and comes on the screen when its own state says so. Raises IllegalCastException where a window of
// another class bears the name.
//
// Each class is declared after its accessor and bears the same name, so outside of the accessors'
// header it is written `class AboutWnd`; inside the class itself the accessor is
// `vamo::AboutWnd()`.
Ref<Window> AboutWnd();
Ref<Window> InfoWnd();
#pragma GCC diagnostic push
// The class must be named before the accessor that hides its name.
#pragma GCC diagnostic ignored "-Wshadow"
Ref<class ControlWnd> ControlWnd();
#pragma GCC diagnostic pop

// The one menu bar of the program, made at the first use and never replaced.
Ref<MenuBar> Menu();

}  // namespace vamo

#endif  // VAMO_CONTROLWND_ACCESSORS_H_
