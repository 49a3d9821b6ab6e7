#ifndef VAMO_TESTS_HARNESS_WAYLAND_DESKTOP_H_
#define VAMO_TESTS_HARNESS_WAYLAND_DESKTOP_H_

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop.h"

namespace vamo {

// A desktop of the compositor sway, whose one output is a window that covers an X screen: what the
// X server gets as keys and mouse, the compositor passes on to the programs on Wayland.
class WaylandDesktop : public Desktop {
 public:
  std::vector<WindowOnScreen> WindowsOf(pid_t process) override;
  // Nothing on Wayland tells whether a program has read what had been sent to it. So this waits for
  // as long as that may take; whoever must be sure awaits what comes of it.
  bool RoundTrip(unsigned long window, const std::function<bool()>& runs) override;
  void Activate(unsigned long window) override;
  void Move(unsigned long window, int x, int y) override;
  void Offer(const std::string& selection, std::string_view text) override;
  std::string Offered(const std::string& selection) override;
  int Bells() override { return 0; }
  int Width() const override;
  int Height() const override;
};

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_WAYLAND_DESKTOP_H_
