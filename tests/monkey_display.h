// The display that a monkey plays with: the one without pixels, with its windows open to a look.
#ifndef VAMO_TESTS_MONKEY_DISPLAY_H_
#define VAMO_TESTS_MONKEY_DISPLAY_H_

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "displays/headless/display.h"
#include "displays/headless/window.h"
#include "toolkit/runtime.h"

namespace vamo {

// A display in memory that tells its windows, the hidden and the inactive ones too, and whose menu
// bars live where it is told. What a user does is its base's matter.
class MonkeyDisplay : public HeadlessDisplay {
 public:
  MonkeyDisplay(std::function<void(MonkeyDisplay&)> user, bool bars_live_in_windows)
      : HeadlessDisplay([this](HeadlessDisplay&) { user_(*this); }),
        user_(std::move(user)),
        bars_live_in_windows_(bars_live_in_windows) {}

  const std::vector<HeadlessWindow*>& Views() const { return views_; }
  // The view of the window that has the keys, or nothing.
  HeadlessWindow* FrontView() const {
    const Ref<Window>& active = Runtime::Current().ActiveWindow();
    const auto found = std::find_if(views_.begin(), views_.end(), [&](const HeadlessWindow* view) {
      return active && &view->Window() == &*active;
    });
    return found == views_.end() ? nullptr : *found;
  }

  // All windows that there have been, in the order of their opening.
  const std::vector<WeakRef>& Opened() const { return opened_; }

  std::unique_ptr<WindowView> OpenWindow(Window& window) override {
    opened_.emplace_back(Self(&window));
    return std::make_unique<Listed>(*this, window);
  }
  bool MenuBarsLiveInWindows() const override { return bars_live_in_windows_; }

 private:
  // A window that is listed for as long as it lives.
  class Listed : public HeadlessWindow {
   public:
    Listed(MonkeyDisplay& display, vamo::Window& window)
        : HeadlessWindow(display, window), views_(display.views_) {
      views_.push_back(this);
    }
    ~Listed() override { std::erase(views_, this); }

   private:
    std::vector<HeadlessWindow*>& views_;
  };

  const std::function<void(MonkeyDisplay&)> user_;
  const bool bars_live_in_windows_;
  std::vector<HeadlessWindow*> views_;
  std::vector<WeakRef> opened_;
};

}  // namespace vamo

#endif  // VAMO_TESTS_MONKEY_DISPLAY_H_
