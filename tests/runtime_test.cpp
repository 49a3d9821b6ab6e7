// The run time: its guard against threads, and the exceptions that leave an event.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>

#include "test_window.h"
#include "toolkit/control/canvas.h"
#include "toolkit/object/delegate.h"
#include "toolkit/object/property_stream.h"
#include "toolkit/window/menu_item.h"

namespace vamo {
namespace {

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

}  // namespace
}  // namespace vamo
