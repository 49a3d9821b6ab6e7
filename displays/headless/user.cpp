#include "displays/headless/user.h"

#include <algorithm>

#include "displays/headless/window.h"
#include "toolkit/control/push_button.h"
#include "toolkit/control/slider.h"
#include "toolkit/object/exceptions.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/text/text_edit.h"
#include "toolkit/utf8.h"
#include "toolkit/window/menu_service.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// Where a key moves the caret.
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

void HandleKey(TextEdit& text, const Key& key) {
  if (key.command && key.text == "a") return text.UserSelected(0, text.Text().size());
  if (key.code == KeyCode::kDelete && key.shift) return text.Cut();
  if (key.code == KeyCode::kCharacter) return;
  const auto [anchor, caret] = text.Selection();
  const std::size_t moved = MovedCaret(text.Text(), caret, key.code);
  text.UserSelected(key.shift ? anchor : moved, moved);
}

[[noreturn]] void FailToFind(std::string_view what, std::string_view name) {
  throw InvalidArgumentException("Nothing on the screen: " + std::string(what) + " \"" +
                                 std::string(name) + "\".");
}

void ClickOn(const HeadlessControl& control) {
  RectControl& target = control.Control();
  vamo::Window& window = control.Window().Shown();
  if (!window.UserBeginsPress(/*repeat=*/false)) return;
  if (auto* button = dynamic_cast<PushButton*>(&target)) {
    button->UserPressed(1, 1);
  } else if (target.CanTakeFocus()) {
    window.UserFocused(Self(&target));
    // There are no positions here, so the caret goes to the end.
    auto* text = dynamic_cast<TextEdit*>(&target);
    if (text != nullptr) text->UserSelected(text->Text().size(), text->Text().size());
    window.UserClicked(Self(&target));
  } else {
    window.UserPressedMouse(target.Bounds().left, target.Bounds().top);
  }
}

Ref<MenuItem> FindItem(std::string_view path) {
  const std::size_t slash = path.find('/');
  for (const DrawnMenu& menu : DrawnMenus(*ActiveMenuBar())) {
    if (menu.text != path.substr(0, slash)) continue;
    for (const Ref<MenuItem>& item : menu.items) {
      if (item->Value() == path.substr(slash + 1)) return item;
    }
  }
  FailToFind("menu item", path);
}

}  // namespace

template <class ControlClass>
ControlClass& HeadlessUser::Find(Role role, std::string_view name) const {
  return dynamic_cast<ControlClass&>(Find(role, name).Control());
}

void HeadlessUser::PressKey(const Key& key) {
  display_.Do([&] {
    // Held here, because the key may close it.
    const Ref<vamo::Window> window = Self(&display_.ActiveWindow().Shown());
    if (window->UserPressedKey(key) || !window->Focus()) return;
    if (auto* text = dynamic_cast<TextEdit*>(&*window->Focus())) HandleKey(*text, key);
  });
}

void HeadlessUser::Type(std::string_view text) {
  for (const std::string_view character : Characters(text)) {
    if (display_.Running()) PressKey(Key::Character(std::string(character)));
  }
}

void HeadlessUser::Dictate(std::string_view text) {
  display_.Do([&] { display_.ActiveWindow().Shown().UserTyped(text); });
}

void HeadlessUser::Drop(Role role, std::string_view name, std::string_view text) {
  display_.Do([&] { Find<TextEdit>(role, name).UserPasted(text); });
}

void HeadlessUser::Select(std::string_view field, std::size_t anchor, std::size_t caret) {
  display_.Do([&] { Find<TextEdit>(Role::kText, field).UserSelected(anchor, caret); });
}

void HeadlessUser::Click(Role role, std::string_view name) {
  display_.Do([&] { ClickOn(Find(role, name)); });
}

void HeadlessUser::ClickDescribed(std::string_view description) {
  display_.Do([&] { ClickOn(FindDescribed(description)); });
}

void HeadlessUser::DragSlider(std::string_view name, const std::vector<std::int64_t>& positions) {
  Click(Role::kSlider, name);
  for (const std::int64_t position : positions) {
    display_.Do([&] { Find<Slider>(Role::kSlider, name).UserMovedTo(position); });
  }
}

void HeadlessUser::PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) {
  DragSlider(name, {at, drag_to});
}

void HeadlessUser::TurnWheel(std::string_view slider, std::int64_t notches) {
  display_.Do([&] { Find<Slider>(Role::kSlider, slider).UserTurnedWheel(notches); });
}

void HeadlessUser::PressByAssistiveTechnology(std::string_view button) {
  display_.Do([&] { Find<PushButton>(Role::kButton, button).UserPressedByAssistiveTechnology(); });
}

bool HeadlessUser::Choose(std::string_view path) {
  const bool can_choose = CanChoose(path);
  display_.Do([&] { UserChose(FindItem(path)); });
  return can_choose;
}

bool HeadlessUser::CanChoose(std::string_view path) {
  display_.Do(UserOpensMenu);
  return FindItem(path)->Enabled();
}

void HeadlessUser::Close(std::string_view title) {
  display_.Do([&] { Titled(title).Shown().UserAskedToClose(); });
}

void HeadlessUser::ActivateWindow(std::string_view title) {
  display_.Do([&] { display_.Order().Activate(Titled(title)); });
}

void HeadlessUser::SwitchAway() {
  display_.Do([&] { display_.Order().Leave(); });
}

std::vector<std::string> HeadlessUser::Windows() {
  std::vector<std::string> titles;
  for (const HeadlessWindow* window : display_.Order().Views()) {
    if (window->OnScreen()) titles.push_back(window->Shown().InitialState().title);
  }
  std::sort(titles.begin(), titles.end());
  return titles;
}

std::string HeadlessUser::ActiveTitle() {
  const Ref<vamo::Window>& window = Runtime::Current().ActiveWindow();
  return window ? window->InitialState().title : "";
}

ShownControl HeadlessUser::Sees(Role role, std::string_view name) {
  if (role == Role::kChart) return display_.ActiveWindow().ShownPane();
  return Find(role, name).Shown();
}

ShownControl HeadlessUser::SeesDescribed(std::string_view description) {
  return FindDescribed(description).Shown();
}

ShownControl HeadlessUser::Focused() {
  const HeadlessControl* control = display_.ActiveWindow().Focus();
  return control == nullptr ? ShownControl{} : control->Shown();
}

HeadlessWindow& HeadlessUser::Titled(std::string_view title) const {
  for (HeadlessWindow* window : display_.Order().Views()) {
    if (window->OnScreen() && window->Shown().InitialState().title == title) return *window;
  }
  FailToFind("window", title);
}

HeadlessControl& HeadlessUser::Find(Role role, std::string_view name) const {
  for (HeadlessControl* control : display_.ActiveWindow().Controls()) {
    if (control->Shown().role == role && control->Shown().name == name) return *control;
  }
  FailToFind("control", name);
}

HeadlessControl& HeadlessUser::FindDescribed(std::string_view description) const {
  for (HeadlessControl* control : display_.ActiveWindow().Controls()) {
    if (control->Shown().description == description) return *control;
  }
  FailToFind("control described as", description);
}

}  // namespace vamo
