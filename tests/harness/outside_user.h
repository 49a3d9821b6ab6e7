// A user who knows only the running program: what is on its screen and what a screen reader reads.
#ifndef VAMO_TESTS_HARNESS_OUTSIDE_USER_H_
#define VAMO_TESTS_HARNESS_OUTSIDE_USER_H_

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "at_spi.h"
#include "child.h"
#include "desktop.h"
#include "ears.h"
#include "screen_user.h"

// From libxdo. Its header is included only in sources, because its names clash with others.
struct xdo;

namespace vamo {

// Operates a program with keys and mouse and reads it as assistive technology does. It knows
// nothing about the program's code and checks nothing. Keyboard and mouse are those of the X
// server, which also underlies the Wayland compositor.
class OutsideUser final : public ScreenUser<Element> {
 public:
  // Waits until the program shows its first window.
  OutsideUser(Child& program, Desktop& desktop, Ears& ears);

  void SetClipboard(std::string_view text) override { desktop_.SetClipboard(text); }
  void Close(std::string_view title) override;
  void ActivateWindow(std::string_view title) override;
  // Real time also passes while the user looks, so consecutive waits without an act between them
  // are measured from the last act.
  void LetTimePass(std::chrono::milliseconds time) override;
  std::string Clipboard() override { return desktop_.Clipboard(); }
  int Beeps() override { return desktop_.Bells(); }
  std::vector<std::string> Hears() override { return ears_.Notices(); }
  std::vector<Element> Elements() override;
  bool Running() override { return program_.Running(); }

  // Only for this user:
  //
  // The edits of a field's text that a screen reader was told of since the last call.
  std::vector<std::string> HearsEdits(std::string_view field) { return ears_.Edits(field); }
  void ClickCloseButton(std::string_view title);
  // Moves the window so that the upper left corner of its frame is at (x, y), on an X server.
  void MoveWindow(std::string_view title, int x, int y);
  // Selects the text in another program and pastes it with the middle button, on an X server.
  void PasteSelection(Role role, std::string_view name, std::string_view text);
  WindowOnScreen WindowTitled(std::string_view title);
  int ScreenWidth() const;
  int ScreenHeight() const;
  pid_t Process() const { return program_.id(); }

 private:
  void PressCombination(const std::string& keys) override;
  void TypePrintable(std::string_view text) override;
  void MoveTo(int x, int y) override;
  void PressMouse() override;
  void ReleaseMouse() override;
  void Scroll(int notches) override;
  void ClickButton(int button, int times = 1);
  std::optional<Element> Application() override;
  Frames Look() override { return frames_; }
  void Settle() override;

  bool IsSettled();
  void AwaitRest();
  std::string TellWindows();

  Child& program_;
  Desktop& desktop_;
  const std::shared_ptr<xdo> xdo_;
  Ears& ears_;
  std::optional<Element> application_;
  // The windows as they were when the program had settled.
  Frames frames_;
  std::vector<Element> elements_;
  // All windows together; it changes when a pane opens or closes.
  int width_ = 0;
  std::chrono::steady_clock::time_point now_;
};

// Runs a program from its start to its end and returns its exit status; kStillRunning if it is
// still running after the journey.
int RunProgramWith(const std::function<void(OutsideUser&)>& journey, const CommandLine& command);

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_OUTSIDE_USER_H_
