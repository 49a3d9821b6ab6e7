#include "toolkit/window/window.h"

#include <algorithm>
#include <array>
#include <utility>

#include "toolkit/control/label.h"
#include "toolkit/control/properties.h"
#include "toolkit/control/slider.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/window/timer.h"

namespace vamo {

struct Window::Properties {
  static constexpr std::array kRows{
      Sets<&Window::state_, &State::width>(property::kWidth),
      Sets<&Window::state_, &State::height>(property::kHeight),
      Sets<&Window::state_, &State::minimum_width>(property::kMinimumWidth),
      Sets<&Window::state_, &State::minimum_height>(property::kMinimumHeight),
      Sets<&Window::state_, &State::maximum_width>(property::kMaximumWidth),
      Sets<&Window::state_, &State::maximum_height>(property::kMaximumHeight),
      Sets<&Window::state_, &State::type>(property::kType),
      Sets<&Window::state_, &State::title>(property::kTitle),
      Sets<&Window::state_, &State::has_close_button>(property::kHasCloseButton),
      Sets<&Window::state_, &State::has_maximize_button>(property::kHasMaximizeButton),
      Sets<&Window::state_, &State::has_minimize_button>(property::kHasMinimizeButton),
      Skipped(property::kHasFullScreenButton),
      Sets<&Window::state_, &State::resizeable>(property::kResizeable),
      Skipped(property::kComposite),
      Skipped(property::kMacProcID),
      Skipped(property::kFullScreen),
      Skipped(property::kDefaultLocation),
      Sets<&Window::state_, &State::visible>(property::kVisible),
      Sets<&Window::state_, &State::has_background_colour>(property::kHasBackgroundColor),
      Sets<&Window::state_, &State::background_colour>(property::kBackgroundColor),
      Skipped(property::kMenuBarVisible),
      Skipped(property::kLiveResize),
  };
};

constinit const ClassInfo Window::kClass{"Window", nullptr, Properties::kRows};

void Window::Constructor() {
  _UITrap();
  const Ref<Window> self = Self(this);
  Layout();
  CreateControls();
  ApplyAccessibleTexts();
  MakeView();
  Runtime::Current().AddLiveWindow(self);
  AddMenuHandlers(self);
  if (state_.visible) Show();
}

void Window::ApplyAccessibleTexts() {
  for (const AccessibleText& text : AccessibleTexts()) {
    const Ref<RectControl> control = ControlNamed<RectControl>(text.control);
    control->SetAccessibleName(text.name);
    control->SetAccessibleDescription(text.description);
    control->SetLabelledBy(ControlNamed<Label>(text.labelled_by));
    if (text.announced != Announced::kNot) {
      control->SetObserver([this] { announcer_.TextChanged(); });
    }
    if (text.positions_per_unit == 1) continue;
    ControlNamed<Slider>(text.control)->SetPositionsPerUnit(text.positions_per_unit);
  }
}

void Window::MakeView() {
  view_ = Runtime::Current().Display().OpenWindow(*this);
  for (const Ref<RectControl>& control : Controls()) control->Open(*view_);
  MoveFocus(/*backwards=*/false);
}

std::string Window::AccessibleDescription() const {
  for (const AccessibleText& text : AccessibleTexts()) {
    if (text.describes_window) return ControlNamed<Label>(text.control)->Text();
  }
  return "";
}

std::string Window::ListedTitle() const {
  _UITrap();
  const Ref<Application>& app = Runtime::Current().App();
  return state_.title.empty() && app ? app->Description() : state_.title;
}

void Window::Show() {
  _UITrap();
  if (!IsLive()) return;
  const Runtime& runtime = Runtime::Current();
  if (visible_ && runtime.EventCause() != Runtime::Cause::kUser) return;
  visible_ = true;
  view_->Show(runtime.MayActivate());
  has_been_shown_ = true;
}

void Window::Hide() {
  _UITrap();
  if (!visible_) return;
  visible_ = false;
  UserDeactivated();
  view_->Hide();
}

void Window::Close() {
  _UITrap();
  if (!IsLive()) return;
  const Ref<Window> self = Self(this);
  Event_Close();
  UserDeactivated();
  TakeOffDisplay();
  Runtime& runtime = Runtime::Current();
  runtime.RemoveLiveWindow(*this);
  if (runtime.LiveWindows().empty() && runtime.Display().MenuBarsLiveInWindows()) runtime.End(0);
}

// A child that is held elsewhere may outlive the window; nothing of it stays on the display.
void Window::TakeOffDisplay() {
  for (const Child& child : children_) {
    Object* object = child.object.Share().get();
    if (auto* timer = dynamic_cast<Timer*>(object)) timer->Stop();
    if (auto* control = dynamic_cast<RectControl*>(object)) control->TakeOffDisplay();
  }
  visible_ = false;
  announcer_.Stop();
  view_ = nullptr;
}

void Window::_AddControl(std::string_view name, const Ref<Object>& child) {
  _UITrap();
  Cast<_PaneChild>(child)->_SetWindow(Self(this));
  children_.push_back({std::string(name), child});
}

Ref<Object> Window::_ControlByName(std::string_view name) const {
  _UITrap();
  const auto found = std::find_if(children_.begin(), children_.end(),
                                  [&](const Child& child) { return child.name == name; });
  return found == children_.end() ? nullptr : found->object;
}

Ref<Object> Window::__New(const ClassInfo& child_class) {
  _UITrap();
  if (child_class.allocate == nullptr) {
    throw UnsupportedOperationException("No object is made of the class " +
                                        std::string(child_class.name) + ".");
  }
  Ref<Object> child = child_class.allocate();
  Cast<_PaneChild>(child)->_SetWindow(Self(this));
  return child;
}

std::vector<Ref<RectControl>> Window::Controls() const {
  _UITrap();
  std::vector<Ref<RectControl>> controls;
  for (const Child& child : children_) {
    auto control = std::dynamic_pointer_cast<RectControl>(child.object.Share());
    if (control != nullptr) controls.emplace_back(std::move(control));
  }
  return controls;
}

void Window::_AddMenuHandler(std::string_view name, MenuHandler handler) {
  _UITrap();
  menu_handlers_.emplace(name, std::move(handler));
}

const Ref<MenuBar>& Window::MenuBar() const {
  _UITrap();
  return menu_bar_;
}

void Window::SetMenuBar(Ref<class MenuBar> menu_bar) {
  _UITrap();
  menu_bar_ = std::move(menu_bar);
}

Ref<Window> _GetImplicitWindow(std::string_view class_name) {
  for (const Ref<Window>& window : Runtime::Current().LiveWindows()) {
    if (window->Class()->name == class_name) return window;
  }
  return nullptr;
}

}  // namespace vamo
