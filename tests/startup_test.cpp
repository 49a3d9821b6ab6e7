// The road of the process, the application object, the menu bar, and the windows of the shell.
#include "shell/startup.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "controlwnd/accessors.h"
#include "controlwnd/control_wnd.h"
#include "displays/headless/user.h"
#include "shell/about_wnd.h"
#include "shell/file_types.h"
#include "shell/handle_about_menu.h"
#include "shell/info_wnd.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {
namespace {

using std::chrono_literals::operator""ms;
using Steps = std::vector<std::string>;

struct Outcome {
  int status;
  Steps steps;
  std::string said;
};

// Runs the program, with `failing` as the step that raises an exception, and notes what it does.
Outcome RunFailingAt(std::string_view failing,
                     const std::function<void(HeadlessUser&)>& user = nullptr) {
  Outcome outcome;
  testing::internal::CaptureStderr();
  outcome.status = Main(std::make_unique<HeadlessDisplay>(user), [&](std::string_view step) {
    outcome.steps.emplace_back(step);
    if (step == failing) throw UnsupportedOperationException("made to fail");
  });
  outcome.said = testing::internal::GetCapturedStderr();
  return outcome;
}

TEST(StartupTest, TakesItsStepsInOrder) {
  bool ran = false;
  const Outcome outcome = RunFailingAt("", [&](HeadlessUser& user) {
    ran = true;
    EXPECT_EQ(user.Windows(), Steps{""}) << "the About window is the first and only one";
    EXPECT_FALSE(_GetImplicitWindow("ControlWnd.ControlWnd"));
    EXPECT_TRUE(Runtime::Current().SupportsHiDPI());
  });
  EXPECT_TRUE(ran);
  EXPECT_EQ(
      outcome.steps,
      (Steps{"RuntimeInit", "RuntimePerformInitializers", "_Main", "_RuntimeSetExceptionHelper",
             "_EarlyStartup", "_SetSupportsHiDPI", "_InitFileTypes", "_NewAppInstance",
             "_ApplicationAddMenuHandlers", "_RunFrameworkInitialization", "_MakeDefaultView",
             "_RuntimeRun", "RuntimePerformFinalizers", "RuntimeExit"}));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.said, "");
  EXPECT_FALSE(Runtime::Exists());
}

TEST(StartupTest, AFailingStepIsHandedOverOnceAndStillEndsInOrder) {
  const Steps before{"RuntimeInit",
                     "RuntimePerformInitializers",
                     "_Main",
                     "_RuntimeSetExceptionHelper",
                     "_EarlyStartup",
                     "_SetSupportsHiDPI",
                     "_InitFileTypes",
                     "_NewAppInstance",
                     "_ApplicationAddMenuHandlers",
                     "_RunFrameworkInitialization",
                     "_MakeDefaultView",
                     "_RuntimeRun"};
  for (std::size_t i = 3; i < before.size(); ++i) {
    Steps expected(before.begin(), before.begin() + static_cast<std::ptrdiff_t>(i) + 1);
    expected.insert(expected.end(),
                    {"_UnhandledException", "RuntimePerformFinalizers", "RuntimeExit"});
    const Outcome outcome =
        RunFailingAt(before[i], [](HeadlessUser&) { FAIL() << "the loop ran"; });
    EXPECT_EQ(outcome.steps, expected);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.said, "vamo: UnsupportedOperationException: made to fail\n");
  }
}

TEST(StartupTest, AnExceptionOutOfMainStillRunsTheFinalisers) {
  const Outcome outcome = RunFailingAt("_Main");
  EXPECT_EQ(outcome.steps, (Steps{"RuntimeInit", "RuntimePerformInitializers", "_Main",
                                  "RuntimePerformFinalizers", "RuntimeExit"}));
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.said, "vamo: UnsupportedOperationException: made to fail\n");
}

TEST(StartupTest, AnExceptionInAnEventEndsTheLoopWithStatusOne) {
  const Outcome outcome = RunFailingAt("", [](HeadlessUser& user) {
    user.PressKey(Key::Character("x"));
    ControlWnd()->_AddMenuHandler("AboutMenuItem", MenuHandler());
    user.Choose("Window/About Vamo");
    EXPECT_FALSE(user.Display().Running());
  });
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.said, "vamo: NilObjectException: A delegate without a function was called.\n");
}

// What follows runs inside the started program.
class ProgramTest : public testing::Test {
 protected:
  static void InProgram(const std::function<void(HeadlessUser&)>& act) {
    bool completed = false;
    Main(std::make_unique<HeadlessDisplay>([&](HeadlessUser& user) {
      act(user);
      completed = true;
    }));
    EXPECT_TRUE(completed);
  }
  static bool AboutIsShown() { return AboutWnd()->Visible(); }
};

TEST_F(ProgramTest, TheApplicationCarriesItsVersionAndTheBar) {
  InProgram([](HeadlessUser&) {
    const auto app = App();
    EXPECT_EQ(app->MajorVersion(), 3);
    EXPECT_EQ(app->MinorVersion() + app->BugVersion() + app->NonReleaseVersion(), 0);
    EXPECT_EQ(app->StageCode(), 3);
    EXPECT_EQ(app->RegionCode(), 0);
    EXPECT_EQ(app->ShortVersion(), "3.0");
    EXPECT_EQ(app->Version(), "3.0");
    EXPECT_EQ(app->PackageInfo() + app->Description(), "VamoVamo");
    EXPECT_EQ(app->LongVersion(), Cast<class AboutWnd>(AboutWnd())->StaticText5()->Text());
    EXPECT_TRUE(app->MenuBar() == Menu());
    EXPECT_FALSE(AboutWnd()->MenuBar());
    EXPECT_TRUE(ControlWnd()->MenuBar() == Menu());
    EXPECT_TRUE(InfoWnd()->MenuBar() == Menu());
  });
}

TEST_F(ProgramTest, TheMenuTreeStands) {
  InProgram([](HeadlessUser&) {
    std::string tree;
    for (const auto& menu : Menu()->Children()) {
      tree += menu->Name() + ":" + menu->Value();
      for (const auto& item : menu->Children()) {
        tree += " " + item->Name() + "=" + item->Value() + "(" + item->Shortcut() + ")";
        EXPECT_EQ(item->AutoEnabled(), item->Name() == "FileQuit");
      }
      tree += "\n";
    }
    EXPECT_EQ(
        tree,
        "UntitledMenu3:\n"
        "UntitledMenu2:File FileQuit=Quit(Cmd+Q) UntitledMenu8=()\n"
        "UntitledMenu0:Edit EditUndo=Undo(Cmd+Z) UntitledMenu1=-() EditCut=Cut(Cmd+X) "
        "EditCopy=Copy(Cmd+C) EditPaste=Paste(Cmd+V) EditClear=() UntitledMenu7=()\n"
        "WindowMenu:Window ControlMenuItem=Control() AboutMenuItem=About Vamo() UntitledMenu6=() "
        "AboutKEL=About Vamo() UntitledMenu5=()\n"
        "UntitledMenu4:\n");
    const auto window = Cast<class ControlWnd>(ControlWnd());
    EXPECT_TRUE(window->AboutKEL() == AboutKEL());
    EXPECT_TRUE(window->FileQuit() == Menu()->_Lookup("FileQuit"));
    EXPECT_TRUE(Cast<class InfoWnd>(InfoWnd())->UntitledMenu5() == window->UntitledMenu5());
  });
}

TEST_F(ProgramTest, TheItemsAreEnabledByTheWindowInFront) {
  InProgram([](HeadlessUser& user) {
    user.PressKey(Key::Character("x"));
    EXPECT_TRUE(user.CanChoose("Window/About Vamo"));
    EXPECT_TRUE(user.CanChoose("Help/About Vamo"));
    EXPECT_FALSE(user.CanChoose("Window/Control"));
    EXPECT_FALSE(user.CanChoose("Edit/Copy"));
    user.Click(Role::kButton, "Info");
    EXPECT_TRUE(user.CanChoose("Edit/Copy"));
    EXPECT_FALSE(user.CanChoose("Edit/Paste"));
    EXPECT_FALSE(user.CanChoose("Window/About Vamo"));
  });
}

TEST_F(ProgramTest, ClassesTellTheEventsThatTheyImplement) {
  InProgram([](HeadlessUser&) {
    const auto implemented = [](const auto& object) {
      std::string events;
      for (const char* event : {"Layout", "CreateControls", "Activate", "Close", "EnableMenuItems",
                                "KeyDown", "MouseDown", "UnhandledException", "Open"}) {
        if (object->IsEventImplemented(event)) (events += event) += " ";
      }
      return events;
    };
    EXPECT_EQ(implemented(Cast<class ControlWnd>(ControlWnd())),
              "Layout CreateControls Activate Close EnableMenuItems ");
    EXPECT_EQ(implemented(Cast<class AboutWnd>(AboutWnd())),
              "Layout CreateControls KeyDown MouseDown ");
    EXPECT_EQ(implemented(Cast<class InfoWnd>(InfoWnd())),
              "Layout CreateControls EnableMenuItems ");
    EXPECT_EQ(implemented(App()), "EnableMenuItems ");
  });
}

TEST_F(ProgramTest, TheSplashGoesThroughItsStates) {
  InProgram([](HeadlessUser& user) {
    const auto about = AboutWnd();
    user.LetTimePass(3999ms);
    EXPECT_TRUE(AboutIsShown());
    user.PressKey(Key::Character("x"));
    EXPECT_FALSE(AboutIsShown());
    // The timer still fires, but the user has gone to another program by then.
    user.SwitchAway();
    user.LetTimePass(1ms);
    EXPECT_EQ(user.ActiveTitle(), "");
    user.ActivateWindow("Vamo");
    // Shown again, it is the same object, and its timer is spent.
    user.Choose("Help/About Vamo");
    EXPECT_TRUE(AboutWnd() == about);
    user.LetTimePass(60000ms);
    EXPECT_TRUE(AboutIsShown());
    user.ActivateWindow("Vamo");
    EXPECT_FALSE(AboutIsShown());
    // Closed, it makes way for a new one with a timer of its own.
    user.Choose("Help/About Vamo");
    user.Close("");
    EXPECT_TRUE(user.Display().Running());
    user.ActivateWindow("Vamo");
    EXPECT_FALSE(AboutWnd() == about);
  });
}

TEST_F(ProgramTest, AShowingInTheFirstFourSecondsIsEndedByTheTimer) {
  InProgram([](HeadlessUser& user) {
    user.Click(Role::kLabel, "Vamo");
    user.Choose("Window/About Vamo");
    user.LetTimePass(3000ms);
    EXPECT_TRUE(AboutIsShown());
    user.LetTimePass(1000ms);
    EXPECT_FALSE(AboutIsShown());
    EXPECT_EQ(user.ActiveTitle(), "Vamo");
  });
}

TEST_F(ProgramTest, TheInfoTextIsWholeAndFixed) {
  InProgram([](HeadlessUser& user) {
    user.PressKey(Key::Character("x"));
    user.Click(Role::kButton, "Info");
    const auto area = Cast<class InfoWnd>(InfoWnd())->StaticText1();
    const std::string text = area->Text();
    EXPECT_EQ(text.size(), 911U);
    EXPECT_EQ(text.find('\n'), std::string::npos);
    EXPECT_EQ(text.find("\r\rCopyright"), 233U);
    EXPECT_EQ(text.substr(text.size() - 25), "respect to this software.");
    user.Type("typed");
    EXPECT_EQ(area->Text(), text);
  });
}

TEST_F(ProgramTest, TheFileTypesAreRegistered) {
  InProgram([](HeadlessUser&) {
    const auto& types = FileTypes::AllFileTypes();
    ASSERT_EQ(types.size(), 2U);
    EXPECT_TRUE(types[0] == FileTypes::Text());
    EXPECT_TRUE(types[1] == FileTypes::UntitledType());
    EXPECT_EQ(types[0]->Name() + types[0]->MacType() + types[0]->MacCreator(), "textTEXTR*ch");
    EXPECT_EQ(types[1]->Name() + types[1]->MacType() + types[1]->MacCreator(), "");
    EXPECT_EQ(Runtime::Current().RegisteredFileTypes().size(), 2U);
    EXPECT_TRUE(types[1]->Registered() && types[0]->Imported());
    types[0]->SetMimeType("text/plain");
    EXPECT_FALSE(types[0]->Registered());
    EXPECT_EQ(Runtime::Current().RegisteredFileTypes().size(), 1U);
  });
}

}  // namespace
}  // namespace vamo
