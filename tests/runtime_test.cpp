// The guard against threads, and who is asked about an exception that leaves an event.
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

TEST(EventTest, AnEndExceptionEndsTheEventAloneAndTheApplicationCanTakeTheOthers) {
  TestProgram program;
  const auto app = New<TestApplication>();
  app->takes = true;
  program.runtime().RegisterApp(app);
  const auto raise = [&](const auto& exception) {
    program.runtime().Dispatch([&] { throw exception; });
  };
  raise(EndException());
  raise(ThreadEndException());
  EXPECT_EQ(app->taken, "");
  raise(KeyNotFoundException("the third"));
  EXPECT_EQ(app->taken, "the third");
  EXPECT_TRUE(program.display().Running());
}

}  // namespace
}  // namespace vamo
TEST(EventTest, OfTwoNestedExceptionsBothAreReported) {
  TestProgram program;
  testing::internal::CaptureStderr();
  program.runtime().Dispatch([&] {
    program.runtime().Dispatch([] { throw std::runtime_error("the inner one"); });
    throw std::logic_error("the outer one");
  });
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "vamo: the inner one\n");
  EXPECT_THROW(program.runtime().RaiseAgain(), std::logic_error);
}

