// The order of the windows on a display without a window manager.
#ifndef VAMO_TOOLKIT_WINDOW_WINDOW_ORDER_H_
#define VAMO_TOOLKIT_WINDOW_WINDOW_ORDER_H_

#include <algorithm>
#include <utility>
#include <vector>

#include "toolkit/runtime/runtime.h"
#include "toolkit/window/window.h"

namespace vamo {

// The order of the windows, and which one becomes active. It draws nothing. `View` is a display's
// class for a window; its `Shown()` returns the window.
template <class View>
class WindowOrder {
 public:
  void Add(View& view) { views_.push_back(&view); }
  void Remove(View& view) {
    std::erase(views_, &view);
    if (next_ == &view) next_ = nullptr;
  }
  // From back to front, including hidden ones.
  const std::vector<View*>& Views() const { return views_; }

  // The active window, or null.
  View* Active() const {
    const Ref<Window>& active = Runtime::Current().ActiveWindow();
    const auto found = std::find_if(views_.begin(), views_.end(), [&](const View* view) {
      return active && &view->Shown() == &*active;
    });
    return found == views_.end() ? nullptr : *found;
  }

  // The program has shown the window, so it is activated next.
  void Show(View& view) { next_ = &view; }

  // The window to activate now: the one that was shown last or, if the active one was hidden or
  // closed, the front one that is visible; null if there is neither.
  View* TakeNext() {
    View* shown = std::exchange(next_, nullptr);
    if (shown != nullptr && shown->Shown().Visible()) return shown;
    if (away_ || Active() != nullptr) return nullptr;
    const auto front = std::find_if(views_.rbegin(), views_.rend(),
                                    [](const View* view) { return view->Shown().Visible(); });
    return front == views_.rend() ? nullptr : *front;
  }

  // Brings a window to the front and activates it. Returns false if it was both already.
  bool Activate(View& view) {
    View* before = Active();
    if (before == &view && views_.back() == &view) return false;
    away_ = false;
    std::erase(views_, &view);
    views_.push_back(&view);
    if (before != nullptr && before != &view) before->Shown().UserDeactivated();
    view.Shown().UserActivated();
    return true;
  }

  // The user has gone to another program: no window is active until one is shown or activated.
  void Leave() {
    away_ = true;
    if (View* active = Active()) active->Shown().UserDeactivated();
  }

 private:
  std::vector<View*> views_;
  View* next_ = nullptr;
  bool away_ = false;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_WINDOW_ORDER_H_
