#include "displays/headless/display.h"

#include <algorithm>

#include "displays/headless/user.h"
#include "displays/headless/window.h"
#include "toolkit/object/exceptions.h"

namespace vamo {

HeadlessDisplay::HeadlessDisplay(std::function<void(HeadlessUser&)> act) : act_(std::move(act)) {}

HeadlessDisplay::~HeadlessDisplay() = default;

void HeadlessDisplay::Run() {
  ActivateNext();
  if (act_ == nullptr || stopped_) return;
  HeadlessUser user(*this);
  act_(user);
}

void HeadlessDisplay::ActivateNext() {
  while (HeadlessWindow* next = stopped_ ? nullptr : order_.TakeNext()) order_.Activate(*next);
}

void HeadlessDisplay::Do(const std::function<void()>& act) {
  ActivateNext();
  if (stopped_) return;
  act();
  ActivateNext();
}

void HeadlessDisplay::LetTimePass(std::chrono::milliseconds time) {
  const std::chrono::milliseconds end = now_ + time;
  for (ActivateNext(); !stopped_; ActivateNext()) {
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
  if (order_.Active() == nullptr) throw InvalidArgumentException("No window is active.");
  return *order_.Active();
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
