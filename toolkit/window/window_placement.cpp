#include <algorithm>
#include <vector>

#include "toolkit/runtime/runtime.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// The first live window that matches, or nil.
template <class Predicate>
Ref<Window> FirstLive(Predicate matches) {
  const std::vector<Ref<Window>>& windows = Runtime::Current().LiveWindows();
  const auto found = std::find_if(windows.begin(), windows.end(), matches);
  return found == windows.end() ? nullptr : *found;
}

Ref<Window> WorkingWindowOnScreen() {
  return FirstLive([](const Ref<Window>& window) {
    return window->Visible() && window->InitialState().type == WindowType::kWorking;
  });
}

}  // namespace

Window::Placement Window::WhereToShow() const {
  _UITrap();
  using Rule = Placement::Rule;
  if (IsSplash()) {
    const Ref<Window> working = WorkingWindowOnScreen();
    if (working) return {Rule::kOver, working, /*stays_with_other=*/true};
    return {Rule::kMiddleOfScreen};
  }
  if (has_been_shown_) return {};
  if (IsReading()) {
    const Ref<Window> working = WorkingWindowOnScreen();
    return working ? Placement{Rule::kBeside, working} : Placement{};
  }
  // It appears in place of the splash, where the user is looking.
  const Ref<Window> splash = FirstLive(
      [](const Ref<Window>& window) { return window->IsSplash() && window->has_been_shown_; });
  return splash ? Placement{Rule::kOver, splash} : Placement{};
}

}  // namespace vamo
