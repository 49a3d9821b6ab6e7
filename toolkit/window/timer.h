#ifndef VAMO_TOOLKIT_WINDOW_TIMER_H_
#define VAMO_TOOLKIT_WINDOW_TIMER_H_

#include <cstdint>
#include <memory>

#include "toolkit/control/control.h"
#include "toolkit/object/class_info.h"
#include "toolkit/object/delegate.h"
#include "toolkit/object/object.h"
#include "toolkit/runtime/display.h"

namespace vamo {

// Whether a timer runs, once or repeatedly. The numbers are those of the property RunMode.
enum class RunMode : std::int64_t { kOff = 0, kSingle = 1, kMultiple = 2 };

// Raises an event after a period, once or repeatedly. It is not a control and has no window.
class Timer : public Object {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // A timer runs as soon as its mode is not off and its period is above 0. Each write restarts the
  // period.
  void SetRunMode(RunMode run_mode);
  // In milliseconds.
  void SetPeriod(std::int64_t period);

  // Raised when the period has passed; in single mode the timer is then already off.
  Delegate<void(Ref<Timer>)> Action;

  // Restarts the period.
  virtual void Reset();
  // Stops the timer. A window stops its timers when it closes.
  void Stop() { SetRunMode(RunMode::kOff); }

  virtual void _CallAction();

 private:
  struct Properties;

  RunMode run_mode_ = RunMode::kOff;
  std::int64_t period_ = 0;
  std::unique_ptr<RunningTimer> running_;
};

// A timer that a window can hold under a name, as it holds its controls. It does not keep the
// window alive.
class _wrapper_Timer1 : public Timer, public _PaneChild {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  void _SetWindow(const Ref<class Window>& window) override { ownerWindow = WeakRef(window); }
  Ref<class Window> Window() const override { return ownerWindow.Value(); }
  std::int64_t _Index() const override { return Index; }
  void _SetIndex(std::int64_t index) override { Index = index; }

 private:
  WeakRef<class Window> ownerWindow;
  std::int64_t Index = 0;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_TIMER_H_
