// A user of the running program, whatever display it runs on.
#ifndef VAMO_DISPLAYS_USER_H_
#define VAMO_DISPLAYS_USER_H_

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/runtime/key.h"

namespace vamo {

// How a screen reader tells the kinds of control apart.
enum class Role { kText, kSlider, kButton, kLabel };

// What a user sees of a control.
struct ShownControl {
  Role role = Role::kLabel;
  // The name that a screen reader reads; of a label without one, its text.
  std::string name;
  std::string description;
  // The caption of a control that has one.
  std::string labelled_by;
  std::string text;
  std::string selected_text;
  std::int64_t position = 0;
  // The number that a screen reader reads for the position.
  double value = 0;
  bool visible = false;
  bool enabled = false;
  bool operator==(const ShownControl&) const = default;
};

// What a run of the program gives in place of an exit status when its user has left it running.
inline constexpr int kStillRunning = -1;

// What a user can do and see, in the active window where nothing else is said. Controls are found
// by what a screen reader reads, so a wrong name fails whoever needs it: what is not on the screen
// raises an exception. After the program has ended, nothing of this has an effect.
class User {
 public:
  virtual ~User() = default;

  virtual void PressKey(const Key& key) = 0;
  virtual void Type(std::string_view text) = 0;
  virtual void SetClipboard(std::string_view text) = 0;
  // With the clipboard and the paste shortcut, into what has the keys.
  void Paste(std::string_view text);
  virtual void Click(Role role, std::string_view name) = 0;
  // Presses the slider's knob and takes it to each of the positions in turn.
  virtual void DragSlider(std::string_view name, const std::vector<std::int64_t>& positions) = 0;
  // Presses the slider beside its knob, at the place of a position, and goes on from there.
  virtual void PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) = 0;
  virtual void TurnWheel(std::string_view slider, std::int64_t notches) = 0;
  virtual void PressByAssistiveTechnology(std::string_view button) = 0;
  // A menu item by its texts, such as "Edit/Copy", after its menu has been opened. False where the
  // item is disabled.
  virtual bool Choose(std::string_view path) = 0;
  virtual bool CanChoose(std::string_view path) = 0;
  virtual void Close(std::string_view title) = 0;
  // A click on another window of the program.
  virtual void ActivateWindow(std::string_view title) = 0;
  virtual void LetTimePass(std::chrono::milliseconds time) = 0;

  // The titles of the windows on the screen, in the order of the alphabet.
  virtual std::vector<std::string> Windows() = 0;
  // The title of the window that has the keys; empty where none has, as of one without a title.
  virtual std::string ActiveTitle() = 0;
  virtual ShownControl Sees(Role role, std::string_view name) = 0;
  virtual ShownControl SeesDescribed(std::string_view description) = 0;
  // What has the keys; without a name where nothing has.
  virtual ShownControl Focused() = 0;
  virtual std::string Clipboard() = 0;
  virtual int Beeps() = 0;
  // What the program has had a screen reader say since the last call.
  virtual std::vector<std::string> Hears() = 0;
};

inline void User::Paste(std::string_view text) {
  SetClipboard(text);
  PressKey(Key::Command("v"));
}

}  // namespace vamo

#endif  // VAMO_DISPLAYS_USER_H_
