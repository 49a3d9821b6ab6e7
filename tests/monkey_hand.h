// The hands of a monkey: one random thing that a user can do, and then the next one.
#ifndef VAMO_TESTS_MONKEY_HAND_H_
#define VAMO_TESTS_MONKEY_HAND_H_

#include <optional>
#include <string>

#include "monkey_display.h"
#include "monkey_random.h"

namespace vamo {

// What has been done.
struct Deed {
  std::string what;
  // Whether it ends the program.
  bool ends_program = false;
  // Whether it was typing of visible characters, and nothing else.
  bool typing = false;
};

// Picks and does what a user could do to the windows as they stand: only what is on the screen is
// touched. It does not look at what comes of it.
class MonkeyHand {
 public:
  MonkeyHand(MonkeyDisplay& display, Random& random) : display_(display), random_(random) {}

  // `deed` is filled in before it is done, so that it is known whatever happens then.
  void Act(Deed& deed);

 private:
  // A kind of thing to do, and how often it is picked among the others.
  struct Habit {
    const char* name;
    std::size_t weight;
    // Whether a window must have the keys for it.
    bool needs_front;
    void (MonkeyHand::*act)();
  };
  static const Habit kHabits[];

  const Habit& PickHabit();
  void Say(const std::string& detail) { deed_->what += " " + detail; }

  void PressCharacter();
  void PressOtherKey();
  void PressCommand();
  void Type();
  void Paste();
  void Overwrite();
  void Drop();
  void Select();
  void Click();
  void PressButton();
  void Drag();
  void TurnWheel();
  void ChooseItem();
  void Activate();
  void SwitchAway();
  void Wait();
  void Close();
  void Quit();

  // A control of the front window of one kind that the user can see; nothing where there is none.
  std::optional<ShownControl> PickShown(Role role);
  std::string PickTitle();

  MonkeyDisplay& display_;
  Random& random_;
  Deed* deed_ = nullptr;
};

}  // namespace vamo

#endif  // VAMO_TESTS_MONKEY_HAND_H_
