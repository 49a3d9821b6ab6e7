#include "toolkit/window/timer.h"

#include <array>
#include <chrono>

#include "toolkit/control/properties.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {

struct Timer::Properties {
  static constexpr std::array kRows{
      Sets<&Timer::SetRunMode>(property::kRunMode),
      Sets<&Timer::SetPeriod>(property::kPeriod),
  };
};

constinit const ClassInfo Timer::kClass{"Timer", nullptr, Properties::kRows};
constinit const ClassInfo _wrapper_Timer1::kClass{
    "_wrapper_Timer1", &Timer::kClass, {}, {}, Allocate<_wrapper_Timer1>};

void Timer::SetRunMode(RunMode run_mode) {
  run_mode_ = run_mode;
  Reset();
}

void Timer::SetPeriod(std::int64_t period) {
  period_ = period;
  Reset();
}

void Timer::Reset() {
  running_ = nullptr;
  if (run_mode_ == RunMode::kOff || period_ <= 0) return;
  running_ = Runtime::Current().Display().StartTimer(std::chrono::milliseconds(period_),
                                                     [this] { _CallAction(); });
}

void Timer::_CallAction() {
  const auto act = [this, self = Self(this)] {
    if (run_mode_ == RunMode::kSingle) Stop();
    if (Action) Action.Invoke(self);
  };
  Runtime::Current().Dispatch(act, Runtime::Cause::kTimer);
}

}  // namespace vamo
