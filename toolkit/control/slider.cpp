#include "toolkit/control/slider.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "toolkit/control/properties.h"
#include "toolkit/conversions.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {

struct Slider::Properties {
  static constexpr std::array kRows{
      Sets<&Slider::SetTabStop>(property::kTabStop),
      Sets<&Slider::value_>(property::kPosition),
      Sets<&Slider::minimum_>(property::kMinimumValue),
      Sets<&Slider::maximum_>(property::kMaximumValue),
      Sets<&Slider::line_step_>(property::kLineStep),
      Skipped(property::kAllowLiveScrolling),
      Sets<&Slider::page_step_>(property::kPageStep),
      Skipped(property::kTickMarkStyle),
  };
};

constinit const ClassInfo Slider::kClass{
    "Slider", &RectControl::kClass, Properties::kRows, {}, Allocate<Slider>};

std::int64_t Slider::Value() const {
  _UITrap();
  // A stream sets the position before the range, so the range is applied here, not in the setter.
  return std::max(minimum_, std::min(value_, maximum_));
}

void Slider::UserMovedTo(std::int64_t position) {
  Runtime::Current().Dispatch([this, self = Self(this), position] {
    if (!Enabled()) return;
    const std::int64_t reached = std::max(minimum_, std::min(position, maximum_));
    if (reached == Value()) return;
    value_ = reached;
    Changed();
    if (ValueChanged) ValueChanged.Invoke(self);
  });
}

void Slider::UserSetValue(double value) {
  UserMovedTo(Truncate(std::round(value * static_cast<double>(positions_per_unit_))));
}

void Slider::UserTurnedWheel(std::int64_t notches) { MoveBy(notches, line_step_); }

bool Slider::HandleKey(const Key& key) {
  switch (key.code) {
    case KeyCode::kLeft:
    case KeyCode::kDown:
      MoveBy(-1, line_step_);
      return true;
    case KeyCode::kRight:
    case KeyCode::kUp:
      MoveBy(1, line_step_);
      return true;
    case KeyCode::kPageDown:
      MoveBy(-1, page_step_);
      return true;
    case KeyCode::kPageUp:
      MoveBy(1, page_step_);
      return true;
    case KeyCode::kHome:
      UserMovedTo(minimum_);
      return true;
    case KeyCode::kEnd:
      UserMovedTo(maximum_);
      return true;
    default:
      return false;
  }
}

// A stream may set any step, so this calculates in doubles, which do not overflow.
void Slider::MoveBy(std::int64_t times, std::int64_t step) {
  const double way = static_cast<double>(times) * static_cast<double>(step);
  UserMovedTo(Truncate(static_cast<double>(Value()) + way));
}

}  // namespace vamo
