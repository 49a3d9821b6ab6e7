#ifndef VAMO_TOOLKIT_WINDOW_ANNOUNCER_H_
#define VAMO_TOOLKIT_WINDOW_ANNOUNCER_H_

#include <memory>
#include <string>
#include <vector>

#include "toolkit/runtime/display.h"

namespace vamo {

class Window;

// Whether a text is announced: never, whenever any announced text has changed, or only when it has
// changed itself.
enum class Announced { kNot, kAlways, kWhenChanged };

// Announces changed results and warnings to a screen reader, which would miss them because they
// never have the focus. It announces all of them in one sentence once the changes have stopped,
// never the same state twice in a row, and only while the window is active.
class Announcer {
 public:
  // `window` must outlive the announcer.
  explicit Announcer(Window& window) : window_(window) {}

  // Call this after a change of a text that is announced. A change does not restart the timer, so
  // that it is cheap at every step of a drag.
  void TextChanged();
  // Cancels a pending announcement.
  void Stop() { timer_ = nullptr; }

 private:
  void Tick();
  void Say();

  Window& window_;
  std::unique_ptr<RunningTimer> timer_;
  // The number of timer periods since the last change.
  int quiet_periods_ = 0;
  // The texts at the last announcement, one for each control.
  std::vector<std::string> said_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_ANNOUNCER_H_
