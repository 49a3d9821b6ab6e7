// The guard against other threads, and the handling of an exception that leaves an event.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "test_window.h"
#include "toolkit/control/canvas.h"
#include "toolkit/control/push_button.h"
#include "toolkit/control/rectangle.h"
#include "toolkit/object/delegate.h"
#include "toolkit/object/property_stream.h"
#include "toolkit/text/text_area.h"
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
  const auto button = New<PushButton>();
  const auto rectangle = New<Rectangle>();
  const auto area = New<TextArea>();
  const auto picture = New<Picture>(nullptr);
  std::thread([&] { label->SetText("kept"); }).join();
  EXPECT_EQ(label->Text(), "kept") << "there is no application object yet";

  program.runtime().RegisterApp(app);
  std::vector<std::string> messages;
  const auto trap = [&](const auto& operation) {
    messages.emplace_back();
    try {
      operation();
    } catch (const ThreadAccessingUIException& exception) {
      messages.back() = exception.Message();
    }
  };
  const auto with = [&](const auto& value, const auto& object, auto... setters) {
    (trap([&] { ((*object).*setters)(value); }), ...);
  };
  const auto call = [&](const auto& object, auto... getters) {
    (trap([&] { ((*object).*getters)(); }), ...);
  };
  std::thread([&] {
    trap([&] { label->_SetWindow(window); });
    trap([&] { label->SetLabelledBy(label); });
    trap([&] { field->UserSelected(0, 0); });
    trap([&] { _SetProperties(*label, EncodedStream<8>()); });
    trap([&] { AddHandler(slider->ValueChanged, &*window, &TestWindow::Hear); });
    trap([&] { window->__New<Label>(); });
    trap([&] { window->_AddControl("x", label); });
    trap([&] { window->ParentOf(*label); });
    trap([&] { window->KeyThatPresses(*label); });
    trap([&] { window->_AddMenuHandler("x", MenuHandler()); });
    trap([&] { app->_AddMenuHandler("x", MenuHandler()); });
    trap([&] { item->AddMenu(child); });
    trap([&] { Picture::_OpenFromApp("ChartSmall.jpg"); });
    with("x", label, &Label::SetText, &Label::SetAccessibleName, &Label::SetAccessibleDescription);
    with("x", item, &MenuItem::SetName, &MenuItem::SetValue, &MenuItem::SetShortcut,
         &MenuItem::Child, &MenuItem::_Lookup);
    with("x", field, &TextField::SetText);
    with("x", window, &Window::_ControlByName);
    with(false, label, &Label::SetVisible, &Label::SetEnabled, &Label::SetTabStop);
    with(false, item, &MenuItem::SetAutoEnabled, &MenuItem::SetEnabled, &MenuItem::SetVisible,
         &MenuItem::SetChecked);
    with(1, slider, &Slider::SetPositionsPerUnit, &Slider::InUnits, &Slider::UserMovedTo);
    with(1, label, &Label::_SetIndex);
    with(label, window, &Window::SetFocus, &Window::UserFocused, &Window::UserClicked);
    with(nullptr, window, &Window::SetMenuBar);
    with(nullptr, app, &Application::SetMenuBar);
    with(nullptr, canvas, &Canvas::SetBackdrop);
    call(label, &Label::Name, &Label::Visible, &Label::Bounds, &Label::TabStop, &Label::Text);
    call(field, &TextField::Selection, &TextField::CanPaste, &TextField::Undo, &TextField::Cut,
         &TextField::Copy, &TextField::Paste, &TextField::Delete, &TextField::Rule);
    call(area, &TextArea::TextInLines);
    call(slider, &Slider::Value, &Slider::MaximumValue, &Slider::PageStep);
    call(button, &PushButton::Caption, &PushButton::UserPressedByAssistiveTechnology);
    call(rectangle, &Rectangle::FillColour);
    call(canvas, &Canvas::Backdrop);
    call(picture, &Picture::Image);
    call(window, &Window::Close, &Window::Constructor, &Window::Controls, &Window::Hide,
         &Window::Show, &Window::MenuHandlers, &Window::InitialState, &Window::Visible,
         &Window::WhereToShow, &Window::Focus, &Window::UserActivated, &Window::UserDeactivated);
    call(item, &MenuItem::Value, &MenuItem::Enabled, &MenuItem::Checked, &MenuItem::Children);
  }).join();
  EXPECT_EQ(messages, std::vector<std::string>(
                          messages.size(),
                          "A thread has attempted to manipulate a user interface element. This can "
                          "only be done from the application's main thread."));
  EXPECT_EQ(label->Text(), "kept");
  EXPECT_TRUE(label->Visible() && item->Visible() && window->IsLive());
  EXPECT_EQ(program.runtime().LiveWindows().size(), 1U);
}

TEST(EventTest, AnEndExceptionEndsOnlyTheEventAndTheApplicationCanHandleTheOthers) {
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

}  // namespace
}  // namespace vamo
