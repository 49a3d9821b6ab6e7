#include <memory>

#include "displays/headless/user.h"
#include "journeys/journey_steps.h"
#include "shell/startup.h"

namespace vamo {

int RunProgram(const std::function<void(User&)>& journey) {
  bool running = false;
  const int status = Main(std::make_unique<HeadlessDisplay>([&](HeadlessUser& user) {
    journey(user);
    running = user.Display().Running();
  }));
  return running ? kStillRunning : status;
}

}  // namespace vamo
