// A user of the running program, whatever display it runs on.
#ifndef VAMO_TESTS_USER_H_
#define VAMO_TESTS_USER_H_

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "displays/headless/display.h"
#include "toolkit/key.h"

namespace vamo {

// What a user can do and see. Controls are found in the active window by what a screen reader
// reads, so a wrong name fails the journey that needs it.
class User {
 public:
  virtual ~User() = default;

  virtual void PressKey(const Key& key) = 0;
  virtual void Type(std::string_view text) = 0;
  // With the clipboard and the paste shortcut, into what has the keys.
  virtual void Paste(std::string_view text) = 0;
  virtual void Click(Role role, std::string_view name) = 0;
  // Presses the slider's knob and takes it to each of the positions in turn.
  virtual void DragSlider(std::string_view name, const std::vector<std::int64_t>& positions) = 0;
  // Presses the slider beside its knob, at the place of a position, and goes on from there.
  virtual void PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) = 0;
  virtual void TurnWheel(std::string_view slider, std::int64_t notches) = 0;
  virtual void PressByAssistiveTechnology(std::string_view button) = 0;
  // A menu item by its texts, such as "Edit/Copy".
  virtual void Choose(std::string_view path) = 0;
  virtual bool CanChoose(std::string_view path) = 0;
  virtual void Close(std::string_view title) = 0;
  virtual void ActivateWindow(std::string_view title) = 0;
  virtual void Wait(std::chrono::milliseconds time) = 0;

  // The titles of the windows on the screen, in the order of the alphabet.
  virtual std::vector<std::string> Windows() = 0;
  virtual std::string ActiveTitle() = 0;
  virtual ShownControl Sees(Role role, std::string_view name) = 0;
  virtual ShownControl SeesDescribed(std::string_view description) = 0;
  virtual ShownControl Focused() = 0;
  virtual std::string Clipboard() = 0;
  virtual int Beeps() = 0;
  // What the program has had a screen reader say since the last call.
  virtual std::vector<std::string> Hears() = 0;
};

// Where the middle of a slider's knob is at a position, from the left of its box.
int KnobAt(std::int64_t position, std::int64_t least, std::int64_t greatest, int width);
// Ends a drag, where a position is narrower than a pixel, by the arrow keys. One that has ended far
// from the position has failed.
void NudgeSlider(User& user, std::string_view name, std::int64_t position);

// Runs the program from its start to its end with a user, and gives its exit status. Each program
// of journeys defines it for its display.
int RunProgram(const std::function<void(User&)>& journey);

}  // namespace vamo

#endif  // VAMO_TESTS_USER_H_
