// The screen of an X server, as its window manager keeps it.
#ifndef VAMO_TOOLS_X_SCREEN_H_
#define VAMO_TOOLS_X_SCREEN_H_

#include <sys/types.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vamo {

// A window without what the window manager draws around it. Lengths are pixels of the screen.
struct WindowOnScreen {
  unsigned long id = 0;
  // Empty where no title bar shows one; a list of windows shows the name all the same.
  std::string title;
  std::string name;
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  bool active = false;
  // The window in front of which this one stays; 0 for none.
  unsigned long stays_with = 0;
  // What the window manager draws.
  int frame_right = 0;
  int frame_top = 0;
};

// Watches the windows and the alerts of an X server. It sends no key and no press.
class XScreen {
 public:
  // Throws where DISPLAY names no server.
  XScreen();
  ~XScreen();

  std::vector<WindowOnScreen> WindowsOf(pid_t process);
  // Returns when the program has read, and the window manager has dealt with, all that had been
  // sent to them. False when one of them does not answer within a second, or the program ends.
  bool RoundTrip(unsigned long window, const std::function<bool()>& runs);
  // How often the bell has rung since the start.
  int Bells();
  int Width() const;
  int Height() const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace vamo

#endif  // VAMO_TOOLS_X_SCREEN_H_
