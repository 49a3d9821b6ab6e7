#ifndef VAMO_TOOLKIT_WINDOW_ANNOUNCER_H_
#define VAMO_TOOLKIT_WINDOW_ANNOUNCER_H_

#include <memory>
#include <string>

#include "toolkit/runtime/display.h"

namespace vamo {

class Window;

// Whether and when a change of a label is announced: together with others once changes have
// ceased, or at once.
enum class Announced { kNot, kAfterPause, kAtOnce };

// Tells a screen reader which of a window's labels have changed, which it would pass over, since
// they never have the keys: results together once they have come to rest, a warning at once. It
// says what shows, never the same twice running, and only while the window is the active one.
class Announcer {
 public:
  // `window` outlives it.
  explicit Announcer(Window& window) : window_(window) {}

  // A label that is to be announced has changed. To be cheap at every step of a drag, a change
  // does not start the timer anew.
  void LabelChanged(Announced when);
  // Forgets what is still to be said.
  void Stop() { timer_ = nullptr; }

 private:
  void Tick();
  void Say(Announced which);
  std::string Sentence(Announced which) const;

  Window& window_;
  std::unique_ptr<RunningTimer> timer_;
  // The timer's periods since the last change.
  int quiet_periods_ = 0;
  std::string said_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_ANNOUNCER_H_
