#ifndef VAMO_TOOLKIT_CONTROL_SLIDER_H_
#define VAMO_TOOLKIT_CONTROL_SLIDER_H_

#include <cstdint>

#include "toolkit/control/control.h"
#include "toolkit/object/delegate.h"

namespace vamo {

// A knob on a horizontal line of whole positions. Only the user moves it. The display decides where
// on the screen a position lies.
class Slider : public RectControl {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // The position, from MinimumValue to MaximumValue.
  std::int64_t Value() const;
  std::int64_t MinimumValue() const { return Trapped(minimum_); }
  std::int64_t MaximumValue() const { return Trapped(maximum_); }
  std::int64_t LineStep() const { return Trapped(line_step_); }
  std::int64_t PageStep() const { return Trapped(page_step_); }
  // Assistive technology reads each position divided by `positions`.
  void SetPositionsPerUnit(std::int64_t positions) { positions_per_unit_ = Trapped(positions); }
  double InUnits(std::int64_t position) const {
    return static_cast<double>(Trapped(position)) / static_cast<double>(positions_per_unit_);
  }

  // Raised for each new position that the user sets.
  Delegate<void(Ref<Slider>)> ValueChanged;

  // The user has moved the knob to a position; outside the range, it moves to the nearer end.
  void UserMovedTo(std::int64_t position);
  // The user has set a value in units, with assistive technology or with the slider of a browser;
  // the knob moves to the nearest position.
  void UserSetValue(double value);
  // The user has turned the wheel by `notches`, positive away from the user.
  void UserTurnedWheel(std::int64_t notches);

  // Arrow keys move by LineStep, Page keys by PageStep, Home and End to the ends.
  bool HandleKey(const Key& key) override;

 protected:
  AnyControl AsAny() override { return this; }
  bool HandlesKeys() const override { return true; }

 private:
  struct Properties;
  void MoveBy(std::int64_t times, std::int64_t step);

  std::int64_t value_ = 0;
  std::int64_t minimum_ = 0;
  std::int64_t maximum_ = 100;
  std::int64_t line_step_ = 1;
  std::int64_t page_step_ = 10;
  std::int64_t positions_per_unit_ = 1;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_CONTROL_SLIDER_H_
