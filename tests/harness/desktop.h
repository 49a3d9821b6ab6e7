// The desktop of a program, as a user sees and operates it.
#ifndef VAMO_TESTS_HARNESS_DESKTOP_H_
#define VAMO_TESTS_HARNESS_DESKTOP_H_

#include <sys/types.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vamo {

// A window without its frame. Lengths are pixels of the screen.
struct WindowOnScreen {
  unsigned long id = 0;
  // The title in the title bar, empty without one. A list of windows shows `name`.
  std::string title;
  std::string name;
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  bool active = false;
  // The window that this one stays in front of; 0 for none.
  unsigned long stays_with = 0;
  // The widths of the frame that the window manager draws.
  int frame_right = 0;
  int frame_top = 0;
};

// Watches the windows and alerts of a desktop, and operates what differs between X and Wayland.
class Desktop {
 public:
  virtual ~Desktop() = default;

  virtual std::vector<WindowOnScreen> WindowsOf(pid_t process) = 0;
  // Returns when the program has read and the window manager has handled everything sent so far.
  // Returns false if one of them does not answer within a second, or if the program ends.
  virtual bool RoundTrip(unsigned long window, const std::function<bool()>& runs) = 0;
  virtual void Activate(unsigned long window) = 0;
  // Offers a text in the clipboard, until another program offers one.
  virtual void SetClipboard(std::string_view text) = 0;
  virtual std::string Clipboard() = 0;
  // How often the bell has rung since the start; 0 on a platform without a bell.
  virtual int Bells() = 0;
};

// Of an X server with a window manager that follows the EWMH. Throws if DISPLAY names no server.
std::unique_ptr<Desktop> OpenXDesktop();
// Of the compositor sway, whose only output is a window that covers an X screen: the compositor
// passes the keys and mouse of the X server on to the Wayland programs.
std::unique_ptr<Desktop> OpenWaylandDesktop();

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_DESKTOP_H_
