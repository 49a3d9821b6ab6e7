// The slider.
#include "toolkit/slider.h"

#include <algorithm>
#include <array>

#include "toolkit/runtime.h"

namespace vamo {

const ClassInfo Slider::kClass{"Slider", &RectControl::kClass, Properties()};

std::span<const Property> Slider::Properties() {
  static constexpr std::array kProperties{
      Declare<&Slider::value_>("Value"),          Declare<&Slider::minimum_>("MinimumValue"),
      Declare<&Slider::maximum_>("MaximumValue"), Declare<&Slider::line_step_>("LineStep"),
      ReadOver<bool>("AllowLiveScrolling"),       Declare<&Slider::page_step_>("PageStep"),
      ReadOver<std::int64_t>("TickMarkStyle"),
  };
  return kProperties;
}

std::int64_t Slider::Value() const {
  _UITrap();
  // A stream sets the position before the range, so the range is applied here and not in the
  // setter.
  return std::max(minimum_, std::min(value_, maximum_));
}

void Slider::UserMovedTo(std::int64_t position) {
  Runtime::Current().Dispatch([this, self = Self(this), position] {
    const std::int64_t reached = std::max(minimum_, std::min(position, maximum_));
    if (reached == Value()) return;
    value_ = reached;
    Changed();
    if (ValueChanged) ValueChanged.Invoke(self);
  });
}

void Slider::UserTurnedWheel(std::int64_t notches) { MoveBy(notches * line_step_); }

bool Slider::TakeKey(const Key& key) {
  switch (key.code) {
    case KeyCode::kLeft:
    case KeyCode::kDown:
      MoveBy(-line_step_);
      return true;
    case KeyCode::kRight:
    case KeyCode::kUp:
      MoveBy(line_step_);
      return true;
    case KeyCode::kPageDown:
      MoveBy(-page_step_);
      return true;
    case KeyCode::kPageUp:
      MoveBy(page_step_);
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

void Slider::MoveBy(std::int64_t step) { UserMovedTo(Value() + step); }

}  // namespace vamo
