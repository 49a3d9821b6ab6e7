#include "toolkit/window/announcer.h"

#include <algorithm>
#include <chrono>
#include <string_view>
#include <utility>

#include "toolkit/control/label.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/text/text_edit.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// Together, longer than the pause between two keystrokes and short enough to wait for.
constexpr std::chrono::milliseconds kPeriod{50};
constexpr int kQuietPeriods = 6;

std::string_view TextOf(const RectControl& control) {
  if (const auto* label = dynamic_cast<const Label*>(&control)) return label->Text();
  return dynamic_cast<const TextEdit&>(control).Text();
}

}  // namespace

void Announcer::TextChanged() {
  if (!window_.IsLive()) return;
  quiet_periods_ = 0;
  if (timer_ != nullptr) return;
  timer_ = Runtime::Current().Display().StartTimer(kPeriod, [this] {
    Runtime::Current().Dispatch([this, window = Self(&window_)] { Tick(); },
                                Runtime::Cause::kTimer);
  });
}

void Announcer::Tick() {
  if (++quiet_periods_ < kQuietPeriods) return;
  Stop();
  Say();
}

void Announcer::Say() {
  if (Runtime::Current().ActiveWindow() != Self(&window_)) return;
  std::vector<std::string> shown;
  std::string sentence;
  for (const AccessibleText& text : window_.AccessibleTexts()) {
    if (text.announced == Announced::kNot) continue;
    const auto control = window_.ControlNamed<RectControl>(text.control);
    const std::string_view value = TextOf(*control);
    if (!control->Visible() || value.empty()) continue;
    shown.push_back(std::string(text.description.empty() ? text.name : text.description) + ' ');
    shown.back() += value;
    const bool is_said = std::find(said_.begin(), said_.end(), shown.back()) != said_.end();
    if (is_said && text.announced == Announced::kWhenChanged) continue;
    if (!sentence.empty()) sentence += ", ";
    sentence += shown.back();
  }
  if (shown == said_) return;
  said_ = std::move(shown);
  if (!sentence.empty()) Runtime::Current().Display().Announce(sentence);
}

}  // namespace vamo
