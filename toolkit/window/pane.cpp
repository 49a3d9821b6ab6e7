#include "toolkit/window/pane.h"

#include "toolkit/runtime/runtime.h"
#include "toolkit/window/window.h"

namespace vamo {

void Pane::Toggle() {
  open_ = !open_;
  if (!window_.ShowPane()) {
    open_ = false;
    return Beep();
  }
  const std::string name(kName);
  // One announcement, because a second one would cut off the first.
  Runtime::Current().Display().Announce(open_ ? name + " shown. " + Description()
                                              : name + " hidden");
}

void Pane::Changed() {
  if (!open_ || shown_at_end_) return;
  shown_at_end_ = true;
  Runtime::Current().AtEndOfEvent([this, window = Self(&window_)] {
    shown_at_end_ = false;
    if (open_) window->ShowPane();
  });
}

}  // namespace vamo
