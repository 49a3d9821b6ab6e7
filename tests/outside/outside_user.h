// A user who knows only the running program: what is on the screen, and what is read out of it.
#ifndef VAMO_TESTS_OUTSIDE_OUTSIDE_USER_H_
#define VAMO_TESTS_OUTSIDE_OUTSIDE_USER_H_

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "at_spi.h"
#include "child.h"
#include "ears.h"
#include "user.h"
#include "x_screen.h"

namespace vamo {

// Works a program by keys and mouse through the X server and reads it as assistive technology does.
// After each act it waits until the program and the window manager have nothing more to do. It
// knows nothing of how the program is made, and does not judge what it sees.
class OutsideUser : public User {
 public:
  // Waits until the program shows its first window.
  OutsideUser(Child& program, XScreen& screen, Ears& ears);

  void PressKey(const Key& key) override;
  void Type(std::string_view text) override;
  void Paste(std::string_view text) override;
  void Click(Role role, std::string_view name) override;
  void DragSlider(std::string_view name, const std::vector<std::int64_t>& positions) override;
  void PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) override;
  void TurnWheel(std::string_view slider, std::int64_t notches) override;
  void PressByAssistiveTechnology(std::string_view button) override;
  void Choose(std::string_view path) override;
  bool CanChoose(std::string_view path) override;
  void Close(std::string_view title) override;
  void ActivateWindow(std::string_view title) override;
  // Time goes on while the user looks: waits with no act between them count from the last act.
  void Wait(std::chrono::milliseconds time) override;
  std::vector<std::string> Windows() override;
  std::string ActiveTitle() override;
  ShownControl Sees(Role role, std::string_view name) override;
  ShownControl SeesDescribed(std::string_view description) override;
  ShownControl Focused() override;
  std::string Clipboard() override;
  int Beeps() override;
  std::vector<std::string> Hears() override { return ears_.Notices(); }

  // What other displays have no word for.
  //
  // A combination of keys by their X names.
  void PressNamed(const std::string& keys);
  // What a screen reader is told that the user has done to a field's text since the last call.
  std::vector<std::string> HearsEdits(std::string_view field) { return ears_.Edits(field); }
  void ClickCloseButton(std::string_view title);
  // Takes the upper left corner of the window's frame there.
  void MoveWindow(std::string_view title, int x, int y);
  void PasteSelection(Role role, std::string_view name, std::string_view text);
  void PressKnob(std::string_view slider, std::int64_t at);
  void MoveKnob(std::string_view slider, std::int64_t to);
  void ReleaseKnob();
  WindowOnScreen WindowTitled(std::string_view title);
  // The active window.
  const Element& Frame() const { return frames_.element.value(); }
  // The element of the active window that bears a name or a description.
  const Element& Find(Role role, std::string_view name);
  const Element& FindDescribed(std::string_view description);
  // Everything in the active window, whether it shows or not, menus left out.
  const std::vector<Element>& Elements();
  int ScreenWidth() const { return screen_.Width(); }
  int ScreenHeight() const { return screen_.Height(); }
  bool Running() { return program_.Running(); }
  pid_t Process() const { return program_.id(); }

 private:
  // The program's windows as assistive technology tells of them.
  struct Frames {
    std::vector<std::string> titles;
    std::string active;
    std::optional<Element> element;
  };

  Frames ReadFrames();
  bool IsSettled();
  void Settle();
  void Act(const std::function<void()>& act);
  void ClickAt(const Element& element);
  void MoveToPart(const Element& element, int x, int y);
  double Scale();
  // Opens the menu of a path and gives the item in it.
  Element Open(std::string_view path);
  Element MenuTitle(std::string_view text);

  Child& program_;
  XScreen& screen_;
  Ears& ears_;
  std::optional<Element> application_;
  Frames frames_;
  std::vector<Element> elements_;
  std::chrono::steady_clock::time_point now_;
};

// Where the program is: VAMO_PROGRAM in the environment, or else that of this build.
std::string ProgramPath();

// Runs the program from its start to its end, with settings in its environment, and gives its exit
// status; kStillRunning when the journey has left it running.
inline constexpr int kStillRunning = -1;
int RunProgramWith(const Environment& settings, const std::function<void(OutsideUser&)>& journey,
                   const std::vector<std::string>& command = {ProgramPath()});

}  // namespace vamo

#endif  // VAMO_TESTS_OUTSIDE_OUTSIDE_USER_H_
