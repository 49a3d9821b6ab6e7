// The hands of a monkey.
#include "monkey_hand.h"

#include <gtest/gtest.h>

#include <chrono>
#include <numeric>
#include <vector>

#include "toolkit/menu_service.h"

namespace vamo {
namespace {

using std::string_view_literals::operator""sv;

constexpr std::string_view kDigits[] = {"0"sv, "1"sv, "2"sv, "3"sv, "5"sv, "9"sv, "."sv};
constexpr std::string_view kOtherCharacters[] = {
    "a"sv,  "-"sv,    ","sv,    " "sv,  "é"sv,  "漢"sv,   "😀"sv,    "\b"sv,
    "\b"sv, "\x7F"sv, "\x7F"sv, "\t"sv, "\r"sv, "\x1B"sv, "\x10"sv, "\0"sv};
constexpr KeyCode kOtherKeys[] = {KeyCode::kLeft,  KeyCode::kRight,    KeyCode::kUp,
                                  KeyCode::kDown,  KeyCode::kPageUp,   KeyCode::kPageDown,
                                  KeyCode::kHome,  KeyCode::kEnd,      KeyCode::kHelp,
                                  KeyCode::kOther, KeyCode::kCharacter};
constexpr char kCommandLetters[] = {'a', 'c', 'v', 'x', 'z', 'b', '1'};
constexpr std::string_view kFields[] = {"r"sv, "N"sv};

// A text in a message: no control codes, no broken UTF-8, not too long.
std::string Quoted(std::string_view text) {
  constexpr std::size_t kMost = 60;
  const std::string printed = testing::PrintToString(std::string(text.substr(0, kMost)));
  return printed + (text.size() > kMost ? "... of " + std::to_string(text.size()) : "");
}

}  // namespace

const MonkeyHand::Habit MonkeyHand::kHabits[] = {
    {"key", 60, true, &MonkeyHand::PressCharacter},
    {"key", 20, true, &MonkeyHand::PressOtherKey},
    {"shortcut", 20, true, &MonkeyHand::PressCommand},
    {"type", 10, true, &MonkeyHand::Type},
    {"paste", 10, true, &MonkeyHand::Paste},
    {"overwrite", 20, true, &MonkeyHand::Overwrite},
    {"drop", 4, true, &MonkeyHand::Drop},
    {"select", 10, true, &MonkeyHand::Select},
    {"click", 10, true, &MonkeyHand::Click},
    {"press", 3, true, &MonkeyHand::PressButton},
    {"drag", 20, true, &MonkeyHand::Drag},
    {"wheel", 10, true, &MonkeyHand::TurnWheel},
    {"choose", 6, false, &MonkeyHand::ChooseItem},
    {"activate", 6, false, &MonkeyHand::Activate},
    {"switch away", 2, true, &MonkeyHand::SwitchAway},
    {"wait", 3, false, &MonkeyHand::Wait},
    {"close", 3, false, &MonkeyHand::Close},
    {"quit", 1, true, &MonkeyHand::Quit},
};

void MonkeyHand::Act(Deed& deed) {
  const Habit& habit = PickHabit();
  deed = {habit.name};
  deed_ = &deed;
  (this->*habit.act)();
}

const MonkeyHand::Habit& MonkeyHand::PickHabit() {
  const std::size_t sum =
      std::accumulate(std::begin(kHabits), std::end(kHabits), std::size_t{0},
                      [](std::size_t all, const Habit& habit) { return all + habit.weight; });
  while (true) {
    std::size_t place = random_.Below(sum);
    for (const Habit& habit : kHabits) {
      if (place < habit.weight) {
        if (habit.needs_front && display_.FrontView() == nullptr) break;
        return habit;
      }
      place -= habit.weight;
    }
  }
}

void MonkeyHand::PressCharacter() {
  const bool digit = !random_.OneIn(3);
  const std::string character(digit ? random_.Pick(kDigits) : random_.Pick(kOtherCharacters));
  Say(Quoted(character));
  deed_->typing = digit;
  const bool word = !digit && random_.OneIn(2);
  display_.PressKey({KeyCode::kCharacter, character, random_.OneIn(4), false, word});
}

void MonkeyHand::PressOtherKey() {
  const Key key{random_.Pick(kOtherKeys), "", random_.OneIn(3), random_.OneIn(20)};
  Say("of code " + std::to_string(static_cast<int>(key.code)) + (key.shift ? " with shift" : ""));
  display_.PressKey(key);
}

void MonkeyHand::PressCommand() {
  const Key key{KeyCode::kCharacter, std::string(1, random_.Pick(kCommandLetters)),
                random_.OneIn(10), true};
  Say(key.text);
  display_.PressKey(key);
}

void MonkeyHand::Type() {
  const std::string text = random_.OddText();
  Say(Quoted(text));
  display_.Type(text);
}

void MonkeyHand::Paste() {
  const std::string text = random_.OddText();
  Say(Quoted(text));
  display_.SetClipboard(text);
  display_.PressKey(Key::Command("v"));
}

void MonkeyHand::Overwrite() {
  if (!PickShown(Role::kText) || !PickShown(Role::kSlider)) return;
  const std::string_view field = random_.Pick(kFields);
  const std::string number = random_.Number();
  Say(std::string(field) + " by " + Quoted(number));
  display_.Click(Role::kText, field);
  display_.PressKey(Key::Command("a"));
  display_.SetClipboard(number);
  display_.PressKey(Key::Command("v"));
}

void MonkeyHand::Drop() {
  const auto field = PickShown(Role::kText);
  if (!field) return;
  const std::string text = random_.OddText();
  Say(Quoted(text) + " on " + field->name);
  display_.Drop(Role::kText, field->name, text);
}

void MonkeyHand::Select() {
  const auto field = PickShown(Role::kText);
  if (!field) return;
  const std::size_t bound = field->text.size() + 3;
  const std::size_t anchor = random_.Below(bound);
  const std::size_t caret = random_.Below(bound);
  Say(field->name + " " + std::to_string(anchor) + " to " + std::to_string(caret));
  display_.Select(field->name, anchor, caret);
}

void MonkeyHand::Click() {
  const Role kRoles[] = {Role::kText, Role::kSlider, Role::kButton, Role::kLabel};
  const auto control = PickShown(random_.Pick(kRoles));
  if (!control) return;
  Say(control->name + control->description);
  if (control->description.empty()) {
    display_.Click(control->role, control->name);
  } else {
    display_.ClickDescribed(control->description);
  }
}

void MonkeyHand::PressButton() {
  const auto button = PickShown(Role::kButton);
  if (!button) return;
  Say(button->name);
  display_.PressByAssistiveTechnology(button->name);
}

void MonkeyHand::Drag() {
  const auto slider = PickShown(Role::kSlider);
  if (!slider) return;
  std::vector<std::int64_t> positions;
  for (std::size_t count = random_.Below(4) + 1; count > 0; --count) {
    positions.push_back(random_.OneIn(4) ? random_.Between(-5, 1005) : random_.Between(0, 110));
  }
  Say(slider->name + " to " + testing::PrintToString(positions));
  display_.DragSlider(slider->name, positions);
}

void MonkeyHand::TurnWheel() {
  const auto slider = PickShown(Role::kSlider);
  if (!slider) return;
  const std::int64_t notches = random_.Between(-12, 12);
  Say(slider->name + " by " + std::to_string(notches));
  display_.TurnWheel(slider->name, notches);
}

void MonkeyHand::ChooseItem() {
  const Ref<MenuBar> bar = ActiveMenuBar();
  const std::vector<DrawnMenu> menus = DrawnMenus(*bar);
  const DrawnMenu& menu = random_.Pick(menus);
  const Ref<MenuItem> item = random_.Pick(menu.items);
  const bool quits = item->Value() == "Quit";
  if (IsSeparator(*item) || (quits && !random_.OneIn(10))) return;
  deed_->ends_program = quits;
  Say(menu.text + "/" + item->Value());
  display_.Choose(menu.text + "/" + item->Value());
}

void MonkeyHand::Activate() {
  if (display_.Windows().empty()) return;
  const std::string title = PickTitle();
  Say(Quoted(title));
  display_.ActivateWindow(title);
}

void MonkeyHand::SwitchAway() { display_.SwitchAway(); }

void MonkeyHand::Wait() {
  const std::chrono::milliseconds time(random_.Between(0, 5000));
  Say(std::to_string(time.count()) + " ms");
  display_.LetTimePass(time);
}

void MonkeyHand::Close() {
  if (display_.Windows().empty()) return;
  const std::string title = PickTitle();
  if (title == "Vamo" && !random_.OneIn(10)) return;
  Say(Quoted(title));
  const bool last = Runtime::Current().LiveWindows().size() == 1;
  deed_->ends_program = title == "Vamo" || (last && display_.MenuBarsLiveInWindows());
  display_.Close(title);
}

void MonkeyHand::Quit() {
  if (!random_.OneIn(5)) return;
  deed_->ends_program = true;
  display_.PressKey(Key::Command("q"));
}

std::optional<ShownControl> MonkeyHand::PickShown(Role role) {
  std::vector<const ShownControl*> shown;
  for (const HeadlessControl* control : display_.FrontView()->Controls()) {
    if (control->Shown().visible && control->Shown().role == role) {
      shown.push_back(&control->Shown());
    }
  }
  if (shown.empty()) return std::nullopt;
  return *random_.Pick(shown);
}

std::string MonkeyHand::PickTitle() {
  const std::vector<std::string> titles = display_.Windows();
  return random_.Pick(titles);
}

}  // namespace vamo
