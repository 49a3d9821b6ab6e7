// A display without pixels: what a user does and sees.
#include "displays/headless/display.h"

#include <algorithm>

#include "displays/headless/window.h"
#include "toolkit/menu_service.h"
#include "toolkit/push_button.h"
#include "toolkit/runtime.h"
#include "toolkit/slider.h"
#include "toolkit/text_edit.h"
#include "toolkit/utf8.h"

namespace vamo {
namespace {

// Where a key takes the caret.
std::size_t MovedCaret(std::string_view text, std::size_t caret, KeyCode code) {
  switch (code) {
    case KeyCode::kLeft:
      return PreviousCharacter(text, caret);
    case KeyCode::kRight:
      return NextCharacter(text, caret);
    case KeyCode::kHome:
      return 0;
    case KeyCode::kEnd:
      return text.size();
    default:
      return caret;
  }
}

void MoveCaret(TextEdit& text, const Key& key) {
  if (key.command && key.text == "a") return text.UserSelected(0, text.Text().size());
  if (key.code == KeyCode::kCharacter) return;
  const auto [anchor, caret] = text.GetSelection();
  const std::size_t moved = MovedCaret(text.Text(), caret, key.code);
  text.UserSelected(key.shift ? anchor : moved, moved);
}

[[noreturn]] void FailToFind(std::string_view what, std::string_view name) {
  throw InvalidArgumentException("Nothing on the screen: " + std::string(what) + " \"" +
                                 std::string(name) + "\".");
}

class NamedPicture : public DisplayPicture {};

}  // namespace

HeadlessDisplay::HeadlessDisplay(std::function<void(HeadlessDisplay&)> user)
    : user_(std::move(user)) {}

HeadlessDisplay::~HeadlessDisplay() = default;

void HeadlessDisplay::Run() {
  RunEvents();
  if (user_ != nullptr && !stopped_) user_(*this);
}

void HeadlessDisplay::RunEvents() {
  do {
    while (!events_.empty() && !stopped_) {
      const std::function<void()> event = std::move(events_.front());
      events_.pop_front();
      event();
    }
  } while (!stopped_ && GiveKeysToFrontWindow());
}

bool HeadlessDisplay::GiveKeysToFrontWindow() {
  if (away_ || Runtime::Current().ActiveWindow()) return false;
  const auto front = std::find_if(windows_.rbegin(), windows_.rend(),
                                  [](const HeadlessWindow* window) { return window->OnScreen(); });
  if (front == windows_.rend()) return false;
  Activate(**front);
  return true;
}

void HeadlessDisplay::Act(const std::function<void()>& act) {
  RunEvents();
  if (stopped_) return;
  act();
  RunEvents();
}

void HeadlessDisplay::PressKey(const Key& key) {
  Act([&] {
    // Held, since the key may close it.
    const Ref<vamo::Window> window = Self(&ActiveView().Window());
    if (window->UserPressedKey(key) || !window->Focus()) return;
    if (auto* text = dynamic_cast<TextEdit*>(&*window->Focus())) MoveCaret(*text, key);
  });
}

void HeadlessDisplay::Type(std::string_view text) {
  Act([&] { ActiveView().Window().UserTyped(text); });
}

void HeadlessDisplay::Drop(Role role, std::string_view name, std::string_view text) {
  Act([&] { dynamic_cast<TextEdit&>(Find(role, name).Control()).UserPasted(text); });
}

void HeadlessDisplay::Select(std::string_view field, std::size_t anchor, std::size_t caret) {
  Act([&] {
    dynamic_cast<TextEdit&>(Find(Role::kText, field).Control()).UserSelected(anchor, caret);
  });
}

void HeadlessDisplay::Click(Role role, std::string_view name) {
  Act([&] { ClickOn(Find(role, name)); });
}

void HeadlessDisplay::ClickDescribed(std::string_view description) {
  Act([&] { ClickOn(FindDescribed(description)); });
}

void HeadlessDisplay::ClickOn(const HeadlessControl& control) {
  RectControl& target = control.Control();
  vamo::Window& window = control.Window().Window();
  if (auto* button = dynamic_cast<PushButton*>(&target)) {
    button->UserPressed(1, 1);
  } else if (target.CanTakeFocus()) {
    window.UserFocused(Self(&target));
  } else {
    window.UserPressedMouse(target.Bounds().left, target.Bounds().top);
  }
}

void HeadlessDisplay::DragSlider(std::string_view name,
                                 const std::vector<std::int64_t>& positions) {
  Click(Role::kSlider, name);
  for (const std::int64_t position : positions) {
    Act([&] { dynamic_cast<Slider&>(Find(Role::kSlider, name).Control()).UserMovedTo(position); });
  }
}

void HeadlessDisplay::PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) {
  DragSlider(name, {at, drag_to});
}

void HeadlessDisplay::TurnWheel(std::string_view slider, std::int64_t notches) {
  Act([&] {
    dynamic_cast<Slider&>(Find(Role::kSlider, slider).Control()).UserTurnedWheel(notches);
  });
}

void HeadlessDisplay::PressByAssistiveTechnology(std::string_view button) {
  Act([&] {
    dynamic_cast<PushButton&>(Find(Role::kButton, button).Control())
        .UserPressedByAssistiveTechnology();
  });
}

bool HeadlessDisplay::Choose(std::string_view path) {
  const bool can_choose = CanChoose(path);
  Act([&] { UserChose(FindItem(path)); });
  return can_choose;
}

bool HeadlessDisplay::CanChoose(std::string_view path) {
  Act(UserOpensMenu);
  return FindItem(path)->Enabled();
}

Ref<MenuItem> HeadlessDisplay::FindItem(std::string_view path) const {
  const std::size_t slash = path.find('/');
  for (const DrawnMenu& menu : DrawnMenus(*ActiveMenuBar())) {
    if (menu.text != path.substr(0, slash)) continue;
    for (const Ref<MenuItem>& item : menu.items) {
      if (item->Value() == path.substr(slash + 1)) return item;
    }
  }
  FailToFind("menu item", path);
}

void HeadlessDisplay::Close(std::string_view title) {
  Act([&] { Titled(title).Window().UserAskedToClose(); });
}

void HeadlessDisplay::ActivateWindow(std::string_view title) {
  Act([&] { Activate(Titled(title)); });
}

void HeadlessDisplay::SwitchAway() {
  Act([&] {
    away_ = true;
    ActiveView().Window().UserDeactivated();
  });
}

void HeadlessDisplay::Activate(HeadlessWindow& window) {
  away_ = false;
  const Ref<vamo::Window> before = Runtime::Current().ActiveWindow();
  std::rotate(std::find(windows_.begin(), windows_.end(), &window),
              std::find(windows_.begin(), windows_.end(), &window) + 1, windows_.end());
  if (before && &*before != &window.Window()) before->UserDeactivated();
  window.Window().UserActivated();
}

void HeadlessDisplay::LetTimePass(std::chrono::milliseconds time) {
  const std::chrono::milliseconds end = now_ + time;
  for (RunEvents(); !stopped_; RunEvents()) {
    const auto next =
        std::min_element(timers_.begin(), timers_.end(),
                         [](const auto* a, const auto* b) { return a->Due() < b->Due(); });
    if (next == timers_.end() || (*next)->Due() > end) break;
    now_ = (*next)->Due();
    (*next)->Fire();
  }
  now_ = end;
}

std::vector<std::string> HeadlessDisplay::Windows() {
  std::vector<std::string> titles;
  for (const HeadlessWindow* window : windows_) {
    if (window->OnScreen()) titles.push_back(window->Window().GetState().title);
  }
  std::sort(titles.begin(), titles.end());
  return titles;
}

std::string HeadlessDisplay::ActiveTitle() {
  const Ref<vamo::Window>& window = Runtime::Current().ActiveWindow();
  return window ? window->GetState().title : "";
}

ShownControl HeadlessDisplay::Sees(Role role, std::string_view name) {
  return Find(role, name).Shown();
}

ShownControl HeadlessDisplay::SeesDescribed(std::string_view description) {
  return FindDescribed(description).Shown();
}

ShownControl HeadlessDisplay::Focused() {
  const HeadlessControl* control = ActiveView().Focus();
  return control == nullptr ? ShownControl{} : control->Shown();
}

HeadlessWindow& HeadlessDisplay::ActiveView() const {
  for (HeadlessWindow* window : windows_) {
    const Ref<vamo::Window>& active = Runtime::Current().ActiveWindow();
    if (active && &window->Window() == &*active) return *window;
  }
  FailToFind("window", "active");
}

HeadlessWindow& HeadlessDisplay::Titled(std::string_view title) const {
  for (HeadlessWindow* window : windows_) {
    if (window->OnScreen() && window->Window().GetState().title == title) return *window;
  }
  FailToFind("window", title);
}

HeadlessControl& HeadlessDisplay::Find(Role role, std::string_view name) const {
  for (HeadlessControl* control : ActiveView().Controls()) {
    if (control->Shown().role == role && control->Shown().name == name) return *control;
  }
  FailToFind("control", name);
}

HeadlessControl& HeadlessDisplay::FindDescribed(std::string_view description) const {
  for (HeadlessControl* control : ActiveView().Controls()) {
    if (control->Shown().description == description) return *control;
  }
  FailToFind("control described as", description);
}

std::string HeadlessDisplay::ClipboardText() {
  ++clipboard_reads_;
  return clipboard_;
}

std::unique_ptr<WindowView> HeadlessDisplay::OpenWindow(Window& window) {
  return std::make_unique<HeadlessWindow>(*this, window);
}

std::shared_ptr<DisplayPicture> HeadlessDisplay::OpenPicture(std::string_view /*file_name*/) {
  if (!has_pictures_) return nullptr;
  return std::make_shared<NamedPicture>();
}

std::unique_ptr<RunningTimer> HeadlessDisplay::StartTimer(std::chrono::milliseconds period,
                                                          std::function<void()> fire) {
  return std::make_unique<HeadlessTimer>(*this, period, std::move(fire));
}

}  // namespace vamo
