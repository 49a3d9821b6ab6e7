// Delegates: functions, with or without a receiver, that are called later; and how an event of a
// control gets one.
#ifndef VAMO_TOOLKIT_OBJECT_DELEGATE_H_
#define VAMO_TOOLKIT_OBJECT_DELEGATE_H_

#include <functional>
#include <memory>
#include <utility>

#include "toolkit/object/object.h"
#include "toolkit/object/ui_trap.h"

namespace vamo {

// Whether a delegate keeps its receiver alive.
enum class ReceiverFlag { kStrong = 0, kWeak = 1 };

template <class Signature>
class Delegate;

// A function that is called later, on its receiver if it has one. Its owner decides when: an event,
// a menu or start-up.
template <class Result, class... Arguments>
class Delegate<Result(Arguments...)> {
 public:
  Delegate() = default;

  // Wraps a plain function.
  explicit Delegate(Result (*function)(Arguments...))
      : function_(std::make_shared<const Function>(function)) {}

  // Wraps a method of `receiver`, which is called virtually. A weakly bound receiver is not kept
  // alive; a call after its destruction raises NilObjectException.
  template <class Receiver>
  Delegate(const Ref<Receiver>& receiver, Result (Receiver::*method)(Arguments...),
           ReceiverFlag flag) {
    if (flag == ReceiverFlag::kStrong) {
      function_ =
          std::make_shared<const Function>([receiver, method](Arguments... arguments) -> Result {
            return ((*receiver).*method)(std::move(arguments)...);
          });
    } else {
      std::weak_ptr<Receiver> weak = receiver.Share();
      function_ =
          std::make_shared<const Function>([weak, method](Arguments... arguments) -> Result {
            Ref<Receiver> alive(weak.lock());
            return ((*alive).*method)(std::move(arguments)...);
          });
    }
  }

  explicit operator bool() const { return function_ != nullptr; }

  // Calls the function, which may assign another one to this delegate. Raises NilObjectException if
  // there is no function or its receiver no longer exists.
  Result Invoke(Arguments... arguments) const {
    const std::shared_ptr<const Function> running = function_;
    if (running == nullptr) throw NilObjectException("A delegate without a function was called.");
    return (*running)(std::move(arguments)...);
  }

 private:
  using Function = std::function<Result(Arguments...)>;

  std::shared_ptr<const Function> function_;
};

// Binds a method of a window to an event of one of its controls. The type of the event fixes the
// signature, so that any other method does not compile. The binding does not keep the window alive,
// since the window holds the control.
template <class Receiver, class Result, class... Arguments>
void AddHandler(Delegate<Result(Arguments...)>& event, Receiver* receiver,
                Result (Receiver::*method)(Arguments...)) {
  _UITrap();
  event = Delegate<Result(Arguments...)>(Self(receiver), method, ReceiverFlag::kWeak);
}

}  // namespace vamo

#endif  // VAMO_TOOLKIT_OBJECT_DELEGATE_H_
