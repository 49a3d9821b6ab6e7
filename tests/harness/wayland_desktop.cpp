#include <chrono>
#include <sstream>
#include <thread>

#include "child.h"
#include "desktop.h"

namespace vamo {
namespace {

class WaylandDesktop : public Desktop {
 public:
  std::vector<WindowOnScreen> WindowsOf(pid_t process) override {
    std::istringstream lines(
        Output({"jq", "-r",
                ".. | objects | select(.pid? == " + std::to_string(process) +
                    " and .visible) | [.id, .rect.x + .window_rect.x, .rect.y + .window_rect.y, "
                    ".window_rect.width, .window_rect.height, .deco_rect.height, .focused, .name]"
                    " | @tsv"},
               Output({"swaymsg", "-r", "-t", "get_tree"})));
    std::vector<WindowOnScreen> windows;
    WindowOnScreen shown;
    std::string active;
    while (lines >> shown.id >> shown.x >> shown.y >> shown.width >> shown.height >>
               shown.frame_top >> active &&
           std::getline(lines >> std::ws, shown.name)) {
      shown.title = shown.frame_top > 0 ? shown.name : "";
      shown.active = active == "true";
      windows.push_back(shown);
    }
    return windows;
  }
  // Wayland does not tell whether a program has read what was sent to it, so this waits for as long
  // as that usually takes. A test that must be sure waits for the result.
  bool RoundTrip(unsigned long /*window*/, const std::function<bool()>& runs) override {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    return runs();
  }
  void Activate(unsigned long window) override {
    Output({"swaymsg", "-q", "[con_id=" + std::to_string(window) + "] focus"});
  }
  void SetClipboard(std::string_view text) override { Output({"wl-copy"}, text); }
  std::string Clipboard() override { return Output({"wl-paste", "--no-newline"}); }
  int Bells() override { return 0; }
};

}  // namespace

std::unique_ptr<Desktop> OpenWaylandDesktop() { return std::make_unique<WaylandDesktop>(); }

}  // namespace vamo
