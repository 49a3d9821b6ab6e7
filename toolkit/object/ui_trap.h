// The guard of the user interface against other threads.
#ifndef VAMO_TOOLKIT_OBJECT_UI_TRAP_H_
#define VAMO_TOOLKIT_OBJECT_UI_TRAP_H_

namespace vamo {

// Raises ThreadAccessingUIException when an application object exists and the caller is not on the
// main thread. Each operation on a window, a control, a menu item or a picture begins with it.
void _UITrap();

// The same value, after the guard: for an operation that is over in one line.
template <class T>
const T& Trapped(const T& value) {
  _UITrap();
  return value;
}

}  // namespace vamo

#endif  // VAMO_TOOLKIT_OBJECT_UI_TRAP_H_
