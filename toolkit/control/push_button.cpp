#include "toolkit/control/push_button.h"

#include <array>

#include "toolkit/control/properties.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {

struct PushButton::Properties {
  static constexpr std::array kOwn{
      Sets<&PushButton::SetTabStop>(property::kTabStop),
      Skipped(property::kMacButtonStyle),
      Skipped(property::kCancel),
      Sets<&PushButton::caption_>(property::kCaption),
      Sets<&PushButton::default_>(property::kDefault),
  };
  static constexpr auto kRows = Joined(FontRows<&PushButton::font_>(), kOwn);
};

constinit const ClassInfo PushButton::kClass{
    "PushButton", &RectControl::kClass, Properties::kRows, {}, Allocate<PushButton>};

bool PushButton::UserPressed(std::int64_t x, std::int64_t y) {
  bool handled = false;
  Runtime::Current().Dispatch([&, self = Self(this)] {
    if (Enabled() && MouseDown) handled = MouseDown.Invoke(self, x, y);
  });
  return handled;
}

bool PushButton::UserPressedByAssistiveTechnology() {
  return UserPressed(Bounds().width / 2, Bounds().height / 2);
}

}  // namespace vamo
