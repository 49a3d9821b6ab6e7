// The window: its construction, its life, its children.
#include "toolkit/window.h"

#include <algorithm>
#include <array>
#include <utility>

#include "toolkit/label.h"
#include "toolkit/runtime.h"
#include "toolkit/slider.h"
#include "toolkit/timer.h"

namespace vamo {

struct Window::Properties {
  static constexpr std::array kRows{
      Declare<&Window::state_, &State::width>("Width"),
      Declare<&Window::state_, &State::height>("Height"),
      Declare<&Window::state_, &State::minimum_width>("MinimumWidth"),
      Declare<&Window::state_, &State::minimum_height>("MinimumHeight"),
      Declare<&Window::state_, &State::maximum_width>("MaximumWidth"),
      Declare<&Window::state_, &State::maximum_height>("MaximumHeight"),
      Declare<&Window::state_, &State::type>("Type"),
      Declare<&Window::state_, &State::title>("Title"),
      Declare<&Window::state_, &State::has_close_button>("HasCloseButton"),
      Declare<&Window::state_, &State::has_maximize_button>("HasMaximizeButton"),
      Declare<&Window::state_, &State::has_minimize_button>("HasMinimizeButton"),
      ReadOver<bool>("HasFullScreenButton"),
      Declare<&Window::state_, &State::resizeable>("Resizeable"),
      ReadOver<bool>("Composite"),
      ReadOver<std::int64_t>("MacProcID"),
      ReadOver<bool>("FullScreen"),
      ReadOver<std::int64_t>("DefaultLocation"),
      Declare<&Window::state_, &State::visible>("Visible"),
      Declare<&Window::state_, &State::has_background_colour>("HasBackgroundColor"),
      Declare<&Window::state_, &State::background_colour>("BackgroundColor"),
      ReadOver<bool>("MenuBarVisible"),
      ReadOver<bool>("LiveResize"),
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
    control->SetAnnounced(text.announced);
    if (text.positions_per_unit == 1) continue;
    ControlNamed<Slider>(text.control)->SetPositionsPerUnit(text.positions_per_unit);
  }
}

void Window::MakeView() {
  view_ = Runtime::Current().GetDisplay().OpenWindow(*this);
  for (const Ref<RectControl>& control : Controls())
    control->SetView(view_->CreateControl(*control));
  MoveFocus(/*backwards=*/false);
}

std::string Window::ListedTitle() const {
  const Ref<Application>& app = Runtime::Current().App();
  return state_.title.empty() && app ? app->Description() : state_.title;
}

void Window::Show() {
  _UITrap();
  if (!IsLive()) return;
  if (visible_ && Runtime::Current().EventCause() != Runtime::Cause::kUser) return;
  visible_ = true;
  view_->Show();
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
  if (runtime.LiveWindows().empty() && runtime.GetDisplay().MenuBarsLiveInWindows()) runtime.End(0);
}

// The children may live longer than the window, held by somebody else; nothing of them is left on
// the display.
void Window::TakeOffDisplay() {
  for (const Child& child : children_) {
    Object* object = child.object.Share().get();
    if (auto* timer = dynamic_cast<Timer*>(object)) timer->Stop();
    if (auto* control = dynamic_cast<RectControl*>(object)) control->ReleaseView();
  }
  visible_ = false;
  announcer_.Stop();
  view_ = nullptr;
}

void Window::AddChild(std::string_view name, Ref<Object> object, _PaneChild* child) {
  _UITrap();
  child->_SetWindow(Self(this));
  children_.push_back({std::string(name), std::move(object)});
}

Ref<Object> Window::_ControlByName(std::string_view name) const {
  _UITrap();
  const auto found = std::find_if(children_.begin(), children_.end(),
                                  [&](const Child& child) { return child.name == name; });
  return found == children_.end() ? nullptr : found->object;
}

std::vector<Ref<RectControl>> Window::Controls() const {
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
