#include "toolkit/window/announcer.h"

#include <chrono>
#include <utility>

#include "toolkit/control/label.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// Together long enough for the next key of somebody who types, and short enough to wait for.
constexpr std::chrono::milliseconds kPeriod{50};
constexpr int kQuietPeriods = 6;

}  // namespace

void Announcer::LabelChanged(Announced when) {
  if (!window_.IsLive()) return;
  if (when == Announced::kAtOnce) return Say(when);
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
  Say(Announced::kAfterPause);
}

void Announcer::Say(Announced which) {
  if (Runtime::Current().ActiveWindow() != Self(&window_)) return;
  std::string sentence = Sentence(which);
  if (sentence.empty() || sentence == said_) return;
  said_ = std::move(sentence);
  Runtime::Current().Display().Announce(said_);
}

std::string Announcer::Sentence(Announced which) const {
  std::string sentence;
  for (const AccessibleText& text : window_.AccessibleTexts()) {
    if (text.announced != which) continue;
    const auto label = window_.ControlNamed<Label>(text.control);
    if (!label->Visible() || label->Text().empty()) continue;
    if (!sentence.empty()) sentence += ", ";
    (sentence += text.description) += ' ';
    sentence += label->Text();
  }
  return sentence;
}

}  // namespace vamo
