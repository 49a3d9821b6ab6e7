#ifndef VAMO_TOOLKIT_WINDOW_ANNOUNCER_H_
#define VAMO_TOOLKIT_WINDOW_ANNOUNCER_H_

#include <memory>
#include <string>
#include <vector>

#include "toolkit/runtime/display.h"

namespace vamo {

class Window;

// Whether a text is announced: with the others whenever one of them has changed, or only when it
// has itself changed.
enum class Announced { kNot, kAlways, kWhenChanged };

// Tells a screen reader of results and warnings that have changed. They never have the focus, so it
// would pass over them. It announces all of them in one sentence once changes have ceased, never
// the same twice running, and only while the window is the active one.
class Announcer {
 public:
  // `window` outlives it.
  explicit Announcer(Window& window) : window_(window) {}

  // A text that is to be announced has changed. To be cheap at every step of a drag, a change does
  // not restart the timer.
  void TextChanged();
  // Forgets what is still to be said.
  void Stop() { timer_ = nullptr; }

 private:
  void Tick();
  void Say();

  Window& window_;
  std::unique_ptr<RunningTimer> timer_;
  // The timer's periods since the last change.
  int quiet_periods_ = 0;
  // What showed at the last announcement, control by control.
  std::vector<std::string> said_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_ANNOUNCER_H_
