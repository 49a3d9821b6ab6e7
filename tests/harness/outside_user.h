// A user who knows only the running program: what is on its screen and what a screen reader reads.
#ifndef VAMO_TESTS_HARNESS_OUTSIDE_USER_H_
#define VAMO_TESTS_HARNESS_OUTSIDE_USER_H_

#include <chrono>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "at_spi.h"
#include "child.h"
#include "desktop.h"
#include "ears.h"
#include "hand.h"
#include "screen_user.h"

namespace vamo {

// Operates a program with keys and mouse and reads it as assistive technology does. It knows
// nothing about the program's code and checks nothing.
class OutsideUser final : public ScreenUser<Element> {
 public:
  // Waits until the program shows its first window.
  OutsideUser(Child& program, Desktop& desktop, Ears& ears);

  void SetClipboard(std::string_view text) override { desktop_.Offer("clipboard", text); }
  void Close(std::string_view title) override;
  void ActivateWindow(std::string_view title) override;
  // Real time also passes while the user looks, so consecutive waits without an act between them
  // are measured from the last act.
  void LetTimePass(std::chrono::milliseconds time) override;
  std::string Clipboard() override { return desktop_.Offered("clipboard"); }
  int Beeps() override { return desktop_.Bells(); }
  std::vector<std::string> Hears() override { return ears_.Notices(); }
  std::vector<Element> Elements() override;
  bool Running() override { return program_.Running(); }

  // Only for this user:
  //
  // The edits of a field's text that a screen reader was told of since the last call.
  std::vector<std::string> HearsEdits(std::string_view field) { return ears_.Edits(field); }
  void ClickCloseButton(std::string_view title);
  // Moves the window so that the upper left corner of its frame is at (x, y).
  void MoveWindow(std::string_view title, int x, int y);
  void PasteSelection(Role role, std::string_view name, std::string_view text);
  WindowOnScreen WindowTitled(std::string_view title);
  int ScreenWidth() const { return desktop_.Width(); }
  int ScreenHeight() const { return desktop_.Height(); }
  pid_t Process() const { return program_.id(); }

 private:
  void PressCombination(const std::string& keys) override { hand_.Press(keys); }
  void TypePrintable(std::string_view text) override { hand_.Type(std::string(text)); }
  void MoveTo(int x, int y) override;
  void PressMouse() override { hand_.PressButton(); }
  void ReleaseMouse() override { hand_.ReleaseButton(); }
  void Scroll(int notches) override { hand_.Click(notches > 0 ? 4 : 5, std::abs(notches)); }
  std::optional<Element> Application() override;
  Frames Look() override { return frames_; }
  void Settle() override;

  bool IsSettled();
  void AwaitRest();
  std::string TellWindows();

  Child& program_;
  Desktop& desktop_;
  const Hand hand_;
  Ears& ears_;
  std::optional<Element> application_;
  // The windows as they were when the program had settled.
  Frames frames_;
  std::vector<Element> elements_;
  // All windows together; it changes when a pane opens or closes.
  int width_ = 0;
  std::chrono::steady_clock::time_point now_;
};

// Runs a program from its start to its end, with settings in its environment, and returns its exit
// status; kStillRunning if it is still running after the journey.
int RunProgramWith(const Environment& settings, const std::function<void(OutsideUser&)>& journey,
                   const std::vector<std::string>& command);

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_OUTSIDE_USER_H_
