// The fixture of the tests of the page.
#ifndef VAMO_TESTS_WEB_PAGE_FIXTURE_H_
#define VAMO_TESTS_WEB_PAGE_FIXTURE_H_

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "browser.h"
#include "web/page_user.h"

namespace vamo {

// One browser for all tests, because it takes long to start.
inline Chromium& TheChromium() {
  static Chromium browser;
  return browser;
}

class PageTest : public testing::Test {
 protected:
  // Opens the page and dismisses the splash.
  PageUser InControlWindow() {
    PageUser user(browser(), PageAddress());
    user.PressKey(Key::Character("x"));
    return user;
  }
  Chromium& browser() { return TheChromium(); }
  // The value of a JavaScript expression.
  nlohmann::json Page(const std::string& expression) {
    return browser().Run("return " + expression + ";");
  }
  // Dispatches a synthetic event to the element of a CSS selector, for what WebDriver cannot do.
  void Dispatch(const char* selector, const char* kind, const char* name,
                const nlohmann::json& given = nlohmann::json::object()) {
    browser().Run(
        "const [selector, kind, name, given] = arguments;"
        "document.querySelector(selector).dispatchEvent("
        "    new window[kind](name, {bubbles: true, cancelable: true, ...given}));",
        nlohmann::json::array({selector, kind, name, given}));
  }
  void Allow(const char* state) {
    for (const char* name : {"clipboard-read", "clipboard-write"}) {
      browser().DoOwn("Browser.setPermission",
                      {{"permission", {{"name", name}}}, {"setting", state}});
    }
  }
  // Emulates a touch screen of that size.
  void BecomePhone(int width, int height) {
    browser().DoOwn(
        "Emulation.setDeviceMetricsOverride",
        {{"width", width}, {"height", height}, {"deviceScaleFactor", 2}, {"mobile", true}});
    browser().DoOwn("Emulation.setTouchEmulationEnabled", {{"enabled", true}});
  }
  void TearDown() override {
    browser().DoOwn("Emulation.clearDeviceMetricsOverride", nlohmann::json::object());
    browser().DoOwn("Emulation.setTouchEmulationEnabled", {{"enabled", false}});
    browser().DoOwn("Emulation.setEmulatedMedia", {{"features", nlohmann::json::array()}});
    browser().DoOwn("Emulation.setScriptExecutionDisabled", {{"value", false}});
    Allow("granted");
  }
};

}  // namespace vamo

#endif  // VAMO_TESTS_WEB_PAGE_FIXTURE_H_
