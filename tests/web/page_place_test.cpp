// How the page looks, and how it gets on with what is around it: screens, other pages, servers.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include "journeys/journey_steps.h"
#include "web/page_fixture.h"

namespace vamo {
namespace {

using nlohmann::json;

TEST_F(PageTest, TwoCopiesInFramesKeepTheirNumbersAndLetTabThrough) {
  const std::filesystem::path host = std::filesystem::temp_directory_path() / "vamo-frames.html";
  std::ofstream(host) << "<iframe src='" << PageAddress() << "' width=600 height=500></iframe>"
                      << "<iframe src='" << PageAddress() << "' width=600 height=500></iframe>";
  browser().Open("file://" + host.string());
  const auto enter = [&](int frame) {
    browser().EnterFrame(nullptr);
    browser().EnterFrame(frame);
  };
  for (const int frame : {0, 1}) {
    enter(frame);
    browser().Run("document.querySelector('.window').focus();");
    browser().PressKeys("", "x");
  }
  enter(0);
  browser().RunAsync("setTimeout(arguments[0], 100);");
  browser().Run("document.querySelector('input').focus();");
  browser().PressKeys("", "5");
  EXPECT_EQ(browser().Run("return document.querySelector('input').value;"), ".5");
  // Over N and the two sliders.
  for (int stops = 0; stops < 4; ++stops) browser().PressKeys("", "\uE004");
  browser().EnterFrame(nullptr);
  EXPECT_EQ(
      browser().Run("return document.activeElement === document.querySelectorAll('iframe')[1];"),
      true);
  enter(1);
  EXPECT_EQ(browser().Run("return document.querySelector('input').value;"), "");
  browser().EnterFrame(nullptr);
  std::filesystem::remove(host);
}

TEST_F(PageTest, FitsPhonesAndTheirFingers) {
  for (const auto& [width, height] : {std::pair{360, 640}, {640, 360}}) {
    BecomePhone(width, height);
    PageUser user = InControlWindow();
    EXPECT_EQ(user.Focused().name, "") << "no keyboard before a field is touched";
    const Place window = user.Frame().Extents();
    EXPECT_TRUE(window.x >= 0 && window.y >= 0 && window.x + window.width <= width &&
                window.y + window.height <= height);
    for (const auto& [role, name] : {std::pair{Role::kText, "r"},
                                     {Role::kSlider, "r"},
                                     {Role::kText, "N"},
                                     {Role::kSlider, "N"},
                                     {Role::kButton, "Info"}}) {
      const Place box = user.Find(role, name).Extents();
      const json hit = browser().Run(
          "const [x, y] = arguments;"
          "return [-19.5, 0, 19.5].map(off => document.elementFromPoint(x, y + off))"
          ".map(element => element.getAttribute('aria-label') + element.type);",
          {box.x + box.width / 2, box.y + box.height / 2});
      const std::string type = role == Role::kText     ? "text"
                               : role == Role::kSlider ? "range"
                                                       : "button";
      const std::string whole = name + type;
      EXPECT_EQ(hit, json({whole, whole, whole})) << width;
    }
    const Place slider = user.Find(Role::kSlider, "r").Extents();
    const int y = slider.y + slider.height / 2;
    browser().Swipe(
        {{slider.x + 5, y}, {slider.x + 50, y + 3}, {slider.x + slider.width / 2, y + 20}});
    EXPECT_NEAR(user.Sees(Role::kSlider, "r").value, .5, .03);
    EXPECT_EQ(browser().Run("return scrollY;"), 0);
    const Place field = user.Find(Role::kText, "N").Extents();
    browser().Swipe({{field.x + field.width / 2, field.y + field.height / 2}});
    EXPECT_EQ(user.Focused().name, "N");
    EXPECT_EQ(browser().Run("return document.activeElement.inputMode;"), "numeric");
    user.PressNamed("shift+Tab");
    EXPECT_EQ(browser().Run("return document.activeElement.inputMode;"), "decimal")
        << "a tablet may have keys";
  }
}

TEST_F(PageTest, TextsStandOutFromTheWindow) {
  PageUser user = InControlWindow();
  Retype(user, "N", "3");
  ASSERT_TRUE(Warned(user));
  EXPECT_GE(
      browser().Run("const linear = part => part <= 10.31 ? part / 3294.6 : "
                    "  ((part / 255 + .055) / 1.055) ** 2.4;"
                    "return Math.min(...[...document.querySelectorAll('.text')].map(text => {"
                    "  const [r, g, b] = getComputedStyle(text).color.match(/\\d+/g).map(linear);"
                    "  return 1.05 / (.2126 * r + .7152 * g + .0722 * b + .05);"
                    "}));"),
      4.5);
}

TEST_F(PageTest, NarrowsATextAsLongAsItIsTooWide) {
  PageUser user = InControlWindow();
  const auto width_when_it_takes = [&](int pixels) {
    browser().Run(
        "const [width] = arguments;"
        "CanvasRenderingContext2D.prototype.measureText = () => ({width});",
        json::array({pixels}));
    Retype(user, "r", pixels % 2 == 0 ? ".4" : ".5");
    const double scale = browser().Run(
        "const interval = [...document.querySelectorAll('output')]"
        "  .find(output => / to /.test(output.textContent));"
        "return new DOMMatrix(getComputedStyle(interval).transform).a;");
    return scale * pixels;
  };
  Retype(user, "N", "30");
  EXPECT_EQ(width_when_it_takes(60), 60);
  EXPECT_NEAR(width_when_it_takes(401), 100, .01) << "its box, and what is free beside it";
  EXPECT_EQ(width_when_it_takes(60), 60);
}

TEST_F(PageTest, NothingButTheAnnouncementsIsSpokenByItself) {
  PageUser user = InControlWindow();
  const json tree = browser().DoOwn("Accessibility.getFullAXTree", json::object());
  std::vector<std::string> live;
  for (const json& node : tree.at("nodes")) {
    for (const json& property : node.value("properties", json::array())) {
      const json& value = property.at("value").value("value", json());
      if (property.at("name") == "live" && value != "off") {
        live.push_back(node.at("role").at("value").get<std::string>() + " " + value.dump());
      }
    }
  }
  EXPECT_EQ(live, std::vector<std::string>{"status \"polite\""});
}

TEST_F(PageTest, LetsNothingInOrOut) {
  InControlWindow();
  EXPECT_EQ(browser().RunAsync(
                "const done = arguments[0], refused = [];"
                "document.addEventListener('securitypolicyviolation', event => {"
                "  refused.push(event.effectiveDirective);"
                "  if (refused.length === 5) done(refused.sort());"
                "});"
                "setTimeout(() => done(refused.sort()), 2000);"
                "const add = (tag, given) => "
                "    document.body.append(Object.assign(document.createElement(tag), given));"
                "add('script', {textContent: '0'});"
                "add('style', {textContent: 'p {}'});"
                "add('iframe', {src: 'http://localhost/'});"
                "new Image().src = 'http://localhost/';"
                "fetch('http://localhost/').catch(() => {});"),
            json({"connect-src", "frame-src", "img-src", "script-src-elem", "style-src-elem"}));
  // The browser says so, too.
  browser().ConsoleLines();
}

TEST_F(PageTest, FlashesWhereMotionIsWelcome) {
  for (const char* motion : {"no-preference", "reduce"}) {
    browser().DoOwn("Emulation.setEmulatedMedia",
                    {{"features", {{{"name", "prefers-reduced-motion"}, {"value", motion}}}}});
    PageUser user = InControlWindow();
    user.Type("x");
    EXPECT_EQ(browser().Run("return [heard.beeps, heard.flashes];"),
              json({1, std::string(motion) == "reduce" ? 0 : 1}));
  }
}

TEST_F(PageTest, AnErrorIsOneLineAndTheEnd) {
  struct Case {
    const char* damage;
    Key key;
    const char* line;
    const char* shown;
  };
  const Case kCases[] = {
      {"WebAssembly.Memory.prototype.grow = () => { throw new RangeError(); };", Key::Command("v"),
       "vamo: std::bad_alloc", "Vamo has stopped because of an error.\n\nStart again"},
      {"Element.prototype.animate = () => { throw new Error('damaged'); };", Key::Character("x"),
       "damaged", "Vamo has stopped because of an error. Load this page again to start it anew."},
  };
  for (const auto& [damage, key, line, shown] : kCases) {
    PageUser user = InControlWindow();
    user.SetClipboard(std::string(4'000'000, '1'));
    browser().ConsoleLines();
    browser().Run(damage);
    user.PressKey(key);
    EXPECT_EQ(browser().Run("return document.body.innerText.trim();"), shown);
    const std::vector<std::string> lines = browser().ConsoleLines();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NE(lines[0].find(line), std::string::npos) << lines[0];
  }
}

TEST_F(PageTest, SaysWhyItDoesNotRun) {
  const json added =
      browser().DoOwn("Page.addScriptToEvaluateOnNewDocument",
                      {{"source", "WebAssembly.Module = function () { throw new Error(); };"}});
  browser().Open(PageAddress());
  browser().DoOwn("Page.removeScriptToEvaluateOnNewDocument", added);
  const std::string visible = "return document.body.innerText.trim();";
  EXPECT_EQ(browser().Run(visible).get<std::string>().rfind("Vamo needs a newer browser", 0), 0U);
  browser().DoOwn("Emulation.setScriptExecutionDisabled", {{"value", true}});
  browser().Open(PageAddress());
  EXPECT_EQ(browser().Run(visible).get<std::string>().rfind("Vamo computes in the page itself", 0),
            0U);
}

}  // namespace
}  // namespace vamo
