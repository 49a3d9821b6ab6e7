// A user of the running program, on any display.
#ifndef VAMO_DISPLAYS_USER_H_
#define VAMO_DISPLAYS_USER_H_

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/runtime/key.h"

namespace vamo {

// The kinds of control, as a screen reader tells them apart.
enum class Role { kText, kSlider, kButton, kLabel, kChart };

// What a user sees of a control.
struct ShownControl {
  Role role = Role::kLabel;
  // The name that a screen reader reads; for a label without a name, its text.
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

// The result of a run, in place of an exit status, if its user has left the program running.
inline constexpr int kStillRunning = -1;

// What a user can do and see, in the active window unless something else is said. Controls are
// found by what a screen reader reads, and one that is not there raises an exception: so a test
// that needs it fails if its name is wrong. After the program has ended, nothing has an effect.
class User {
 public:
  virtual ~User() = default;

  virtual void PressKey(const Key& key) = 0;
  virtual void Type(std::string_view text) = 0;
  virtual void SetClipboard(std::string_view text) = 0;
  // Pastes into the focused control, through the clipboard and the shortcut of Paste.
  void Paste(std::string_view text);
  virtual void Click(Role role, std::string_view name) = 0;
  // Drags the slider's knob to each of the positions in turn.
  virtual void DragSlider(std::string_view name, const std::vector<std::int64_t>& positions) = 0;
  // Presses the slider beside its knob, at the position `at`, and drags on to `drag_to`.
  virtual void PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) = 0;
  virtual void TurnWheel(std::string_view slider, std::int64_t notches) = 0;
  virtual void PressByAssistiveTechnology(std::string_view button) = 0;
  // Opens a menu and chooses an item by its texts, such as "Edit/Copy". Returns false if the item
  // is disabled.
  virtual bool Choose(std::string_view path) = 0;
  virtual bool CanChoose(std::string_view path) = 0;
  virtual void Close(std::string_view title) = 0;
  // Clicks on another window of the program.
  virtual void ActivateWindow(std::string_view title) = 0;
  virtual void LetTimePass(std::chrono::milliseconds time) = 0;

  // The titles of the windows on the screen, in alphabetical order.
  virtual std::vector<std::string> Windows() = 0;
  // The title of the active window; empty if there is none or it has no title.
  virtual std::string ActiveTitle() = 0;
  virtual ShownControl Sees(Role role, std::string_view name) = 0;
  virtual ShownControl SeesDescribed(std::string_view description) = 0;
  // The control that has the focus; one without a name if there is none.
  virtual ShownControl Focused() = 0;
  virtual std::string Clipboard() = 0;
  virtual int Beeps() = 0;
  // What the program has announced to a screen reader since the last call.
  virtual std::vector<std::string> Hears() = 0;
};

inline void User::Paste(std::string_view text) {
  SetClipboard(text);
  PressKey(Key::Command("v"));
}

}  // namespace vamo

#endif  // VAMO_DISPLAYS_USER_H_
