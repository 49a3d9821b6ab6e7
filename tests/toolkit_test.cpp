// The toolkit's rules: events and their exceptions, threads, sliders, buttons, timers, windows,
// menus.
#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "test_program.h"
#include "toolkit/delegate.h"
#include "toolkit/label.h"
#include "toolkit/menu_service.h"
#include "toolkit/picture.h"
#include "toolkit/property_stream.h"
#include "toolkit/push_button.h"
#include "toolkit/slider.h"
#include "toolkit/text_edit.h"
#include "toolkit/timer.h"

namespace vamo {
namespace {

using std::chrono_literals::operator""ms;

struct Log : Object {
  bool Pass() {
    entries.push_back("pass");
    return false;
  }
  bool Take() {
    entries.push_back("take");
    return true;
  }
  void Note(Ref<Slider> slider) { entries.push_back(std::to_string(slider->Value())); }
  void NoteTimer(Ref<Timer> /*timer*/) { entries.push_back("timer"); }
  void Fail(Ref<Slider> slider);
  std::vector<std::string> entries;
};

// Raises what the slider's position stands for.
void Log::Fail(Ref<Slider> slider) {
  if (slider->Value() == 1) throw EndException();
  if (slider->Value() == 2) throw ThreadEndException();
  if (slider->Value() == 3) throw KeyNotFoundException("the third");
  throw std::logic_error("none of ours");
}

class TestWindow : public Window {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  void CreateControls() override {
    Add("slider", __New<Slider>());
    Add("field", __New<TextField>());
    Add("label", __New<Label>());
    _AddControl("timer", __New<_wrapper_Timer1>());
  }
  void Event_Activate() override { ++activations; }
  void Event_EnableMenuItems() override { ++enablings; }

  Ref<Slider> slider() { return ControlNamed<Slider>("slider"); }
  Ref<TextField> field() { return ControlNamed<TextField>("field"); }
  Ref<Timer> timer() { return ControlNamed<Timer>("timer"); }

  void Hear(Ref<Slider> /*slider*/) {}

  int activations = 0;
  int enablings = 0;

 private:
  template <class C>
  void Add(std::string_view name, const Ref<C>& control) {
    _AddControl(name, control);
    control->SetAccessibleName(name);
  }
};
const ClassInfo TestWindow::kClass{"TestWindow.TestWindow", &Window::kClass, {}};

class OtherWindow : public Window {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &TestWindow::kClass; }
};
const ClassInfo OtherWindow::kClass{"TestWindow.TestWindow", &Window::kClass, {}};

class TestApplication : public Application {
 public:
  bool Event_UnhandledException(const RuntimeException& exception) override {
    taken = exception.Message();
    return takes;
  }
  bool takes = false;
  std::string taken;
};

TEST(ThreadTrapTest, AnotherThreadCannotTouchTheUserInterface) {
  TestProgram program;
  const auto window = ImplicitInstance<TestWindow>();
  const auto app = New<TestApplication>();
  const auto label = New<Label>();
  const auto field = New<TextField>();
  const auto slider = New<Slider>();
  const auto canvas = New<Canvas>();
  const auto item = New<MenuItem>();
  const auto child = New<MenuItem>();
  const std::function<void()> kOperations[] = {
      [&] { label->SetText("x"); },
      [&] { label->Text(); },
      [&] { label->SetVisible(false); },
      [&] { label->SetEnabled(false); },
      [&] { label->SetAccessibleName("x"); },
      [&] { label->SetAccessibleDescription("x"); },
      [&] { label->SetLabelledBy(label); },
      [&] { field->SetText("x"); },
      [&] { field->Text(); },
      [&] { slider->Value(); },
      [&] { canvas->SetBackdrop(nullptr); },
      [&] { _SetProperties(*label, EncodedStream<8>()); },
      [&] { AddHandler(slider->ValueChanged, &*window, &TestWindow::Hear); },
      [&] { New<TestWindow>()->Constructor(); },
      [&] { window->Show(); },
      [&] { window->Hide(); },
      [&] { window->Close(); },
      [&] { window->__New<Label>(); },
      [&] { window->_AddControl("x", label); },
      [&] { window->_ControlByName("field"); },
      [&] { window->_AddMenuHandler("x", MenuHandler()); },
      [&] { window->MenuBar(); },
      [&] { window->SetMenuBar(nullptr); },
      [&] { app->_AddMenuHandler("x", MenuHandler()); },
      [&] { app->SetMenuBar(nullptr); },
      [&] { item->SetName("x"); },
      [&] { item->SetValue("x"); },
      [&] { item->SetShortcut("x"); },
      [&] { item->SetAutoEnabled(false); },
      [&] { item->SetEnabled(false); },
      [&] { item->SetVisible(false); },
      [&] { item->AddMenu(child); },
      [&] { item->Child("x"); },
      [&] { item->_Lookup("x"); },
      [&] { Picture::_OpenFromApp("ChartSmall.jpg"); },
  };
  const auto trapped = [](const std::function<void()>& operation) {
    std::string message;
    std::thread([&] {
      try {
        operation();
      } catch (const ThreadAccessingUIException& exception) {
        message = exception.Message();
      }
    }).join();
    return message;
  };
  EXPECT_EQ(trapped([&] { label->SetText("kept"); }), "") << "there is no application object yet";
  program.runtime().RegisterApp(app);
  for (std::size_t i = 0; i < std::size(kOperations); ++i) {
    EXPECT_EQ(
        trapped(kOperations[i]),
        "A thread has attempted to manipulate a user interface element. This can only be done "
        "from the application's main thread.")
        << i;
  }
  EXPECT_EQ(label->Text(), "kept");
  EXPECT_TRUE(label->Visible() && item->Visible() && window->IsLive());
  EXPECT_EQ(program.runtime().LiveWindows().size(), 1U);
}

class EventTest : public testing::Test {
 protected:
  EventTest() {
    program_.runtime().RegisterApp(app_);
    slider_->ValueChanged =
        Delegate<void(Ref<Slider>)>(New<Log>(), &Log::Fail, ReceiverFlag::kStrong);
  }
  TestProgram program_;
  Ref<TestApplication> app_ = New<TestApplication>();
  Ref<Slider> slider_ = New<Slider>();
};

TEST_F(EventTest, AnUnhandledExceptionEndsTheProgramWithOneLineAndStatusOne) {
  slider_->UserMovedTo(1);
  slider_->UserMovedTo(2);
  EXPECT_TRUE(program_.display().Running()) << "the end exceptions end the event alone";
  EXPECT_EQ(app_->taken, "");
  testing::internal::CaptureStderr();
  slider_->UserMovedTo(3);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "vamo: KeyNotFoundException: the third\n");
  EXPECT_EQ(app_->taken, "the third");
  EXPECT_FALSE(program_.display().Running());
  Quit(0);
  EXPECT_EQ(program_.runtime().ExitCode(), 1) << "the first exit code stands";
}

TEST_F(EventTest, TheApplicationCanTakeAnException) {
  app_->takes = true;
  slider_->UserMovedTo(3);
  EXPECT_TRUE(program_.display().Running());
}

TEST_F(EventTest, WhatIsNoneOfOursIsRaisedAgainOutOfTheLoop) {
  slider_->UserMovedTo(4);
  EXPECT_FALSE(program_.display().Running());
  EXPECT_THROW(program_.runtime().Run(), std::logic_error);
}

TEST(SliderTest, RaisesEachNewPositionAndNeverTheSame) {
  TestProgram program;
  const auto slider = New<Slider>();
  const auto log = New<Log>();
  slider->ValueChanged = Delegate<void(Ref<Slider>)>(log, &Log::Note, ReceiverFlag::kStrong);
  for (const std::int64_t position : {3, 3, 200, 100, -5, 0}) slider->UserMovedTo(position);
  EXPECT_EQ(log->entries, (std::vector<std::string>{"3", "100", "0"}));
}

// Takes itself out of the event that it hears, and goes on.
struct Fleeting : Object {
  void Hear(Ref<Slider> slider) {
    slider->ValueChanged = {};
    heard = slider->Value();
  }
  ~Fleeting() override { gone_with = heard; }
  std::int64_t heard = 0;
  static inline std::int64_t gone_with = 0;
};

TEST(SliderTest, AHandlerCanTakeItselfOut) {
  TestProgram program;
  const auto slider = New<Slider>();
  slider->ValueChanged =
      Delegate<void(Ref<Slider>)>(New<Fleeting>(), &Fleeting::Hear, ReceiverFlag::kStrong);
  slider->UserMovedTo(7);
  EXPECT_EQ(Fleeting::gone_with, 7) << "it has gone before it was through";
  slider->UserMovedTo(8);
  EXPECT_EQ(Fleeting::gone_with, 7);
}

TEST(SliderTest, StepsOfAnySizeEndAtTheEnds) {
  TestProgram program;
  const auto slider = New<Slider>();
  _SetProperties(
      *slider, EncodedStream<640>().Integer("LineStep", INT64_MIN).Integer("PageStep", INT64_MAX));
  const auto reached = [&](KeyCode key) {
    slider->UserMovedTo(50);
    EXPECT_TRUE(slider->TakeKey({key, "", false, false}));
    return slider->Value();
  };
  EXPECT_EQ(reached(KeyCode::kLeft), 100);
  EXPECT_EQ(reached(KeyCode::kRight), 0);
  EXPECT_EQ(reached(KeyCode::kPageDown), 0);
  EXPECT_EQ(reached(KeyCode::kPageUp), 100);
  slider->UserTurnedWheel(-3);
  EXPECT_EQ(slider->Value(), 100);
}

TEST(PushButtonTest, OnlyAnEnabledButtonAsksItsHandler) {
  TestProgram program;
  const auto button = New<PushButton>();
  EXPECT_FALSE(button->UserPressed(3, 4)) << "there is no handler";
  button->MouseDown = Delegate<bool(Ref<PushButton>, std::int64_t, std::int64_t)>(
      +[](Ref<PushButton>, std::int64_t x, std::int64_t y) { return x == 3 && y == 4; });
  EXPECT_TRUE(button->UserPressed(3, 4));
  button->SetEnabled(false);
  EXPECT_FALSE(button->UserPressed(3, 4));
}

TEST(TimerTest, FiresOnceOrAgainAndNotInAClosedWindow) {
  TestProgram program;
  const auto log = New<Log>();
  const Delegate<void(Ref<Timer>)> note(log, &Log::NoteTimer, ReceiverFlag::kStrong);
  const auto window = ImplicitInstance<TestWindow>();
  window->timer()->Action = note;
  window->timer()->SetRunMode(1);
  program.display().LetTimePass(1000ms);
  EXPECT_EQ(log->entries.size(), 0U) << "a period is missing";
  window->timer()->SetPeriod(100);
  program.display().LetTimePass(99ms);
  EXPECT_EQ(log->entries.size(), 0U);
  program.display().LetTimePass(1000ms);
  EXPECT_EQ(log->entries.size(), 1U);
  window->timer()->SetRunMode(2);
  program.display().LetTimePass(350ms);
  EXPECT_EQ(log->entries.size(), 4U);
  window->timer()->Reset();
  program.display().LetTimePass(99ms);
  EXPECT_EQ(log->entries.size(), 4U) << "the period has begun anew";
  program.display().LetTimePass(1ms);
  EXPECT_EQ(log->entries.size(), 5U);
  const auto timer = window->timer();
  window->Close();
  program.display().LetTimePass(1000ms);
  EXPECT_EQ(log->entries.size(), 5U);
}

TEST(TimerTest, TheWrapperDoesNotKeepItsWindow) {
  TestProgram program;
  auto window = ImplicitInstance<TestWindow>();
  const auto wrapper = window->ControlNamed<_wrapper_Timer1>("timer");
  EXPECT_TRUE(wrapper->Window() == window);
  window->Close();
  window = nullptr;
  EXPECT_FALSE(wrapper->Window());
  EXPECT_FALSE(New<_wrapper_Timer1>()->Window());
}

TEST(WindowTest, TheImplicitInstanceIsTheOneLiveWindow) {
  TestProgram program;
  const auto window = ImplicitInstance<TestWindow>();
  window->Hide();
  EXPECT_TRUE(ImplicitInstance<TestWindow>() == window);
  EXPECT_THROW(ImplicitInstance<OtherWindow>(), IllegalCastException);
  window->Show();
  program.display().PressKey(Key::Character("x"));
  EXPECT_TRUE(program.runtime().ActiveWindow() == window);
  window->Close();
  EXPECT_FALSE(program.runtime().ActiveWindow());
  window->Show();
  EXPECT_TRUE(program.display().Windows().empty()) << "a closed window does not come back";
  EXPECT_FALSE(ImplicitInstance<TestWindow>() == window);
}

TEST(WindowTest, AWindowThatIsHeldPastTheEndHasNothingOnTheDisplay) {
  Ref<TestWindow> held;
  TestProgram outer;
  {
    TestProgram program;
    held = ImplicitInstance<TestWindow>();
  }
  EXPECT_FALSE(held->IsLive());
  held->field()->SetText("nobody shows it");
  EXPECT_EQ(&Runtime::Current(), &outer.runtime()) << "the former run time is the current one";
}

TEST(WindowTest, ActivationIsRaisedWhenTheWindowBecomesTheActiveOne) {
  TestProgram program;
  const auto window = ImplicitInstance<TestWindow>();
  program.display().PressKey(Key::Character("x"));
  EXPECT_EQ(window->activations, 1);
  window->UserActivated();
  EXPECT_EQ(window->activations, 1) << "it already was";
  window->UserDeactivated();
  window->UserActivated();
  EXPECT_EQ(window->activations, 2);
  window->Hide();
  window->UserActivated();
  EXPECT_EQ(window->activations, 2) << "a hidden window is not active";
}

TEST(WindowTest, TheFocusPassesOverWhatCannotTakeIt) {
  TestProgram program;
  const auto window = ImplicitInstance<TestWindow>();
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

class MenuTest : public testing::Test {
 protected:
  MenuTest() {
    const auto edit = New<MenuItem>();
    edit->SetName("Edit");
    edit->SetValue("Edit");
    bar_->AddMenu(edit);
    for (const auto& [name, shortcut] : {std::pair{"Own", "Cmd+O"}, {"EditCopy", "Cmd+C"}}) {
      const auto item = New<MenuItem>();
      item->SetName(name);
      item->SetValue(name);
      item->SetShortcut(shortcut);
      item->SetAutoEnabled(false);
      edit->AddMenu(item);
    }
    app_->SetMenuBar(bar_);
    program_.runtime().RegisterApp(app_);
    window_ = ImplicitInstance<TestWindow>();
    program_.display().PressKey(Key::Character("x"));
  }

  MenuHandler Handler(bool (Log::*method)()) { return {log_, method, ReceiverFlag::kStrong}; }

  TestProgram program_;
  Ref<TestApplication> app_ = New<TestApplication>();
  Ref<MenuBar> bar_ = New<MenuBar>();
  Ref<Log> log_ = New<Log>();
  Ref<TestWindow> window_;
};

TEST_F(MenuTest, AnItemIsInOneMenu) {
  EXPECT_THROW(bar_->AddMenu(bar_->_Lookup("Own")), MenuHasParentException);
  EXPECT_FALSE(bar_->Child("Own"));
  EXPECT_FALSE(bar_->_Lookup("Nowhere"));
}

TEST_F(MenuTest, TheWindowsHandlerComesFirstAndCanTakeTheItem) {
  bar_->_Lookup("Own")->SetAutoEnabled(true);
  EnableMenuItems();
  app_->_AddMenuHandler("Own", Handler(&Log::Take));
  window_->_AddMenuHandler("Own", Handler(&Log::Pass));
  UserChose(bar_->_Lookup("Own"));
  EXPECT_EQ(log_->entries, (std::vector<std::string>{"pass", "take"}));
  window_->Close();
  window_ = ImplicitInstance<TestWindow>();
  program_.display().PressKey(Key::Character("x"));
  window_->_AddMenuHandler("Own", Handler(&Log::Take));
  UserChose(bar_->_Lookup("Own"));
  EXPECT_EQ(log_->entries, (std::vector<std::string>{"pass", "take", "take"}));
}

TEST_F(MenuTest, ADisabledItemsShortcutDoesNothing) {
  window_->_AddMenuHandler("Own", Handler(&Log::Take));
  const int enablings = window_->enablings;
  program_.display().PressKey(Key::Command("o"));
  EXPECT_EQ(window_->enablings, enablings + 1);
  EXPECT_TRUE(log_->entries.empty());
  EXPECT_FALSE(program_.display().CanChoose("Edit/Own"));
  bar_->_Lookup("Own")->SetAutoEnabled(true);
  program_.display().PressKey(Key::Command("o"));
  EXPECT_EQ(log_->entries.size(), 1U);
  program_.display().PressKey({KeyCode::kCharacter, "o", /*shift=*/true, /*command=*/true});
  EXPECT_EQ(log_->entries.size(), 1U) << "with shift it is another key";
}

TEST_F(MenuTest, TheEditItemsServeTheFocusedTextUnlessAHandlerTakesThem) {
  window_->field()->SetText("text");
  program_.display().Click(Role::kText, "field");
  EXPECT_FALSE(program_.display().CanChoose("Edit/EditCopy"));
  program_.display().Select("field", 0, 2);
  EXPECT_TRUE(program_.display().Choose("Edit/EditCopy"));
  EXPECT_EQ(program_.display().Clipboard(), "te");
  EXPECT_TRUE(window_->field()->CanPaste());
  EXPECT_EQ(program_.display().ClipboardReads(), 0) << "enabling the items reads no clipboard";
  app_->_AddMenuHandler("EditCopy", Handler(&Log::Take));
  program_.display().Select("field", 0, 3);
  program_.display().PressKey(Key::Command("c"));
  EXPECT_EQ(program_.display().Clipboard(), "te");
}

}  // namespace
}  // namespace vamo
