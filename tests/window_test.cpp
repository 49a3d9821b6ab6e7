// The toolkit's rules for windows: the single instance, activation, focus, closing.
#include <gtest/gtest.h>

#include "test_window.h"
#include "toolkit/control/properties.h"
#include "toolkit/object/property_stream.h"
#include "toolkit/window/menu_item.h"

namespace vamo {
namespace {

// A class with the name of another class.
struct OtherWindow : Window {
  static constexpr const ClassInfo& kClass = TestWindow::kClass;
};

TEST(WindowTest, TheImplicitInstanceIsTheOneLiveWindow) {
  TestProgram program;
  const auto window = ImplicitInstance<TestWindow>();
  window->Hide();
  EXPECT_TRUE(ImplicitInstance<TestWindow>() == window);
  EXPECT_THROW(ImplicitInstance<OtherWindow>(), IllegalCastException);
  EXPECT_THROW(window->__New(RectControl::kClass), UnsupportedOperationException);
  EXPECT_THROW(window->_AddControl("x", New<MenuItem>()), IllegalCastException);
  window->Show();
  program.user().PressKey(Key::Character("x"));
  EXPECT_TRUE(program.runtime().ActiveWindow() == window);
  window->Close();
  EXPECT_FALSE(program.runtime().ActiveWindow());
  EXPECT_THROW(program.display().ActiveWindow(), InvalidArgumentException);
  window->Show();
  window->Close();
  EXPECT_EQ(window->ends, 1);
  EXPECT_FALSE(window->Visible());
  EXPECT_TRUE(program.user().Windows().empty()) << "a closed window does not come back";
  EXPECT_FALSE(ImplicitInstance<TestWindow>() == window);
}

TEST(WindowTest, AWindowThatItsOwnKeyClosesIsNotUsedAfterwards) {
  TestProgram program;
  for (const char* text : {"x", "several"}) {
    int keys = 0;
    // Nothing else holds the window.
    ImplicitInstance<TestWindow>()->at_key = [&] {
      ++keys;
      program.runtime().ActiveWindow()->Close();
    };
    program.user().Dictate(text);
    EXPECT_EQ(keys, 1) << "no window is left for the rest";
  }
  EXPECT_TRUE(program.runtime().LiveWindows().empty());
}

TEST(WindowTest, ActivationIsRaisedWhenTheWindowBecomesTheActiveOne) {
  TestProgram program;
  const auto window = ImplicitInstance<TestWindow>();
  program.user().PressKey(Key::Character("x"));
  EXPECT_EQ(window->activations, 1);
  window->UserActivated();
  EXPECT_EQ(window->activations, 1) << "it already was";
  window->UserDeactivated();
  EXPECT_TRUE(window->UserBeginsPress(false));
  EXPECT_EQ(window->activations, 2) << "a press activates before it acts";
  EXPECT_TRUE(window->UserBeginsPress(false));
  window->UserActivated();
  EXPECT_EQ(window->activations, 2) << "the platform's later report is not a second activation";
  window->Hide();
  window->UserActivated();
  EXPECT_EQ(window->activations, 2) << "a hidden window is not active";
}

// A double click that dismisses the splash, and a key that is held down on it.
TEST(WindowTest, TheRestOfAGestureThatHasDismissedAWindowIsIgnored) {
  TestProgram program;
  const auto dismissed = New<TestWindow>();
  dismissed->Constructor();
  const auto next = New<TestWindow>();
  next->Constructor();
  Key held = Key::Character("5");
  EXPECT_TRUE(dismissed->UserBeginsPress(false));
  dismissed->UserPressedKey(held);
  held.repeat = true;
  EXPECT_TRUE(next->UserBeginsPress(true)) << "beside it, the gesture goes on";
  dismissed->Hide();
  int keys = 0;
  next->at_key = [&] { ++keys; };
  EXPECT_FALSE(next->UserBeginsPress(true));
  EXPECT_TRUE(next->UserPressedKey(held));
  EXPECT_EQ(keys, 0);
  held.repeat = false;
  next->UserPressedKey(held);
  held.repeat = true;
  next->UserPressedKey(held);
  EXPECT_EQ(keys, 2);
  EXPECT_TRUE(next->UserBeginsPress(false));
  EXPECT_TRUE(next->UserBeginsPress(true));
}

TEST(WindowTest, TheFocusSkipsWhatCannotTakeIt) {
  TestProgram program;
  const auto window = ImplicitInstance<TestWindow>();
  EXPECT_THROW(program.user().Click(Role::kText, "slider"), InvalidArgumentException);
  EXPECT_THROW(program.user().SeesDescribed("nobody"), InvalidArgumentException);
  EXPECT_THROW(program.user().Close("Nobody"), InvalidArgumentException);
  const Key tab = Key::Character("\t");
  EXPECT_TRUE(window->Focus() == window->slider());
  window->UserPressedKey(tab);
  EXPECT_TRUE(window->Focus() == window->field());
  window->slider()->SetVisible(false);
  window->UserPressedKey(tab);
  EXPECT_TRUE(window->Focus() == window->field());
  window->field()->KeyDown = Delegate<bool(Ref<TextField>, std::string)>(
      +[](Ref<TextField>, std::string) { return true; });
  window->slider()->SetVisible(true);
  window->UserPressedKey(tab);
  EXPECT_TRUE(window->Focus() == window->field()) << "a swallowed tab moves nothing";
  window->slider()->SetEnabled(false);
  window->UserFocused(window->slider());
  EXPECT_TRUE(window->Focus() == window->field());
}

// A window of a given type, which is not shown when it is created.
struct PlacedWindow : Window {
  explicit PlacedWindow(WindowType its_type) : type(its_type) {}
  void Layout() override {
    _SetProperties(*this,
                   EncodedStream<64>().Set(property::kType, type).Set(property::kVisible, false));
  }
  const WindowType type;
};

TEST(WindowTest, AWindowIsPlacedByWhatElseIsOnTheScreen) {
  using Rule = Window::Placement::Rule;
  TestProgram program;
  const auto make = [](WindowType type) {
    auto window = New<PlacedWindow>(type);
    window->Constructor();
    return window;
  };
  const auto working = make(WindowType::kWorking);
  const auto reading = make(WindowType::kReading);
  const auto splash = make(WindowType::kSplash);
  const auto expect = [](const Ref<PlacedWindow>& window, Rule rule, const Ref<Window>& other,
                         bool stays = false) {
    const Window::Placement placement = window->WhereToShow();
    EXPECT_EQ(placement.rule, rule);
    EXPECT_TRUE(placement.other == other);
    EXPECT_EQ(placement.stays_with_other, stays);
  };
  expect(splash, Rule::kMiddleOfScreen, nullptr);
  expect(working, Rule::kAnywhere, nullptr);
  splash->Show();
  splash->Hide();
  expect(working, Rule::kOver, splash);
  expect(reading, Rule::kAnywhere, nullptr);
  working->Show();
  expect(working, Rule::kAnywhere, nullptr);
  expect(reading, Rule::kBeside, working);
  expect(splash, Rule::kOver, working, /*stays=*/true);
  reading->Show();
  expect(reading, Rule::kAnywhere, nullptr);
}

// In a page Tab goes on to the rest of the page.
TEST(WindowTest, TabLeavesTheWindowAtBothEndsIfTheDisplayWantsIt) {
  TestProgram program;
  program.display().LetTabLeave();
  const auto window = ImplicitInstance<TestWindow>();
  Key tab = Key::Character("\t");
  EXPECT_TRUE(window->UserPressedKey(tab));
  EXPECT_FALSE(window->UserPressedKey(tab)) << "the field is the last stop";
  EXPECT_TRUE(window->Focus() == window->field())
      << "a user who comes back finds the focus where it was";
  tab.shift = true;
  EXPECT_TRUE(window->UserPressedKey(tab));
  EXPECT_FALSE(window->UserPressedKey(tab));
  EXPECT_TRUE(window->Focus() == window->slider());
  window->slider()->SetTabStop(false);
  window->field()->SetTabStop(false);
  EXPECT_FALSE(window->UserPressedKey(tab)) << "there is no stop to go to";
  window->slider()->SetEnabled(false);
  window->field()->SetEnabled(false);
  EXPECT_FALSE(window->UserPressedKey(tab)) << "there is nothing to go to";
}

}  // namespace
}  // namespace vamo
