// The push button.
#include "toolkit/push_button.h"

#include <array>

#include "toolkit/font_properties.h"
#include "toolkit/runtime.h"

namespace vamo {

struct PushButton::Properties {
  static constexpr auto kRows =
      Join(kFontProperties<&PushButton::font_>, std::array{
                                                    ReadOver<std::int64_t>("MacButtonStyle"),
                                                    ReadOver<bool>("Cancel"),
                                                    Declare<&PushButton::caption_>("Caption"),
                                                    Declare<&PushButton::default_>("Default"),
                                                });
};

constinit const ClassInfo PushButton::kClass{"PushButton", &RectControl::kClass, Properties::kRows};

bool PushButton::UserPressed(std::int64_t x, std::int64_t y) {
  bool dealt_with = false;
  Runtime::Current().Dispatch([&, self = Self(this)] {
    if (Enabled() && MouseDown) dealt_with = MouseDown.Invoke(self, x, y);
  });
  return dealt_with;
}

bool PushButton::UserPressedByAssistiveTechnology() {
  return UserPressed(Bounds().width / 2, Bounds().height / 2);
}

}  // namespace vamo
