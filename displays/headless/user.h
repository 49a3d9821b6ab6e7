#ifndef VAMO_DISPLAYS_HEADLESS_USER_H_
#define VAMO_DISPLAYS_HEADLESS_USER_H_

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "displays/headless/display.h"
#include "displays/user.h"
#include "toolkit/object/object.h"

namespace vamo {

class HeadlessControl;

// The user of the headless display. In a text control, a key that the program does not handle moves
// the caret, selects all (A with the command key) or cuts (Delete with Shift).
class HeadlessUser : public User {
 public:
  explicit HeadlessUser(HeadlessDisplay& display) : display_(display) {}

  void PressKey(const Key& key) override;
  void Type(std::string_view text) override;
  void SetClipboard(std::string_view text) override { display_.SetClipboardText(text); }
  void Click(Role role, std::string_view name) override;
  void DragSlider(std::string_view name, const std::vector<std::int64_t>& positions) override;
  void PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) override;
  void TurnWheel(std::string_view slider, std::int64_t notches) override;
  void PressByAssistiveTechnology(std::string_view button) override;
  bool Choose(std::string_view path) override;
  bool CanChoose(std::string_view path) override;
  void Close(std::string_view title) override;
  void ActivateWindow(std::string_view title) override;
  void LetTimePass(std::chrono::milliseconds time) override { display_.LetTimePass(time); }
  std::vector<std::string> Windows() override;
  std::string ActiveTitle() override;
  ShownControl Sees(Role role, std::string_view name) override;
  ShownControl SeesDescribed(std::string_view description) override;
  ShownControl Focused() override;
  std::string Clipboard() override { return display_.Clipboard(); }
  int Beeps() override { return display_.Beeps(); }
  std::vector<std::string> Hears() override { return display_.TakeAnnouncements(); }

  // What only the user of this display does and knows.
  void Drop(Role role, std::string_view name, std::string_view text);
  // Enters text as a whole, as an input method does.
  void Dictate(std::string_view text);
  void Select(std::string_view field, std::size_t anchor, std::size_t caret);
  void ClickDescribed(std::string_view description);
  // Clicks on a window of another program.
  void SwitchAway();
  HeadlessDisplay& Display() const { return display_; }

 private:
  HeadlessWindow& Titled(std::string_view title) const;
  HeadlessControl& Find(Role role, std::string_view name) const;
  template <class ControlClass>
  ControlClass& Find(Role role, std::string_view name) const;
  HeadlessControl& FindDescribed(std::string_view description) const;

  HeadlessDisplay& display_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_HEADLESS_USER_H_
