#include "desktop.h"

#include <cstdlib>

#include "child.h"
#include "wayland_desktop.h"
#include "x_desktop.h"

namespace vamo {

void Xdotool(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "xdotool");
  Output(arguments);
}

std::unique_ptr<Desktop> OpenDesktop() {
  if (std::getenv("WAYLAND_DISPLAY") != nullptr) return std::make_unique<WaylandDesktop>();
  return std::make_unique<XDesktop>();
}

}  // namespace vamo
