#include "desktop.h"

#include <cstdlib>

#include "wayland_desktop.h"
#include "x_desktop.h"

namespace vamo {

std::unique_ptr<Desktop> OpenDesktop() {
  if (std::getenv("WAYLAND_DISPLAY") != nullptr) return std::make_unique<WaylandDesktop>();
  return std::make_unique<XDesktop>();
}

}  // namespace vamo
