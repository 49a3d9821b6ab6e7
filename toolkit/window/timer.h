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

// Whether a timer runs, and whether it goes on after the first time. The numbers are those of the
// property RunMode.
enum class RunMode : std::int64_t { kOff = 0, kSingle = 1, kMultiple = 2 };

// Raises an event once or again and again after a period. It is no control: it has no window.
class Timer : public Object {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // A timer runs from the moment that it has both a mode other than off and a period above 0. Each
  // write starts the period anew.
  void SetRunMode(RunMode run_mode);
  // In milliseconds.
  void SetPeriod(std::int64_t period);

  // Raised when the period has passed; in single mode the timer is off by then.
  Delegate<void(Ref<Timer>)> Action;

  // Begins the period anew.
  virtual void Reset();
  // Stops the timer for good. The window that holds it does so when it is closed.
  void Stop() { SetRunMode(RunMode::kOff); }

  virtual void _CallAction();

 private:
  struct Properties;

  RunMode run_mode_ = RunMode::kOff;
  std::int64_t period_ = 0;
  std::unique_ptr<RunningTimer> running_;
};

// A timer that can be named among a window's controls. It keeps no window alive.
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
