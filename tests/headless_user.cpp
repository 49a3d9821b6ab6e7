// The display without pixels is its own user.
#include <memory>

#include "displays/headless/display.h"
#include "journeys/journey_steps.h"
#include "shell/startup.h"

namespace vamo {

int RunProgram(const std::function<void(User&)>& journey) {
  return Main(
      std::make_unique<HeadlessDisplay>([&](HeadlessDisplay& display) { journey(display); }));
}

}  // namespace vamo
