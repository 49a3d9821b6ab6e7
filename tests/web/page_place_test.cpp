// How the page looks, and how it fits into its environment: screens, course pages, servers.
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

#include "child.h"
#include "journeys/journey_steps.h"
#include "web/page_fixture.h"

namespace vamo {
namespace {

using nlohmann::json;

// Opens a page that the test writes.
void OpenHost(const std::string& html) {
  const TemporaryFolder folder;
  std::ofstream(folder.Path() + "/host.html") << html;
  TheChromium().Open("file://" + folder.Path() + "/host.html");
}

// The splash ends by itself meanwhile.
TEST_F(PageTest, CopiesInACoursePageLeaveItTheFocusUntilTheyAreClicked) {
  const std::string frame = "<iframe width=600 height=500 src='" + PageAddress();
  OpenHost("<textarea autofocus></textarea>" + frame + "'></iframe>" + frame +
           "#r=.37&N=30'></iframe>");
  const auto in_frame = [&](int number, const std::string& expression) {
    browser().EnterFrame(number);
    const json value = Page(expression);
    browser().EnterFrame(nullptr);
    return value;
  };
  const std::string field = "document.querySelector('input').value";
  const std::string t = "document.querySelector('[aria-description^=Student]').textContent";
  const std::string typed(30, '5');
  for (const char digit : typed) {
    browser().PressKeys("", {digit});
    browser().Wait(200);
  }
  EXPECT_EQ(in_frame(0, "document.querySelector('[data-active] h1').textContent"), "Vamo");
  EXPECT_EQ(in_frame(0, field), "");
  EXPECT_EQ(in_frame(1, t), "2.11");
  Page("document.querySelectorAll('iframe')[1].src += '1'");
  EXPECT_TRUE(Await([&] { return in_frame(1, t) == "6.89"; })) << "a changed link";
  EXPECT_EQ(Page("document.activeElement.value"), typed);
  browser().DragMouse({{400, 120}});
  browser().PressKeys("", "5");
  EXPECT_EQ(in_frame(0, field), ".5");
  // Past N and the two sliders.
  browser().PressKeys("", "\uE004\uE004\uE004\uE004");
  EXPECT_EQ(Page("document.activeElement === document.querySelectorAll('iframe')[1]"), true);
  EXPECT_EQ(in_frame(1, field), ".37");
}

// The sizes of phones, of one with an open on-screen keyboard, of tablets, and of a page at a
// browser zoom of 400%.
TEST_F(PageTest, FlowsOnNarrowScreensAndForFingers) {
  for (const auto& [width, height, fits] : {std::tuple{320, 568, true},
                                            {360, 640, true},
                                            {390, 400, false},
                                            {640, 280, false},
                                            {768, 1024, true},
                                            {1180, 820, true},
                                            {320, 256, false}}) {
    SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height));
    BecomePhone(width, height);
    PageUser user = InControlWindow();
    EXPECT_EQ(user.Focused().name, "") << "no keyboard before a field is touched";
    EXPECT_EQ(Page("document.activeElement.className"), "window");
    const json sizes = browser().Run(
        "const shown = [...document.querySelectorAll('.window[data-active] *')]"
        "  .filter(element => element.getBoundingClientRect().width > 0);"
        "const all = selector => shown.filter(element => element.matches(selector));"
        "const boxes = all('input, button, .text').map(element => element.getBoundingClientRect());"
        "const text = element => parseFloat(getComputedStyle(element).fontSize);"
        "return {"
        "  text: Math.min(...all('.text:not(.small), input[type=text], button').map(text)),"
        "  small: Math.min(...all('.small').map(text)),"
        "  target: Math.min(...all('input:enabled, button').flatMap(element => {"
        "    const box = element.getBoundingClientRect(); return [box.width, box.height]; })),"
        "  page: [document.documentElement.scrollWidth, document.documentElement.scrollHeight],"
        "  covered: boxes.filter(a => boxes.some(b => a !== b && a.left + 1 < b.right &&"
        "    b.left + 1 < a.right && a.top + 1 < b.bottom && b.top + 1 < a.bottom)).length,"
        "  results: Math.max(...all('output').map(output => output.getBoundingClientRect().bottom))"
        "};");
    EXPECT_GE(sizes.at("text"), 16);
    EXPECT_GE(sizes.at("small"), 13);
    EXPECT_GE(sizes.at("target"), 44);
    EXPECT_EQ(sizes.at("page").at(0), width);
    EXPECT_EQ(sizes.at("covered"), 0);
    EXPECT_TRUE(!fits || sizes.at("page").at(1) == height);
    EXPECT_TRUE(width != 390 || sizes.at("results") <= height) << "above the keyboard";
  }
}

// On a large screen, at a browser zoom of 200%, on a tablet and on a phone.
TEST_F(PageTest, TheChartIsBesideOrBelowTheControlsAndPrintsOnTheSamePage) {
  for (const auto& [width, height, by_fingers] :
       {std::tuple{1366, 768, false}, {683, 384, false}, {1180, 820, true}, {360, 640, true}}) {
    SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height));
    BecomePhone(width, height);
    browser().DoOwn("Emulation.setTouchEmulationEnabled", {{"enabled", by_fingers}});
    browser().Open("about:blank");
    PageUser user(browser(), PageAddress() + "#r=.37&N=30&chart");
    ASSERT_TRUE(Await([&] { return user.Sees(Role::kChart, "Chart").visible; }));
    const json places = browser().Run(
        "const box = part => document.querySelector(part).getBoundingClientRect();"
        "const chart = box('.pane svg'), controls = box('.window[data-pane] .content');"
        "const page = document.documentElement;"
        "return [chart.left >= controls.right - 1, chart.top >= controls.bottom - 1,"
        "  chart.right + scrollX <= page.scrollWidth, chart.bottom + scrollY <= page.scrollHeight,"
        "  chart.width >= 260];");
    EXPECT_EQ(places, json::array({width > 700, width < 700, true, true, true}));
    EXPECT_TRUE(Await([&] {
      return Page("document.querySelector('.pane table:not([aria-busy])')?.rows[2].innerText") ==
             "30\t+.011 to +.644\t.04416";
    }));
    const json sheets = browser().DoOwn("Page.printToPDF", json::object()).at("data");
    EXPECT_EQ(browser().Run("return atob(arguments[0]).match(/\\/Count (\\d+)/)[1];",
                            json::array({sheets})),
              "1");
  }
}

TEST_F(PageTest, AFingerSlidesScrollsAndTypes) {
  BecomePhone(640, 280);
  PageUser user = InControlWindow();
  const Place field = user.Find(Role::kText, "N").Extents();
  browser().Swipe({{field.x + field.width / 2, field.y + field.height / 2}});
  EXPECT_EQ(user.Focused().name, "N");
  EXPECT_EQ(Page("document.activeElement.inputMode"), "numeric");
  user.PressNamed("shift+Tab");
  EXPECT_EQ(Page("document.activeElement.inputMode"), "decimal") << "a tablet may have a keyboard";
  const Place slider = user.Find(Role::kSlider, "r").Extents();
  const int left = slider.x;
  const int y = slider.y + slider.height / 2;
  const int middle = slider.x + slider.width / 2;
  const auto value = [&] { return user.Sees(Role::kSlider, "r").value; };
  browser().Swipe({{left + 5, y}, {left + 50, y + 3}, {middle, y + 20}});
  EXPECT_NEAR(value(), .5, .03);
  EXPECT_EQ(Page("scrollY"), 0);
  browser().Swipe({{middle + 100, y}, {middle + 101, y - 30}, {middle + 104, y - 60}});
  user.LetTimePass(std::chrono::milliseconds(300));
  EXPECT_NEAR(value(), .5, .03) << "a vertical swipe scrolls the page";
  EXPECT_GT(Page("scrollY"), 20);
  browser().Run("scrollTo(0, 0);");
  browser().Swipe({{left + 20, y},
                   {left + 22, y + 15},
                   {left + 24, y + 20},
                   {left + 200, y + 25},
                   {middle, y + 25}});
  EXPECT_NEAR(value(), .5, .03) << "first down and then sideways";
}

TEST_F(PageTest, DarkensTheOrangeOfTheWarning) {
  PageUser user = InControlWindow();
  Retype(user, "N", "3");
  ASSERT_TRUE(Warned(user));
  EXPECT_EQ(Page("getComputedStyle(document.querySelector('output')).color"), "rgb(182, 90, 0)")
      << "a contrast of 4.5";
}

TEST_F(PageTest, NarrowsATextAsLongAsItIsTooWide) {
  PageUser user = InControlWindow();
  const auto width_when_it_takes = [&](int pixels) {
    browser().Run("CanvasRenderingContext2D.prototype.measureText = () => ({width: " +
                  std::to_string(pixels) + "});");
    Retype(user, "r", pixels % 2 == 0 ? ".4" : ".5");
    const double scale = browser().Run(
        "const interval = [...document.querySelectorAll('output')]"
        "  .find(output => / to /.test(output.textContent));"
        "return new DOMMatrix(getComputedStyle(interval).transform).a;");
    return scale * pixels;
  };
  Retype(user, "N", "30");
  EXPECT_EQ(width_when_it_takes(60), 60);
  EXPECT_NEAR(width_when_it_takes(401), 100, .01) << "its box and the free room beside it";
  EXPECT_EQ(width_when_it_takes(60), 60);
}

TEST_F(PageTest, OnlyAnnouncementsAreLiveRegions) {
  PageUser user = InControlWindow();
  const json tree = browser().DoOwn("Accessibility.getFullAXTree", json::object());
  std::vector<std::string> live;
  for (const json& node : tree.at("nodes")) {
    for (const json& property : node.value("properties", json::array())) {
      if (property.at("name") != "live" || property.at("value").at("value") == "off") continue;
      live.push_back(node.at("role").at("value"));
    }
  }
  EXPECT_EQ(live, std::vector<std::string>{"status"});
  EXPECT_EQ(Page("[...document.querySelectorAll('section')].map(window =>"
                 "  window.ariaLabel + '/' + window.querySelector('h1').textContent)"),
            json({"About Vamo/About Vamo", "Vamo/Vamo"}));
  EXPECT_EQ(
      Page("[...document.querySelectorAll('[data-active] .control')]"
           "  .map(control => control.ariaDescription || control.ariaLabel || control.textContent)"
           "  .filter(text => text).join(', ')"),
      "Vamo, by Halden Q. Orrin, r =, r, Fisher's z =, Fisher's z, r, N =, N, range of N, N, t =, "
      "Student's t, p =, two-tailed p, 95% CI of r =, 95% confidence interval of r, Info")
      << "in the order of reading";
}

TEST_F(PageTest, LetsNothingInOrOut) {
  InControlWindow();
  EXPECT_EQ(
      browser().Run("const refused = [];"
                    "document.addEventListener('securitypolicyviolation', event => {"
                    "  refused.push(event.effectiveDirective);"
                    "});"
                    "const add = (tag, given) => "
                    "    document.body.append(Object.assign(document.createElement(tag), given));"
                    "add('script', {textContent: '0'});"
                    "add('style', {textContent: 'p {}'});"
                    "add('iframe', {src: 'http://localhost/'});"
                    "new Image().src = 'http://localhost/';"
                    "fetch('http://localhost/').catch(() => {});"
                    "return new Promise(done => setTimeout(() => done(refused.sort()), 1000));"),
      json({"connect-src", "frame-src", "img-src", "script-src-elem", "style-src-elem"}));
  // The browser also reports this on the console.
  browser().ConsoleLines();
}

TEST_F(PageTest, FlashesUnlessMotionIsToBeReduced) {
  for (const char* motion : {"no-preference", "reduce"}) {
    browser().DoOwn("Emulation.setEmulatedMedia",
                    {{"features", {{{"name", "prefers-reduced-motion"}, {"value", motion}}}}});
    PageUser user = InControlWindow();
    user.Type("x");
    EXPECT_EQ(Page("[heard.beeps, heard.flashes]"),
              json({1, std::string(motion) == "reduce" ? 0 : 1}));
  }
}

TEST_F(PageTest, AnErrorPrintsOneLineAndEndsTheProgram) {
  for (const auto& [damage, key, line, shown] :
       {std::tuple{"WebAssembly.Memory.prototype.grow = () => { throw new RangeError(); };",
                   Key::Command("v"), "vamo: std::bad_alloc",
                   "Vamo\n\nVamo has stopped because of an error.\n\nStart again"},
        {"Element.prototype.animate = () => { throw new Error('damaged'); };", Key::Character("x"),
         "damaged",
         "Vamo has stopped because of an error. Load this page again to start it anew."}}) {
    PageUser user = InControlWindow();
    user.SetClipboard(std::string(4'000'000, '1'));
    browser().ConsoleLines();
    browser().Run(damage);
    user.PressKey(key);
    EXPECT_EQ(Page("document.body.innerText.trim()"), shown);
    const std::vector<std::string> lines = browser().ConsoleLines();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NE(lines[0].find(line), std::string::npos) << lines[0];
  }
}

TEST_F(PageTest, SaysWhyItDoesNotRun) {
  const auto says = [&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(2200));
    return Page("document.body.innerText.trim()").get<std::string>().substr(0, 26);
  };
  const json added = browser().DoOwn("Page.addScriptToEvaluateOnNewDocument",
                                     {{"source", "WebAssembly.validate = () => false;"}});
  browser().Open(PageAddress());
  browser().DoOwn("Page.removeScriptToEvaluateOnNewDocument", added);
  EXPECT_EQ(says(), "Vamo needs a newer browser");
  browser().DoOwn("Emulation.setScriptExecutionDisabled", {{"value", true}});
  browser().Open(PageAddress());
  EXPECT_EQ(says(), "Vamo computes in the page ");
  browser().DoOwn("Emulation.setScriptExecutionDisabled", {{"value", false}});
  // The content policies of a server apply in addition to the page's own.
  for (const auto& [policy, sentence] :
       {std::pair{"default-src 'self'", "Vamo computes in the page "},
        {"script-src 'unsafe-inline'", "Vamo is kept from computin"}}) {
    std::string page = Output({"cat", PageAddress().substr(std::string_view("file://").size())});
    page.insert(page.find("<meta"), "<meta http-equiv='Content-Security-Policy' content=\"" +
                                        std::string(policy) + "\">");
    OpenHost(page);
    EXPECT_EQ(says(), sentence) << policy;
  }
  browser().ConsoleLines();
}

TEST_F(PageTest, SurvivesTranslatorsForeignErrorsAndSaving) {
  PageUser user = InControlWindow();
  Retype(user, "N", "30");
  Retype(user, "r", ".4");
  // Does what a translator does; then another script fails.
  browser().Run(
      "for (const output of document.querySelectorAll('output')) {"
      "  const font = document.createElement('font');"
      "  font.append(output.firstChild);"
      "  output.append(font);"
      "}"
      "dispatchEvent(new ErrorEvent('error', {message: 'ResizeObserver loop'}));"
      "Promise.reject(new Error('not of the program'));");
  Retype(user, "r", ".5");
  EXPECT_EQ(ResultLine(user), "3.06 | .00490 | +.170 to +.729");
  EXPECT_EQ(Page("getComputedStyle(document.querySelector('.text')).userSelect"), "none");
  browser().ConsoleLines();
  // Opens a copy as Ctrl+S saves it.
  OpenHost(Page("document.documentElement.outerHTML"));
  EXPECT_TRUE(Await([&] { return Page("document.querySelectorAll('.window').length") == 1; }));
  // The page's content policy refuses the saved styles, which the console reports.
  browser().ConsoleLines();
}

}  // namespace
}  // namespace vamo
