// The journeys in a page, and what no other display has.
#include <gtest/gtest.h>

#include <string>

#include "journeys/journey_steps.h"
#include "web/browser.h"
#include "web/page_user.h"

namespace vamo {
namespace {

Chromium& TheChromium() {
  static Chromium browser;
  return browser;
}

}  // namespace

int RunProgram(const std::function<void(User&)>& journey) {
  PageUser user(TheChromium(), PageAddress());
  journey(user);
  return user.ExitStatus();
}

}  // namespace vamo
