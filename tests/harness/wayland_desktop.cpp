#include "wayland_desktop.h"

#include <chrono>
#include <sstream>
#include <thread>

#include "child.h"

namespace vamo {
namespace {

// Asks the compositor and filters its answer with jq.
std::string Ask(const std::string& question, const std::string& filter) {
  return Output({"jq", "-r", filter}, Output({"swaymsg", "-r", "-t", question}));
}

void Command(unsigned long window, const std::string& command) {
  Output({"swaymsg", "-q", "[con_id=" + std::to_string(window) + "] " + command});
}

std::vector<std::string> WithSelection(std::vector<std::string> command,
                                       const std::string& selection) {
  if (selection == "primary") command.emplace_back("--primary");
  return command;
}

int OutputSize(const std::string& side) {
  return std::stoi(Ask("get_outputs", ".[0].rect." + side));
}

}  // namespace

std::vector<WindowOnScreen> WaylandDesktop::WindowsOf(pid_t process) {
  std::istringstream lines(
      Ask("get_tree", ".. | objects | select(.pid? == " + std::to_string(process) +
                          " and .visible) | [.id, .rect.x + .window_rect.x, .rect.y + "
                          ".window_rect.y, .window_rect.width, .window_rect.height, "
                          ".deco_rect.height, .focused, .name] | @tsv"));
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

bool WaylandDesktop::RoundTrip(unsigned long /*window*/, const std::function<bool()>& runs) {
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  return runs();
}

void WaylandDesktop::Activate(unsigned long window) { Command(window, "focus"); }

void WaylandDesktop::Move(unsigned long window, int x, int y) {
  Command(window, "move absolute position " + std::to_string(x) + " " + std::to_string(y));
}

void WaylandDesktop::Offer(const std::string& selection, std::string_view text) {
  Output(WithSelection({"wl-copy"}, selection), text);
}

std::string WaylandDesktop::Offered(const std::string& selection) {
  return Output(WithSelection({"wl-paste", "--no-newline"}, selection));
}

int WaylandDesktop::Width() const { return OutputSize("width"); }
int WaylandDesktop::Height() const { return OutputSize("height"); }

}  // namespace vamo
