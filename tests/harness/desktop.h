// The desktop that a program runs on, as its user has it.
#ifndef VAMO_TESTS_HARNESS_DESKTOP_H_
#define VAMO_TESTS_HARNESS_DESKTOP_H_

#include <sys/types.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
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

// Watches the windows and the alerts of a desktop, and does to windows and clipboard what its user
// can. It sends no key and no press.
class Desktop {
 public:
  virtual ~Desktop() = default;

  virtual std::vector<WindowOnScreen> WindowsOf(pid_t process) = 0;
  // Returns when the program has read, and the window manager has dealt with, all that had been
  // sent to them. False when one of them does not answer within a second, or the program ends.
  virtual bool RoundTrip(unsigned long window, const std::function<bool()>& runs) = 0;
  virtual void Activate(unsigned long window) = 0;
  // Takes the upper left corner of the window's frame there.
  virtual void Move(unsigned long window, int x, int y) = 0;
  // Offers a text as a selection, "clipboard" or "primary", until another program offers one.
  virtual void Offer(const std::string& selection, std::string_view text) = 0;
  virtual std::string Offered(const std::string& selection) = 0;
  // How often the bell has rung since the start; where the platform has none, never.
  virtual int Bells() = 0;
  virtual int Width() const = 0;
  virtual int Height() const = 0;
};

// The desktop that the environment names. Throws where there is none.
std::unique_ptr<Desktop> OpenDesktop();

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_DESKTOP_H_
