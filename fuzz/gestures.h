// Turns the bytes of an input into the gestures of a user.
#ifndef VAMO_FUZZ_GESTURES_H_
#define VAMO_FUZZ_GESTURES_H_

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "displays/headless/user.h"
#include "displays/headless/window.h"
#include "input.h"
#include "toolkit/conversions.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/window/menu_service.h"

namespace vamo {

// Makes one gesture after another on whatever is on the screen. It does not check the results.
class Gestures {
 public:
  Gestures(Input& input, HeadlessUser& user) : input_(input), user_(user) {}

  // Returns whether the gesture is meant to end the program.
  bool MakeNext();
  // Whether the last gesture used keys or the mouse on the content of a window.
  bool Edited() const { return edited_; }

 private:
  // A kind of gesture is chosen by a byte from the `end` of the kind before it up to its own.
  struct Kind {
    std::size_t end;
    void (Gestures::*make)();
  };
  static const Kind kKinds[];
  // The end of the gestures that are possible while no window is active.
  static constexpr std::size_t kWithoutKeys = 22;

  void Choose() {
    const DrawnMenu menu = input_.Pick(DrawnMenus(*ActiveMenuBar()));
    const Ref<MenuItem> item = input_.Pick(menu.items);
    const bool quits = item->Value() == "Quit";
    if (IsSeparator(*item) || (quits && !input_.OneIn(10))) return;
    ends_program_ = quits;
    user_.Choose(menu.text + "/" + item->Value());
  }
  void Activate() {
    WithWindow([&](const std::string& title) { user_.ActivateWindow(title); });
  }
  void Wait() { user_.LetTimePass(std::chrono::milliseconds(input_.Below(5000))); }
  void Close() {
    WithWindow([&](const std::string& title) {
      if (title == "Vamo" && !input_.OneIn(10)) return;
      const bool last = Runtime::Current().LiveWindows().size() == 1;
      ends_program_ = title == "Vamo" || (last && user_.Display().MenuBarsLiveInWindows());
      user_.Close(title);
    });
  }
  void SwitchAway() { user_.SwitchAway(); }
  void Quit() {
    if (!input_.OneIn(5)) return;
    ends_program_ = true;
    user_.PressKey(Key::Command("q"));
  }

  void PressDigit() {
    static constexpr std::string_view kDigits[] = {"0", "1", "2", "3", "5", "9", "."};
    user_.PressKey(Key::Character(std::string(input_.Pick(kDigits))));
  }
  void PressCharacter() {
    using std::string_view_literals::operator""sv;
    static constexpr std::string_view kCharacters[] = {
        "a"sv,  "-"sv, ","sv, " "sv,  "é"sv,  "\u6F22"sv, "\U0001F600"sv, "\b"sv,
        "\b"sv, "0"sv, ","sv, "\t"sv, "\r"sv, "\x1B"sv,   "\x10"sv,       "\0"sv};
    Key key = Key::Character(std::string(input_.Pick(kCharacters)));
    key.shift = input_.OneIn(4);
    key.word = input_.OneIn(2);
    user_.PressKey(key);
  }
  void PressOtherKey() {
    constexpr auto kCodes = static_cast<std::size_t>(KeyCode::kOther) + 1;
    Key key{static_cast<KeyCode>(input_.Below(kCodes)), ""};
    key.shift = input_.OneIn(3);
    key.command = input_.OneIn(20);
    user_.PressKey(key);
  }
  void PressCommand() {
    Key key = Key::Command(std::string(1, input_.Pick(std::string_view("acvxzb1"))));
    key.shift = input_.OneIn(10);
    user_.PressKey(key);
  }
  void Dictate() { user_.Dictate(input_.OddText()); }
  void Paste() { user_.Paste(input_.OddText()); }
  void Overwrite() {
    WithShown(Role::kSlider, [&](const ShownControl& slider) {
      user_.Click(Role::kText, slider.name);
      user_.PressKey(Key::Command("a"));
      user_.Paste(input_.WrittenNumber());
    });
  }
  void Drop() {
    WithShown(Role::kText, [&](const ShownControl& field) {
      user_.Drop(Role::kText, field.name, input_.OddText());
    });
  }
  void Select() {
    WithShown(Role::kText, [&](const ShownControl& field) {
      const std::size_t bound = std::min<std::size_t>(field.text.size() + 3, 256);
      const std::size_t anchor = input_.Below(bound);
      user_.Select(field.name, anchor, input_.Below(bound));
    });
  }

  void Click() {
    WithShown(static_cast<Role>(input_.Below(4)), [&](const ShownControl& control) {
      if (control.description.empty()) return user_.Click(control.role, control.name);
      user_.ClickDescribed(control.description);
    });
  }
  void PressButton() {
    WithShown(Role::kButton,
              [&](const ShownControl& button) { user_.PressByAssistiveTechnology(button.name); });
  }
  void Drag() {
    WithShown(Role::kSlider, [&](const ShownControl& slider) {
      std::vector<std::int64_t> positions(input_.Below(4) + 1);
      for (std::int64_t& position : positions) position = PickPosition(slider.name);
      user_.DragSlider(slider.name, positions);
    });
  }
  // Sometimes picks the position of the current text, so that the drag leaves the text as it is.
  std::int64_t PickPosition(std::string_view slider) {
    const std::size_t kind = input_.Below(4);
    if (kind == 0) return input_.Between(-5, 1005);
    if (kind > 1) return input_.Between(0, 110);
    const double number = Val(user_.Sees(Role::kText, slider).text);
    return Truncate(slider == "r" ? 100 * number : number);
  }
  void TurnWheel() {
    WithShown(Role::kSlider, [&](const ShownControl& slider) {
      user_.TurnWheel(slider.name, input_.Between(-12, 12));
    });
  }

  // Calls `act` with a visible control of this role in the active window, if there is one.
  template <class Act>
  void WithShown(Role role, const Act& act) {
    std::vector<ShownControl> shown;
    for (const HeadlessControl* control : user_.Display().ActiveWindow().Controls()) {
      const ShownControl& candidate = control->Shown();
      if (candidate.visible && candidate.role == role) shown.push_back(candidate);
    }
    if (!shown.empty()) act(input_.Pick(shown));
  }
  template <class Act>
  void WithWindow(const Act& act) {
    const std::vector<std::string> titles = user_.Windows();
    if (!titles.empty()) act(input_.Pick(titles));
  }

  Input& input_;
  HeadlessUser& user_;
  bool ends_program_ = false;
  bool edited_ = false;
};

inline constexpr Gestures::Kind Gestures::kKinds[] = {
    {8, &Gestures::Choose},          {15, &Gestures::Activate},
    {19, &Gestures::Wait},           {kWithoutKeys, &Gestures::Close},
    {24, &Gestures::SwitchAway},     {25, &Gestures::Quit},
    {79, &Gestures::PressDigit},     {107, &Gestures::PressCharacter},
    {129, &Gestures::PressOtherKey}, {151, &Gestures::PressCommand},
    {162, &Gestures::Dictate},       {173, &Gestures::Paste},
    {194, &Gestures::Overwrite},     {199, &Gestures::Drop},
    {210, &Gestures::Select},        {221, &Gestures::Click},
    {225, &Gestures::PressButton},   {245, &Gestures::Drag},
    {256, &Gestures::TurnWheel}};

inline bool Gestures::MakeNext() {
  ends_program_ = false;
  std::size_t number = input_.Byte();
  if (!Runtime::Current().ActiveWindow()) number %= kWithoutKeys;
  const Kind* const kind = std::find_if(std::begin(kKinds), std::end(kKinds),
                                        [&](const Kind& k) { return number < k.end; });
  edited_ = number >= kWithoutKeys;
  (this->*kind->make)();
  return ends_program_;
}

}  // namespace vamo

#endif  // VAMO_FUZZ_GESTURES_H_
