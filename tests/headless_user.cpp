#include <memory>

#include "displays/headless/user.h"
#include "journeys/journey_steps.h"
#include "shell/startup.h"

namespace vamo {

int RunProgram(const std::function<void(User&)>& journey) {
  return Main(std::make_unique<HeadlessDisplay>([&](HeadlessUser& user) { journey(user); }));
}

}  // namespace vamo
