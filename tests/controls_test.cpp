// The toolkit's rules for sliders, buttons and timers.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "test_window.h"
#include "toolkit/control/properties.h"
#include "toolkit/control/push_button.h"
#include "toolkit/object/delegate.h"
#include "toolkit/object/property_stream.h"
#include "toolkit/window/text_room.h"

namespace vamo {
namespace {

using std::chrono_literals::operator""ms;

TEST(SliderTest, RaisesEachNewPositionAndNeverTheSame) {
  TestProgram program;
  const auto slider = New<Slider>();
  const auto log = New<CallLog>();
  slider->ValueChanged = Delegate<void(Ref<Slider>)>(log, &CallLog::Note, ReceiverFlag::kStrong);
  for (const std::int64_t position : {3, 3, 200, 100, -5, 0}) slider->UserMovedTo(position);
  slider->SetEnabled(false);
  slider->UserMovedTo(3);
  slider->UserSetValue(3);
  EXPECT_EQ(log->entries, (std::vector<std::string>{"3", "100", "0"}));
}

TEST(SliderTest, StepsOfAnySizeEndAtTheEnds) {
  TestProgram program;
  const auto slider = New<Slider>();
  _SetProperties(
      *slider,
      EncodedStream<640>().Set(property::kLineStep, INT64_MIN).Set(property::kPageStep, INT64_MAX));
  const auto reached = [&](KeyCode key) {
    slider->UserMovedTo(50);
    EXPECT_TRUE(slider->HandleKey({key, "", false, false}));
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
  EXPECT_FALSE(button->UserPressedByAssistiveTechnology());
  _SetProperties(*button, EncodedStream<640>().Set(property::kWidth, 6).Set(property::kHeight, 8));
  EXPECT_TRUE(button->UserPressedByAssistiveTechnology()) << "its middle";
  button->SetEnabled(false);
  EXPECT_FALSE(button->UserPressed(3, 4));
}

TEST(TimerTest, FiresOnceOrAgainAndNotInAClosedWindow) {
  TestProgram program;
  const auto log = New<CallLog>();
  const auto window = ImplicitInstance<TestWindow>();
  const auto timer = window->timer();
  timer->Action = Delegate<void(Ref<Timer>)>(log, &CallLog::NoteTimer, ReceiverFlag::kStrong);
  const auto fired_after = [&](std::chrono::milliseconds time) {
    program.user().LetTimePass(time);
    return std::exchange(log->entries, {}).size();
  };
  timer->SetRunMode(RunMode::kSingle);
  EXPECT_EQ(fired_after(1000ms), 0U) << "a period is missing";
  timer->SetPeriod(100);
  EXPECT_EQ(fired_after(99ms), 0U);
  EXPECT_EQ(fired_after(1000ms), 1U);
  timer->SetRunMode(RunMode::kMultiple);
  EXPECT_EQ(fired_after(350ms), 3U);
  timer->Reset();
  EXPECT_EQ(fired_after(99ms), 0U) << "the period has started again";
  EXPECT_EQ(fired_after(1ms), 1U);
  window->Close();
  EXPECT_EQ(fired_after(1000ms), 0U);
}

TEST(LabelTest, ATextStandsOutOfItsBoxBeforeItIsNarrowed) {
  using A = TextAlignment;
  const struct {
    A alignment;
    double width, left, scale;
  } kCases[] = {
      {A::kDefault, 40, 0, 1},  {A::kCentre, 40, 5, 1},     {A::kRight, 40, 10, 1},
      {A::kLeft, 60, 0, 1},     {A::kCentre, 60, -5, 1},    {A::kRight, 60, -10, 1},
      {A::kLeft, 75, -5, 1},    {A::kCentre, 75, -10, 1},   {A::kRight, 75, -10, 1},
      {A::kLeft, 160, -10, .5}, {A::kCentre, 160, -10, .5}, {A::kRight, 160, -10, .5},
  };
  for (const auto& [alignment, width, left, scale] : kCases) {
    const FittedText fitted = FitText({10, 20}, 50, alignment, width);
    EXPECT_EQ(fitted.left, left) << width;
    EXPECT_EQ(fitted.scale, scale) << width;
  }
}

}  // namespace
}  // namespace vamo
