#ifndef VAMO_TESTS_HARNESS_WAYLAND_DESKTOP_H_
#define VAMO_TESTS_HARNESS_WAYLAND_DESKTOP_H_

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop.h"

namespace vamo {

// A desktop of the compositor sway, whose only output is a window that covers an X screen: the
// compositor passes the keys and mouse of the X server on to the Wayland programs.
class WaylandDesktop : public Desktop {
 public:
  std::vector<WindowOnScreen> WindowsOf(pid_t process) override;
  // Wayland does not tell whether a program has read what was sent to it, so this waits for as long
  // as that usually takes. A test that must be sure waits for the result.
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
