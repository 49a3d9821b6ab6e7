// The guard of the user interface against other threads.
#ifndef VAMO_TOOLKIT_OBJECT_UI_TRAP_H_
#define VAMO_TOOLKIT_OBJECT_UI_TRAP_H_

namespace vamo {

// Raises ThreadAccessingUIException if an application object exists and the caller is not on the
// main thread. Operations on windows, controls, menu items and pictures begin with it.
void _UITrap();

// Returns `value` after the guard, for operations of one line.
template <class T>
const T& Trapped(const T& value) {
  _UITrap();
  return value;
}

}  // namespace vamo

#endif  // VAMO_TOOLKIT_OBJECT_UI_TRAP_H_
