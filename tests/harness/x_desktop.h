#ifndef VAMO_TESTS_HARNESS_X_DESKTOP_H_
#define VAMO_TESTS_HARNESS_X_DESKTOP_H_

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "desktop.h"

namespace vamo {

// A desktop on an X server with a window manager that follows the EWMH.
class XDesktop : public Desktop {
 public:
  // Throws if DISPLAY names no server.
  XDesktop();
  ~XDesktop() override;

  std::vector<WindowOnScreen> WindowsOf(pid_t process) override;
  bool RoundTrip(unsigned long window, const std::function<bool()>& runs) override;
  void Activate(unsigned long window) override;
  void Move(unsigned long window, int x, int y) override;
  void Offer(const std::string& selection, std::string_view text) override;
  std::string Offered(const std::string& selection) override;
  int Bells() override;
  int Width() const override;
  int Height() const override;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_X_DESKTOP_H_
