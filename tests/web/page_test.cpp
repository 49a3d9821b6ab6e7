// The journeys in a page, and what only the page has.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "journeys/journey_steps.h"
#include "web/page_fixture.h"

namespace vamo {
namespace {

using nlohmann::json;

TEST_F(PageTest, TakesCompositionsAndOnScreenKeyboards) {
  PageUser user = InControlWindow();
  const auto compose = [&](const char* begun, const char* text) {
    browser().DoOwn("Input.imeSetComposition",
                    {{"text", begun}, {"selectionStart", 1}, {"selectionEnd", 1}});
    browser().DoOwn("Input.insertText", {{"text", text}});
  };
  compose("3", "37");
  EXPECT_EQ(FieldText(user, "r"), ".37");
  browser().DoOwn("Input.insertText", {{"text", "x"}});
  EXPECT_EQ(FieldText(user, "r"), ".37") << "the filter of r holds for it too";
  EXPECT_EQ(user.Beeps(), 1);
  // This command changes the field before the page gets an event.
  browser().Run("document.execCommand('delete');");
  EXPECT_EQ(FieldText(user, "r"), ".3");
  EXPECT_EQ(FieldText(user, "Fisher's z"), "0.310");
  user.PressKey(Key::Command("z"));
  EXPECT_EQ(FieldText(user, "r"), ".37");
  Retype(user, "N", "37");
  user.PressNamed("Home");
  compose("1", "1");
  EXPECT_EQ(FieldText(user, "N"), "137") << "where the browser has the caret";
  browser().Run(
      "const field = document.activeElement, box = field.parentNode;"
      "const place = new StaticRange({startContainer: box, startOffset: 0,"
      "                               endContainer: box, endOffset: 2});"
      "field.dispatchEvent(new InputEvent('beforeinput', {inputType: 'insertReplacementText',"
      "    data: '2', bubbles: true, cancelable: true, targetRanges: [place]}));");
  EXPECT_EQ(FieldText(user, "N"), "27") << "a correction is about a part of the text";
}

// The events are synthetic, because WebDriver has no layout with dead keys or a decimal comma.
TEST_F(PageTest, ReportsKeysAndPressesOfAllKinds) {
  const auto press = [&](const char* key, const char* code, bool repeat = false) {
    Dispatch(":focus", "KeyboardEvent", "keydown",
             {{"key", key}, {"code", code}, {"repeat", repeat}});
  };
  for (const char* kind : {"KeyboardEvent", "MouseEvent"}) {
    PageUser user(browser(), PageAddress());
    Dispatch(".window .control", kind, kind[0] == 'K' ? "keydown" : "mousedown",
             {{"key", "Dead"}, {"code", "BracketLeft"}, {"button", 2}});
    user.LetTimePass({});
    EXPECT_EQ(user.ActiveTitle(), "Vamo") << kind;
    press("5", "Digit5", /*repeat=*/true);
    EXPECT_EQ(FieldText(user, "r"), "") << "a key that is still held is not meant for it";
  }
  PageUser user = InControlWindow();
  press(",", "NumpadDecimal");
  press("٥", "Digit5");
  EXPECT_EQ(FieldText(user, "r"), ".5");
  press(",", "");
  EXPECT_EQ(user.Beeps(), 0) << "an on-screen keyboard also sends an edit";
}

TEST_F(PageTest, KeepsTheCaretAndLosesNoKeyBetweenWindows) {
  PageUser user = InControlWindow();
  Retype(user, "N", "12");
  const Place field = user.Find(Role::kText, "N").Extents();
  browser().DragMouse({{field.x + 2, field.y + field.height / 2}});
  user.Click(Role::kButton, "Info");
  ASSERT_EQ(user.ActiveTitle(), "Info");
  EXPECT_EQ(Page("document.querySelector('[aria-keyshortcuts=F1]') !== null"), true);
  // Sends the second key before the first one has taken effect.
  browser().Run(
      "for (const key of ['Escape', 'F1']) (document.activeElement || document).dispatchEvent("
      "    new KeyboardEvent('keydown', {key, bubbles: true, cancelable: true}));");
  user.LetTimePass({});
  EXPECT_EQ(user.ActiveTitle(), "Info");
  user.PressNamed("Escape");
  user.Type("3");
  EXPECT_EQ(FieldText(user, "N"), "312");
}

// Speech control and form fillers set a value in this way.
TEST_F(PageTest, TakesAValueThatIsSetFromOutside) {
  PageUser user = InControlWindow();
  for (const auto& [value, shown, z] :
       {std::array{"0.5", "0.5", "0.549"}, std::array{"7", ".99999", "6.103"}}) {
    const std::string r = "[aria-label=r][type=text]";
    Page("document.querySelector('" + r + "').value = " + value);
    Dispatch(r.c_str(), "InputEvent", "input");
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
      "});");
  Dispatch(":focus", "WheelEvent", "wheel",
           {{"ctrlKey", true}, {"wheelDeltaY", 120}, {"deltaY", -100}});
  for (const char* keys : {"alt+Right", "shift+F10", "ctrl+plus", "F5"}) user.PressNamed(keys);
  EXPECT_EQ(Page("left.filter(key => !/Alt|Shift|Control/.test(key))"),
            json({"wheel", "ArrowRight", "F10", "+", "F5"}));
  EXPECT_EQ(user.Sees(Role::kSlider, "r").value, 0);
  const Place slider = user.Find(Role::kSlider, "N").Extents();
  browser().Run("left = [];");
  browser().TurnWheel(slider.x + 50, slider.y + slider.height / 2, -40);
  EXPECT_EQ(Page("left"), json({"wheel"})) << "a wheel over an unfocused slider scrolls the page";
  EXPECT_EQ(FieldText(user, "N"), "30");
  for (const char* keys : {"Tab", "ctrl+a"}) user.PressNamed(keys);
  EXPECT_EQ(Page("left.filter(key => key === 'a')"), json::array())
      << "there is nothing to select beside a slider";
}

TEST_F(PageTest, CopiesAndPastesByMenuAsFarAsTheBrowserAllows) {
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
  EXPECT_EQ(user.Clipboard(), "before") << "neither the refused copy nor an empty one";
}

TEST_F(PageTest, TheMenusWorkByKeyboardAlone) {
  PageUser user = InControlWindow();
  user.Type("5");
  for (const char* key : {"F10", "Right", "Right", "Down", "Down"}) user.PressNamed(key);
  EXPECT_EQ(user.Focused().name, "") << "it is an item that has the focus";
  for (const char* key : {"End", "BackSpace", "Delete", "Page_Up", "Home"}) user.PressNamed(key);
  EXPECT_EQ(FieldText(user, "r"), ".5") << "no key goes to the field behind";
  user.PressNamed("Escape");
  EXPECT_EQ(user.Focused().name, "r") << "and the field again";
  for (const char* key : {"F10", "h", "Down", "Return"}) user.PressNamed(key);
  EXPECT_EQ(user.ActiveTitle(), "") << "the splash";
}

TEST_F(PageTest, APressElsewhereClosesAMenuAndEveryKindOfClickOpensIt) {
  PageUser user = InControlWindow();
  using Events = std::vector<const char*>;
  for (const Events& events : {Events{"click"}, {"mousedown", "mouseup", "click"}}) {
    for (const char* event : events) Dispatch("[role=menubar] button", "MouseEvent", event);
    EXPECT_EQ(Page("document.querySelectorAll('[aria-expanded=true]').length"), 1);
    user.Click(Role::kText, "N");
    EXPECT_EQ(Page("document.querySelectorAll('[aria-expanded=true]').length"), 0);
    EXPECT_EQ(user.Focused().name, "N");
  }
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

TEST_F(PageTest, SaysThatItHasEndedAndStartsAgain) {
  PageUser user = InControlWindow();
  user.PressKey(Key::Command("q"));
  EXPECT_EQ(Page("document.querySelector('.end').textContent"), "VamoVamo has ended.Start again");
  browser().PressKeys("", "\uE006");
  browser().Wait(100);
  EXPECT_EQ(user.Windows(), std::vector<std::string>{""}) << "the splash";
  user.PressKey(Key::Character("x"));
  EXPECT_EQ(FieldText(user, "r"), "");
  EXPECT_EQ(browser().ConsoleLines(), std::vector<std::string>{});
}

TEST(FirefoxTest, TheMainJourney) {
  const std::unique_ptr<Browser> browser = OpenFirefox();
  PageUser user(*browser, PageAddress());
  user.PressKey(Key::Character("x"));
  Retype(user, "N", "30");
  Retype(user, "r", ".5");
  EXPECT_EQ(ResultLine(user), "3.06 | .00490 | +.170 to +.729");
  user.DragSlider("r", {37});
  EXPECT_EQ(ResultLine(user), "2.11 | .04416 | +.011 to +.644");
  EXPECT_EQ(browser->Run("return document.querySelector('[type=range]').value;"), "0.37");
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
