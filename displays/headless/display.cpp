#include "displays/headless/display.h"

#include <algorithm>

#include "displays/headless/user.h"
#include "displays/headless/window.h"
#include "toolkit/object/exceptions.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/window/window.h"

namespace vamo {

HeadlessDisplay::HeadlessDisplay(std::function<void(HeadlessUser&)> act) : act_(std::move(act)) {}

HeadlessDisplay::~HeadlessDisplay() = default;

void HeadlessDisplay::Run() {
  RunEvents();
  if (act_ == nullptr || stopped_) return;
  HeadlessUser user(*this);
  act_(user);
}

void HeadlessDisplay::RunEvents() {
  do {
    while (!events_.empty() && !stopped_) {
      const std::function<void()> event = std::move(events_.front());
      events_.pop_front();
      event();
    }
  } while (!stopped_ && GiveKeysToFrontWindow());
}

bool HeadlessDisplay::GiveKeysToFrontWindow() {
  if (away_ || Runtime::Current().ActiveWindow()) return false;
  const auto front = std::find_if(windows_.rbegin(), windows_.rend(),
                                  [](const HeadlessWindow* window) { return window->OnScreen(); });
  if (front == windows_.rend()) return false;
  Activate(**front);
  return true;
}

void HeadlessDisplay::Do(const std::function<void()>& act) {
  RunEvents();
  if (stopped_) return;
  act();
  RunEvents();
}

void HeadlessDisplay::Activate(HeadlessWindow& window) {
  away_ = false;
  const Ref<Window> before = Runtime::Current().ActiveWindow();
  std::rotate(std::find(windows_.begin(), windows_.end(), &window),
              std::find(windows_.begin(), windows_.end(), &window) + 1, windows_.end());
  if (before && &*before != &window.Window()) before->UserDeactivated();
  window.Window().UserActivated();
}

void HeadlessDisplay::Deactivate() {
  away_ = true;
  ActiveWindow().Window().UserDeactivated();
}

void HeadlessDisplay::LetTimePass(std::chrono::milliseconds time) {
  const std::chrono::milliseconds end = now_ + time;
  for (RunEvents(); !stopped_; RunEvents()) {
    const auto next =
        std::min_element(timers_.begin(), timers_.end(),
                         [](const auto* a, const auto* b) { return a->Due() < b->Due(); });
    if (next == timers_.end() || (*next)->Due() > end) break;
    now_ = (*next)->Due();
    (*next)->Fire();
  }
  now_ = end;
}

HeadlessWindow& HeadlessDisplay::ActiveWindow() const {
  const Ref<Window>& active = Runtime::Current().ActiveWindow();
  for (HeadlessWindow* window : windows_) {
    if (active && &window->Window() == &*active) return *window;
  }
  throw InvalidArgumentException("No window has the keys.");
}

std::string HeadlessDisplay::ClipboardText() {
  ++clipboard_reads_;
  return clipboard_;
}

std::unique_ptr<WindowView> HeadlessDisplay::OpenWindow(Window& window) {
  return std::make_unique<HeadlessWindow>(*this, window);
}

std::shared_ptr<DisplayPicture> HeadlessDisplay::OpenPicture(std::string_view /*file_name*/) {
  return has_pictures_ ? std::make_shared<DisplayPicture>() : nullptr;
}

std::unique_ptr<RunningTimer> HeadlessDisplay::StartTimer(std::chrono::milliseconds period,
                                                          std::function<void()> fire) {
  return std::make_unique<HeadlessTimer>(*this, period, std::move(fire));
}

}  // namespace vamo
