// The timer.
#include "toolkit/timer.h"

#include <array>
#include <chrono>

#include "toolkit/runtime.h"
#include "toolkit/window.h"

namespace vamo {

struct Timer::Properties {
  static constexpr std::array kRows{
      Declare<&Timer::SetRunMode>("RunMode"),
      Declare<&Timer::SetPeriod>("Period"),
  };
};

constinit const ClassInfo Timer::kClass{"Timer", nullptr, Properties::kRows};

void Timer::SetRunMode(std::int64_t run_mode) {
  run_mode_ = static_cast<RunMode>(run_mode);
  Reset();
}

void Timer::SetPeriod(std::int64_t period) {
  period_ = period;
  Reset();
}

void Timer::Reset() {
  running_ = nullptr;
  if (run_mode_ == RunMode::kOff || period_ <= 0) return;
  running_ = Runtime::Current().GetDisplay().StartTimer(std::chrono::milliseconds(period_),
                                                        [this] { _CallAction(); });
}

void Timer::_CallAction() {
  const auto act = [this, self = Self(this)] {
    if (run_mode_ == RunMode::kSingle) Stop();
    if (Action) Action.Invoke(self);
  };
  Runtime::Current().Dispatch(act, Runtime::Cause::kTimer);
}

void _wrapper_Timer1::_SetWindow(const Ref<class Window>& window) { ownerWindow = WeakRef(window); }

Ref<Window> _wrapper_Timer1::Window() const { return Cast<class Window>(ownerWindow.Value()); }

}  // namespace vamo
