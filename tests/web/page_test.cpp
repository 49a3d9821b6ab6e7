// The journeys in a page, and what no other display has.
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "browser.h"
#include "journeys/journey_steps.h"
#include "web/page_user.h"

namespace vamo {
namespace {

using nlohmann::json;

// One for all tests, since it takes long to start.
Chromium& TheChromium() {
  static Chromium browser;
  return browser;
}

constexpr char kHasEnded[] =
    "const end = document.querySelector('.end'); return end && end.textContent;";

class PageTest : public testing::Test {
 protected:
  // Opens the page and dismisses the splash.
  PageUser InControlWindow() {
    PageUser user(browser(), PageAddress());
    user.PressKey(Key::Character("x"));
    return user;
  }
  Chromium& browser() { return TheChromium(); }
  void Allow(const char* state) {
    for (const char* name : {"clipboard-read", "clipboard-write"}) {
      browser().DoOwn("Browser.setPermission",
                      {{"permission", {{"name", name}}}, {"setting", state}});
    }
  }
  // A screen of that size that is worked by fingers.
  void BecomePhone(int width, int height) {
    browser().DoOwn(
        "Emulation.setDeviceMetricsOverride",
        {{"width", width}, {"height", height}, {"deviceScaleFactor", 2}, {"mobile", true}});
    browser().DoOwn("Emulation.setTouchEmulationEnabled", {{"enabled", true}});
  }
  void TearDown() override {
    browser().DoOwn("Emulation.clearDeviceMetricsOverride", json::object());
    browser().DoOwn("Emulation.setTouchEmulationEnabled", {{"enabled", false}});
    browser().DoOwn("Emulation.setEmulatedMedia", {{"features", json::array()}});
    browser().DoOwn("Emulation.setScriptExecutionDisabled", {{"value", false}});
    Allow("granted");
  }
};

TEST_F(PageTest, TakesWhatIsComposedOrComesFromAKeyboardOnTheScreen) {
  PageUser user = InControlWindow();
  browser().DoOwn("Input.imeSetComposition",
                  {{"text", "3"}, {"selectionStart", 1}, {"selectionEnd", 1}});
  browser().DoOwn("Input.insertText", {{"text", "37"}});
  EXPECT_EQ(FieldText(user, "r"), ".37");
  browser().DoOwn("Input.insertText", {{"text", "x"}});
  EXPECT_EQ(FieldText(user, "r"), ".37") << "the filter of r holds for it too";
  EXPECT_EQ(user.Beeps(), 1);
  // This one changes the field before the page hears of it.
  browser().Run("document.execCommand('delete');");
  EXPECT_EQ(FieldText(user, "r"), ".3");
  EXPECT_EQ(FieldText(user, "Fisher's z"), "0.310");
  user.PressKey(Key::Command("z"));
  EXPECT_EQ(FieldText(user, "r"), ".37");
  Retype(user, "N", "37");
  user.PressNamed("Home");
  browser().DoOwn("Input.imeSetComposition",
                  {{"text", "1"}, {"selectionStart", 1}, {"selectionEnd", 1}});
  browser().DoOwn("Input.insertText", {{"text", "1"}});
  EXPECT_EQ(FieldText(user, "N"), "137") << "where the browser has the caret";
  browser().Run(
      "const field = document.activeElement, box = field.parentNode;"
      "const place = new StaticRange({startContainer: box, startOffset: 0,"
      "                               endContainer: box, endOffset: 2});"
      "field.dispatchEvent(new InputEvent('beforeinput', {inputType: 'insertReplacementText',"
      "    data: '2', bubbles: true, cancelable: true, targetRanges: [place]}));");
  EXPECT_EQ(FieldText(user, "N"), "27") << "a correction is about a part of the text";
}

TEST_F(PageTest, KeepsCaretAndKeysFromOneWindowToTheNext) {
  PageUser user = InControlWindow();
  Retype(user, "N", "12");
  const Place field = user.Find(Role::kText, "N").Extents();
  browser().DragMouse({{field.x + 2, field.y + field.height / 2}});
  user.Click(Role::kButton, "Info");
  ASSERT_EQ(user.ActiveTitle(), "Info");
  EXPECT_EQ(browser().Run("return document.querySelector('[aria-keyshortcuts=F1]') !== null;"),
            true);
  // Two keys before the first has had its effect.
  browser().Run(
      "for (const key of ['Escape', 'F1']) (document.activeElement || document).dispatchEvent("
      "    new KeyboardEvent('keydown', {key, bubbles: true, cancelable: true}));");
  user.LetTimePass({});
  EXPECT_EQ(user.ActiveTitle(), "Info");
  user.PressNamed("Escape");
  user.Type("3");
  EXPECT_EQ(FieldText(user, "N"), "312");
}

// As speech control does, and what fills in forms.
TEST_F(PageTest, TakesAValueThatIsSetFromOutside) {
  PageUser user = InControlWindow();
  for (const auto& [value, shown, z] :
       {std::array{"0.5", "0.5", "0.549"}, std::array{"7", ".99999", "6.103"}}) {
    browser().Run(
        "const r = document.querySelector('[aria-label=r][type=text]');"
        "r.value = arguments[0];"
        "r.dispatchEvent(new InputEvent('input', {bubbles: true}));",
        json::array({value}));
    EXPECT_EQ(FieldText(user, "r"), shown);
    EXPECT_EQ(FieldText(user, "Fisher's z"), z);
  }
}

TEST_F(PageTest, LeavesTheBrowserItsOwnKeysAndItsWheel) {
  PageUser user = InControlWindow();
  Retype(user, "N", "30");
  user.PressNamed("Tab");
  ASSERT_EQ(user.Focused().name, "r");
  browser().Run(
      "window.left = [];"
      "addEventListener('keydown', event => {"
      "  if (!event.defaultPrevented) left.push(event.key);"
      "  event.preventDefault();"
      "});"
      "addEventListener('wheel', event => {"
      "  if (!event.defaultPrevented) left.push('wheel');"
      "});"
      "document.activeElement.dispatchEvent("
      "    new WheelEvent('wheel', {bubbles: true, cancelable: true, ctrlKey: true,"
      "                             wheelDeltaY: 120, deltaY: -100}));");
  for (const char* keys : {"alt+Right", "shift+F10", "ctrl+plus", "F5"}) user.PressNamed(keys);
  EXPECT_EQ(browser().Run("return left.filter(key => !/Alt|Shift|Control/.test(key));"),
            json({"wheel", "ArrowRight", "F10", "+", "F5"}));
  EXPECT_EQ(user.Sees(Role::kSlider, "r").value, 0);
}

TEST_F(PageTest, CopiesAndPastesByTheMenusAsFarAsTheBrowserAllows) {
  PageUser user = InControlWindow();
  user.Type("5");
  user.PressKey(Key::Command("a"));
  user.Choose("Edit/Cut");
  EXPECT_EQ(FieldText(user, "r"), "");
  EXPECT_EQ(user.Clipboard(), ".5");
  user.Choose("Edit/Paste");
  EXPECT_EQ(FieldText(user, "r"), ".5");
  EXPECT_EQ(user.Beeps(), 0);
  Allow("denied");
  user.Choose("Edit/Paste");
  EXPECT_EQ(FieldText(user, "r"), ".5");
  EXPECT_EQ(user.Beeps(), 1);
  Allow("granted");
  user.SetClipboard("before");
  user.PressKey(Key::Command("a"));
  browser().Run("document.execCommand = () => false;");
  user.Choose("Edit/Copy");
  EXPECT_EQ(user.Beeps(), 2);
  user.Click(Role::kSlider, "r");
  user.PressKey(Key::Command("c"));
  EXPECT_EQ(user.Clipboard(), "before") << "neither what has been refused nor nothing";
}

TEST_F(PageTest, TheMenusAreWorkedByTheKeyboardAlone) {
  PageUser user = InControlWindow();
  user.Type("5");
  for (const char* key : {"F10", "Right", "Right", "Down", "Down"}) user.PressNamed(key);
  EXPECT_EQ(user.Focused().name, "") << "it is an item that has the focus";
  for (const char* key : {"End", "BackSpace", "Delete", "Page_Up", "Home"}) user.PressNamed(key);
  EXPECT_EQ(FieldText(user, "r"), ".5") << "no key goes to the field behind";
  user.PressNamed("Escape");
  EXPECT_EQ(user.Focused().name, "r") << "and the field again";
  for (const char* key : {"F10", "h", "Down", "Return"}) {
    user.PressNamed(key);
  }
  EXPECT_EQ(user.ActiveTitle(), "") << "the splash";
}

TEST_F(PageTest, AMenuClosesByAPressElsewhereAndIsOpenedByEveryKindOfClick) {
  PageUser user = InControlWindow();
  const auto is_open = [&]() -> bool {
    return browser().Run("return !!document.querySelector('[aria-expanded=true]');");
  };
  const auto press = [&](const char* events) {
    browser().Run(
        "const title = document.querySelector('[role=menubar] button');"
        "for (const name of arguments[0].split(' ')) title.dispatchEvent("
        "    new MouseEvent(name, {bubbles: true, cancelable: true, detail: 0}));",
        json::array({events}));
  };
  for (const char* events : {"click", "mousedown mouseup click"}) {
    press(events);
    EXPECT_TRUE(is_open()) << events;
    user.Click(Role::kText, "N");
    EXPECT_FALSE(is_open());
    EXPECT_EQ(user.Focused().name, "N");
  }
}

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

TEST_F(PageTest, ComingBackToThePageResetsNothing) {
  PageUser user = InControlWindow();
  Retype(user, "N", "30");
  Retype(user, "r", ".5");
  const json other = browser().DoOwn("Target.createTarget", {{"url", "about:blank"}});
  browser().DoOwn("Target.closeTarget", other);
  browser().Run(
      "for (const name of ['blur', 'focus']) window.dispatchEvent(new Event(name));"
      "document.dispatchEvent(new Event('visibilitychange'));");
  Retype(user, "N", "31");
  EXPECT_EQ(ResultLine(user), "3.11 | .00418 | +.177 to +.726");
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

TEST_F(PageTest, SaysThatItHasEndedAndStartsAgain) {
  PageUser user = InControlWindow();
  user.PressKey(Key::Command("q"));
  EXPECT_EQ(browser().Run(kHasEnded), "Vamo has ended.Start again");
  browser().PressKeys("", "\uE006");
  browser().RunAsync("setTimeout(arguments[0], 100);");
  EXPECT_EQ(user.Windows(), std::vector<std::string>{""}) << "the splash";
  user.PressKey(Key::Character("x"));
  EXPECT_EQ(FieldText(user, "r"), "");
  EXPECT_EQ(browser().ConsoleLines(), std::vector<std::string>{});
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

TEST(FirefoxTest, TheMainJourney) {
  Firefox browser;
  PageUser user(browser, PageAddress());
  user.PressKey(Key::Character("x"));
  Retype(user, "N", "30");
  Retype(user, "r", ".5");
  EXPECT_EQ(ResultLine(user), "3.06 | .00490 | +.170 to +.729");
  user.DragSlider("r", {37});
  EXPECT_EQ(ResultLine(user), "2.11 | .04416 | +.011 to +.644");
  EXPECT_EQ(browser.Run("return document.querySelector('[type=range]').value;"), "0.37");
  user.Click(Role::kButton, "Info");
  EXPECT_EQ(user.ActiveTitle(), "Info");
  user.PressKey(Key::Character(std::string(1, kEscape)));
  EXPECT_TRUE(user.Choose("File/Quit"));
  EXPECT_EQ(user.ExitStatus(), 0);
}

}  // namespace

int RunProgram(const std::function<void(User&)>& journey) {
  PageUser user(TheChromium(), PageAddress());
  journey(user);
  return user.ExitStatus();
}

}  // namespace vamo
