// The process from start to end, the application object, the menu bar, the splash.
#include "shell/startup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "controlwnd/accessors.h"
#include "controlwnd/control_wnd.h"
#include "displays/headless/user.h"
#include "shell/about_wnd.h"
#include "shell/file_types.h"
#include "shell/handle_about_menu.h"
#include "shell/info_wnd.h"
#include "shell/link.h"
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

// Runs the program with an exception in the step `failing` and records what it does.
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

const Steps kStart{"RuntimeInit",
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

// The steps from the start up to `last`, followed by `then`.
Steps StepsUpTo(std::string_view last, const Steps& then) {
  Steps steps(kStart.begin(), std::find(kStart.begin(), kStart.end(), last) + 1);
  steps.insert(steps.end(), then.begin(), then.end());
  return steps;
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
  EXPECT_EQ(outcome.steps, StepsUpTo("_RuntimeRun", {"RuntimePerformFinalizers", "RuntimeExit"}));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.said, "");
  EXPECT_FALSE(Runtime::Exists());
}

TEST(StartupTest, AFailingStepIsHandedOverOnceAndStillEndsInOrder) {
  for (auto step = kStart.begin() + 2; step != kStart.end(); ++step) {
    Steps end{"_UnhandledException", "RuntimePerformFinalizers", "RuntimeExit"};
    // Nothing hands over an exception that leaves _Main itself.
    if (*step == "_Main") end.erase(end.begin());
    const Outcome outcome = RunFailingAt(*step, [](HeadlessUser&) { FAIL() << "the loop ran"; });
    EXPECT_EQ(outcome.steps, StepsUpTo(*step, end));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.said, "vamo: UnsupportedOperationException: made to fail\n");
  }
}

std::vector<std::int64_t> positions;

// A slider's handler that fails at one position.
template <class Exception>
void FailAt50(Ref<Slider> slider) {
  positions.push_back(slider->Value());
  if (slider->Value() == 50) throw Exception("made to fail");
}

TEST(StartupTest, AHandlerThatFailsInTheMiddleOfADragEndsTheProgramInOrder) {
  const struct {
    void (*handler)(Ref<Slider>);
    std::string said;
    Steps end;
  } kCases[] = {
      {FailAt50<OutOfBoundsException>,
       "vamo: OutOfBoundsException: made to fail\n",
       {"RuntimePerformFinalizers", "RuntimeExit"}},
      {FailAt50<std::runtime_error>,
       "vamo: made to fail\n",
       {"_UnhandledException", "RuntimePerformFinalizers", "RuntimeExit"}},
  };
  for (const auto& [handler, said, end] : kCases) {
    positions.clear();
    std::vector<WeakRef<Window>> windows;
    const Outcome outcome = RunFailingAt("", [&, failing = handler](HeadlessUser& user) {
      user.PressKey(Key::Character("x"));
      for (const auto& window : Runtime::Current().LiveWindows()) windows.emplace_back(window);
      ControlWnd()->rSlider()->ValueChanged = Delegate<void(Ref<Slider>)>(failing);
      user.DragSlider("r", {12, 50, 37});
      EXPECT_FALSE(user.Display().Running());
      Quit(0);
    });
    EXPECT_EQ(outcome.status, 1) << "the first exit status stands";
    EXPECT_EQ(outcome.said, said);
    EXPECT_EQ(outcome.steps, StepsUpTo("_RuntimeRun", end));
    EXPECT_EQ(positions, (std::vector<std::int64_t>{12, 50}));
    ASSERT_EQ(windows.size(), 2U);
    EXPECT_FALSE(windows[0].Value() || windows[1].Value());
  }
}

// A display whose Run returns before the first event, as in a browser.
struct LaterDisplay : HeadlessDisplay {
  explicit LaterDisplay(int& counter) : stops(counter) {}
  void Run() override {}
  void Stop() override {
    ++stops;
    HeadlessDisplay::Stop();
  }
  int& stops;
};

TEST(StartupTest, AProcessGoesOnWhereThePlatformHasTheLoop) {
  for (const bool fails : {false, true}) {
    int stops = 0;
    Steps steps;
    auto display = std::make_unique<LaterDisplay>(stops);
    HeadlessUser user(*display);
    Process process(std::move(display), [&](std::string_view step) { steps.emplace_back(step); });
    user.PressKey(Key::Character("x"));
    EXPECT_EQ(user.Windows(), Steps{"Vamo"});
    EXPECT_EQ(stops, 0);
    if (fails) {
      testing::internal::CaptureStderr();
      Runtime::Current().Dispatch([] { throw std::runtime_error("damaged"); });
      EXPECT_EQ(process.Finish(), 1);
      EXPECT_EQ(testing::internal::GetCapturedStderr(), "vamo: damaged\n");
      EXPECT_EQ(steps, StepsUpTo("_RuntimeRun", {"_UnhandledException", "RuntimePerformFinalizers",
                                                 "RuntimeExit"}));
    } else {
      user.PressKey(Key::Command("q"));
      EXPECT_EQ(process.Finish(), 0);
      EXPECT_EQ(steps, StepsUpTo("_RuntimeRun", {"RuntimePerformFinalizers", "RuntimeExit"}));
    }
    EXPECT_EQ(stops, 1);
  }
}

// Runs a test inside the started program.
void InProgram(const std::function<void(HeadlessUser&)>& act) {
  bool completed = false;
  Main(std::make_unique<HeadlessDisplay>([&](HeadlessUser& user) {
    act(user);
    completed = true;
  }));
  EXPECT_TRUE(completed);
}

TEST(ProgramTest, TheApplicationCarriesItsVersionAndTheBar) {
  InProgram([](HeadlessUser&) {
    const auto app = App();
    EXPECT_EQ((std::vector{app->MajorVersion(), app->MinorVersion(), app->BugVersion(),
                           app->NonReleaseVersion(), app->StageCode(), app->RegionCode()}),
              (std::vector<std::int64_t>{3, 0, 0, 0, 3, 0}));
    EXPECT_EQ(app->ShortVersion() + app->Version() + app->PackageInfo() + app->Description(),
              "3.03.0VamoVamo");
    EXPECT_EQ(app->LongVersion(), Cast<class AboutWnd>(AboutWnd())->StaticText5()->Text());
    EXPECT_FALSE(AboutWnd()->MenuBar());
    EXPECT_EQ(AboutWnd()->ListedTitle(), "Vamo") << "it has no title of its own";
    for (const auto& bar : {app->MenuBar(), ControlWnd()->MenuBar(), InfoWnd()->MenuBar()}) {
      EXPECT_TRUE(bar == Menu());
    }
  });
}

TEST(ProgramTest, TheMenuTreeStands) {
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
    const auto window = ControlWnd();
    EXPECT_TRUE(window->AboutKEL() == AboutKEL());
    EXPECT_TRUE(window->FileQuit() == Menu()->_Lookup("FileQuit"));
    EXPECT_TRUE(Cast<class InfoWnd>(InfoWnd())->UntitledMenu5() == window->UntitledMenu5());
  });
}

TEST(ProgramTest, ClassesTellTheEventsThatTheyImplement) {
  InProgram([](HeadlessUser&) {
    const auto implemented = [](const auto& object) {
      std::string events;
      for (const char* event : {"Activate", "Close", "EnableMenuItems", "KeyDown", "Open"}) {
        if (object->IsEventImplemented(event)) (events += event) += " ";
      }
      return events;
    };
    EXPECT_EQ(implemented(ControlWnd()), "Activate Close EnableMenuItems ");
    EXPECT_EQ(implemented(Cast<class AboutWnd>(AboutWnd())), "KeyDown ");
    EXPECT_EQ(implemented(Cast<class InfoWnd>(InfoWnd())), "EnableMenuItems ");
    EXPECT_EQ(implemented(App()), "EnableMenuItems ");
    const auto window = ControlWnd();
    EXPECT_FALSE(_RuntimeIsEventHandled(*window, "InfoWnd.InfoWnd", "Layout", true));
    // The base class does not implement the event, the derived class does.
    EXPECT_FALSE(_RuntimeIsEventHandled(*window, "Window", "Layout", false));
    EXPECT_TRUE(_RuntimeIsEventHandled(*window, "ControlWnd.ControlWnd", "Layout", false));
  });
}

TEST(ProgramTest, EachHandlerPassesItsEventOn) {
  InProgram([](HeadlessUser&) {
    const auto window = ControlWnd();
    for (const auto* handlers : {&window->MenuHandlers(), &App()->MenuHandlers()}) {
      EXPECT_EQ(handlers->size(), 2U);
      for (const auto& [name, handler] : *handlers) EXPECT_FALSE(handler.Invoke()) << name;
    }
    EXPECT_FALSE(window->Qbtn()->UserPressed(1, 1));
    EXPECT_TRUE(window->UserPressedKey({KeyCode::kHelp})) << "the key has pressed the button";
    EXPECT_FALSE(AboutWnd()->Event_KeyDown("x") || AboutWnd()->Event_MouseDown(1, 1));
  });
}

TEST(ProgramTest, TheSplashGoesThroughItsStates) {
  InProgram([](HeadlessUser& user) {
    const auto about = AboutWnd();
    user.LetTimePass(3999ms);
    EXPECT_TRUE(about->Visible());
    user.PressKey(Key::Character("x"));
    // The timer still fires, but by then the user has switched to another program.
    user.SwitchAway();
    user.LetTimePass(1ms);
    EXPECT_EQ(user.ActiveTitle(), "");
    user.ActivateWindow("Vamo");
    // When shown again it is the same object, and its timer does not fire again.
    user.Choose("Help/About Vamo");
    EXPECT_TRUE(AboutWnd() == about);
    user.LetTimePass(60000ms);
    EXPECT_TRUE(about->Visible());
    user.ActivateWindow("Vamo");
    EXPECT_FALSE(about->Visible());
    // Once closed it is replaced with a new object, which has its own timer.
    user.Choose("Help/About Vamo");
    user.Close("");
    EXPECT_TRUE(user.Display().Running());
    user.ActivateWindow("Vamo");
    EXPECT_FALSE(AboutWnd() == about);
  });
  InProgram([](HeadlessUser& user) {
    user.SwitchAway();
    user.LetTimePass(4000ms);
    EXPECT_EQ(user.Windows(), Steps{"Vamo"});
    EXPECT_EQ(user.ActiveTitle(), "") << "the user types into another program";
  });
  InProgram([](HeadlessUser& user) {
    user.PressKey(Key::Character("x"));
    user.Choose("Window/About Vamo");
    user.LetTimePass(3999ms);
    EXPECT_TRUE(AboutWnd()->Visible());
    user.LetTimePass(1ms);
    EXPECT_FALSE(AboutWnd()->Visible()) << "the timer also ends a showing within its four seconds";
    EXPECT_EQ(user.ActiveTitle(), "Vamo");
  });
}

TEST(ProgramTest, TheFileTypesAreRegistered) {
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

TEST(LinkTest, TakesWhatANumberMayBeAndNothingElse) {
  const std::string thousands(3000, '5');
  const struct {
    std::string fragment;
    std::vector<LinkedValue> values;
  } kCases[] = {
      {"#r=.5&N=30", {{"r", ".5"}, {"N", "30"}}},
      {"N=4&chart&&=5&r=&r=%2e7&x=1=2", {{"N", "4"}, {"r", ".7"}, {"x", "1=2"}}},
      {"#r=%", {{"r", "%"}}},
      {"#r=%f&N=%g1", {{"r", "%f"}, {"N", "%g1"}}},
      {"#r=%ff%00", {{"r", std::string("\uFFFD\0", 4)}}},
      {"#N=" + thousands.substr(0, 17), {}},
      {"#N=5&r=" + thousands, {}},
      {"", {}},
      {"#", {}},
  };
  for (const auto& [fragment, values] : kCases) EXPECT_EQ(ParseLink(fragment), values) << fragment;
}

TEST(LinkTest, DoesWhatAUserWouldDo) {
  InProgram([](HeadlessUser& user) {
    EndSplash();
    user.LetTimePass(0ms);
    ASSERT_EQ(user.ActiveTitle(), "Vamo");
    TypeLinkedValues(ParseLink("#r=0,5x&N=30&Fisher's z=1&q=7"));
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".5");
    EXPECT_EQ(user.SeesDescribed("Student's t").text, "3.06");
    EXPECT_EQ(user.Sees(Role::kText, "Fisher's z").text, "0.549");
    TypeLinkedValues(ParseLink("#r=1.5&N=1e3333333"));
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".15") << "the mask holds";
    EXPECT_EQ(user.Sees(Role::kText, "N").text, "1333");
    EndSplash();
    EXPECT_EQ(user.Focused().name, "r");
    EXPECT_FALSE(LinksToChart("#r=.5&N=30&charts=1"));
    ASSERT_TRUE(LinksToChart("#r=.5&chart&N=30"));
    for (int times = 0; times < 2; ++times) {
      OpenChart();
      EXPECT_TRUE(user.Sees(Role::kChart, "Chart").visible);
    }
  });
}

}  // namespace
}  // namespace vamo
