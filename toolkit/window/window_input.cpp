// How a window handles the user's input: activation, keys, presses, focus.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/control/push_button.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/text/received_text.h"
#include "toolkit/utf8.h"
#include "toolkit/window/menu_service.h"
#include "toolkit/window/window.h"

namespace vamo {

// The windows in which the current gestures of mouse and keyboard began. The rest of a gesture that
// dismissed its window is not meant for the window underneath.
struct GestureFields {
  WeakRef<Window> pressed;
  WeakRef<Window> typed;
};

namespace {

// Whether input to `window` counts. `begun_in` is the window in which its gesture began.
bool Continues(WeakRef<Window>& begun_in, const Ref<Window>& window, bool repeat) {
  if (!repeat) begun_in = WeakRef(window);
  const Ref<Window> first = begun_in.Value();
  return first && (first == window || first->Visible());
}

GestureFields& Gestures() { return Runtime::Current().ModuleFields<GestureFields>(); }

bool ClosesWindow(const Key& key) {
  return key.command ? key.text == "w" : key.text == std::string_view(&kEscape, 1);
}

}  // namespace

void Window::UserActivated() {
  Runtime& runtime = Runtime::Current();
  runtime.Dispatch([this, &runtime, self = Self(this)] {
    if (!visible_ || runtime.ActiveWindow() == self) return;
    runtime.SetActiveWindow(self);
    Event_Activate();
    EnableMenuItems();
  });
}

void Window::UserDeactivated() {
  _UITrap();
  Runtime& runtime = Runtime::Current();
  if (runtime.ActiveWindow() == Self(this)) runtime.SetActiveWindow(nullptr);
}

void Window::UserAskedToClose() {
  Runtime::Current().Dispatch([this, self = Self(this)] { Close(); });
}

bool Window::UserPressedKey(const Key& key) {
  if (!Continues(Gestures().typed, Self(this), key.repeat)) return true;
  bool handled = false;
  Key received = key;
  received.text = WithAsciiDigits(key.text);
  Runtime::Current().Dispatch([&, self = Self(this)] { handled = HandleKey(received); });
  return handled;
}

void Window::UserTyped(std::string_view text) {
  // A key may close the window; then the rest of the text has nowhere to go.
  const Ref<Window> self = Self(this);
  std::string valid = ValidUtf8(text);
  if (focus_) valid = focus_->Typed(valid);
  for (const std::string_view character : Characters(valid)) {
    if (IsLive()) UserPressedKey(Key::Character(std::string(character)));
  }
}

bool Window::HandleKey(const Key& key) {
  if (ChooseByShortcut(key)) return true;
  // With the command key held, a letter is not a character.
  const bool carries_character = key.code == KeyCode::kCharacter && !key.command;
  if (Event_KeyDown(carries_character ? key.text : "")) return true;
  if (PressButton(key)) return true;
  if (IsReading() && ClosesWindow(key)) {
    Close();
    return true;
  }
  if (key.command && key.code == KeyCode::kCharacter) return false;
  if (focus_ && focus_->CanTakeFocus() && focus_->HandleKey(key)) return true;
  if (key.text != std::string_view(&kTab, 1)) return false;
  return MoveFocus(key.shift);
}

std::optional<KeyCode> Window::KeyThatPresses(const RectControl& control) const {
  _UITrap();
  for (const AccessibleText& text : AccessibleTexts()) {
    if (text.control == control.Name()) return text.pressed_by;
  }
  return std::nullopt;
}

bool Window::PressButton(const Key& key) {
  for (const AccessibleText& text : AccessibleTexts()) {
    if (text.pressed_by != key.code || key.shift || key.command) continue;
    ControlNamed<PushButton>(text.control)->UserPressedByAssistiveTechnology();
    return true;
  }
  return false;
}

bool Window::MoveFocus(bool backwards) {
  std::vector<Ref<RectControl>> stops = Controls();
  std::erase_if(stops, [](const Ref<RectControl>& control) { return !control->CanTakeFocus(); });
  const bool leaves = focus_ && Runtime::Current().Display().TabLeavesWindows();
  if (stops.empty()) return !leaves;
  // If no control is a tab stop, the first one that can have the focus gets it and keeps it.
  const Ref<RectControl> first = stops.front();
  std::erase_if(stops, [](const Ref<RectControl>& control) { return !control->TabStop(); });
  if (stops.empty()) {
    SetFocus(focus_ ? focus_ : first);
    return !leaves;
  }
  std::stable_sort(stops.begin(), stops.end(), [](const auto& left, const auto& right) {
    return left->TabIndex() < right->TabIndex();
  });
  if (backwards) std::reverse(stops.begin(), stops.end());
  const auto present = std::find(stops.begin(), stops.end(), focus_);
  const auto next = present == stops.end() ? present : present + 1;
  if (leaves && present != stops.end() && next == stops.end()) return false;
  SetFocus(next == stops.end() ? stops.front() : *next);
  focus_->EnteredByTab();
  return true;
}

void Window::SetFocus(const Ref<RectControl>& control) {
  _UITrap();
  if (focus_ == control) return;
  focus_ = control;
  if (view_ != nullptr) view_->UpdateFocus();
}

bool Window::UserBeginsPress(bool repeat) {
  const Ref<Window> self = Self(this);
  if (!Continues(Gestures().pressed, self, repeat)) return false;
  entered_by_press_ = Runtime::Current().ActiveWindow() != self;
  UserActivated();
  return true;
}

void Window::UserPressedMouse(std::int64_t x, std::int64_t y) {
  Runtime::Current().Dispatch([&, self = Self(this)] { Event_MouseDown(x, y); });
}

void Window::UserFocused(const Ref<RectControl>& control) {
  if (!control->CanTakeFocus() || focus_ == control) return;
  entered_by_press_ = true;
  SetFocus(control);
}

void Window::UserClicked(const Ref<RectControl>& control) {
  _UITrap();
  if (std::exchange(entered_by_press_, false) && focus_ == control) control->EnteredByClick();
}

}  // namespace vamo
