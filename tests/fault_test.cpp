// Handlers that fail, or end their window, while the user is in the middle of something.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "controlwnd/control_wnd.h"
#include "shell/startup.h"
#include "test_program.h"
#include "toolkit/runtime/application.h"

namespace vamo {
namespace {

// A handler of a slider that fails at one of the positions.
class FailingHandler : public Object {
 public:
  FailingHandler(std::int64_t position, std::function<void()> fail)
      : position_(position), fail_(std::move(fail)) {}

  void Take(Ref<Slider> slider) {
    positions.push_back(slider->Value());
    if (slider->Value() == position_) fail_();
  }
  std::vector<std::int64_t> positions;

 private:
  const std::int64_t position_;
  const std::function<void()> fail_;
};

struct Outcome {
  int status = -1;
  std::string said;
  std::string steps;
  std::vector<std::int64_t> positions;
  std::vector<WeakRef<Window>> windows;
};

// Drags the knob of r over 50, where its handler fails.
Outcome DragOverAFailure(const std::function<void()>& fail) {
  Outcome outcome;
  const auto drag = [&](HeadlessUser& user) {
    user.PressKey(Key::Character("x"));
    for (const auto& window : Runtime::Current().LiveWindows())
      outcome.windows.emplace_back(window);
    const auto handler = New<FailingHandler>(50, fail);
    Cast<class ControlWnd>(ControlWnd())->rSlider()->ValueChanged =
        Delegate<void(Ref<Slider>)>(handler, &FailingHandler::Take, ReceiverFlag::kStrong);
    user.DragSlider("r", {12, 50, 37});
    EXPECT_FALSE(user.Display().Running());
    outcome.positions = handler->positions;
  };
  testing::internal::CaptureStderr();
  outcome.status = Main(std::make_unique<HeadlessDisplay>(drag),
                        [&](std::string_view step) { (outcome.steps += step) += ' '; });
  outcome.said = testing::internal::GetCapturedStderr();
  return outcome;
}

TEST(FaultTest, AHandlerThatFailsInTheMiddleOfADragEndsTheProgramInOrder) {
  struct Case {
    std::function<void()> fail;
    std::string said, last_steps;
  };
  const Case kCases[] = {
      {[] { throw OutOfBoundsException("made to fail"); },
       "vamo: OutOfBoundsException: made to fail\n",
       " _RuntimeRun RuntimePerformFinalizers RuntimeExit "},
      {[] { throw std::runtime_error("made to fail"); }, "vamo: made to fail\n",
       " _RuntimeRun _UnhandledException RuntimePerformFinalizers RuntimeExit "},
  };
  for (const Case& test : kCases) {
    const Outcome outcome = DragOverAFailure(test.fail);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.said, test.said);
    EXPECT_EQ(outcome.positions, (std::vector<std::int64_t>{12, 50}));
    EXPECT_NE(outcome.steps.find(test.last_steps), std::string::npos) << outcome.steps;
    ASSERT_EQ(outcome.windows.size(), 2U);
    for (const WeakRef<Window>& window : outcome.windows) EXPECT_FALSE(window.Value());
  }
}

// An application that takes every exception, so that the program goes on.
class ForgivingApplication : public Application {
 public:
  bool Event_UnhandledException(const RuntimeException&) override { return true; }
};

TEST(FaultTest, AFieldWhoseHandlerHasFailedGoesOnAsBefore) {
  struct FailOnce : Object {
    void Take(Ref<TextField> field) {
      if (field->Text() == "failing") throw OutOfBoundsException("made to fail");
    }
  };
  TestProgram program;
  program.runtime().RegisterApp(New<ForgivingApplication>());
  const auto field = New<TextField>();
  const auto handler = New<FailOnce>();
  field->TextChange =
      Delegate<void(Ref<TextField>)>(handler, &FailOnce::Take, ReceiverFlag::kStrong);
  field->UserPasted("failing");
  EXPECT_EQ(field->Text(), "failing");
  EXPECT_TRUE(field->CanUndo());
  field->SetText("written");
  EXPECT_FALSE(field->CanUndo()) << "a write outside of the user's edit is not undone";
  EXPECT_TRUE(program.display().Running());
}

// A window that a key closes.
class FleetingWindow : public Window {
 public:
  explicit FleetingWindow(int& keys) : keys_(keys) {}
  bool Event_KeyDown(std::string /*key*/) override {
    ++keys_;
    Close();
    return false;
  }

 private:
  int& keys_;
};

TEST(FaultTest, AWindowThatItsOwnKeyClosesIsNotUsedAfterwards) {
  TestProgram program;
  int keys = 0;
  const auto open = [&] {
    New<FleetingWindow>(keys)->Constructor();
    program.user().ActivateWindow("");
  };
  open();
  program.user().PressKey(Key::Character("x"));
  EXPECT_EQ(keys, 1);
  open();
  program.user().Type("several");
  EXPECT_EQ(keys, 2) << "the rest has no window to go to";
  EXPECT_TRUE(program.runtime().LiveWindows().empty());
}

// A window that counts its ends.
class CountingWindow : public Window {
 public:
  void Event_Close() override { ++ends; }
  int ends = 0;
};

TEST(FaultTest, AClosedWindowIsNeitherShownNorClosedAgain) {
  TestProgram program;
  const auto window = New<CountingWindow>();
  window->Constructor();
  window->Close();
  window->Show();
  window->Close();
  EXPECT_EQ(window->ends, 1);
  EXPECT_FALSE(window->Visible());
  EXPECT_TRUE(program.user().Windows().empty());
}

}  // namespace
}  // namespace vamo
