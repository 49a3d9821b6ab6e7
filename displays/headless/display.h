// A display without pixels, with a clock of its own.
#ifndef VAMO_DISPLAYS_HEADLESS_DISPLAY_H_
#define VAMO_DISPLAYS_HEADLESS_DISPLAY_H_

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "displays/headless/user.h"
#include "toolkit/display.h"
#include "toolkit/key.h"
#include "toolkit/object.h"
#include "toolkit/window.h"

namespace vamo {

class HeadlessControl;
class HeadlessWindow;

// A whole display in memory, for checks and for machines without a screen, and its own user: what
// happens while the program runs is a function that is given it. Positions on the screen mean
// nothing to it, and the clock stands still unless it is told to go on.
class HeadlessDisplay : public Display, public User {
 public:
  // When `user` is through, the loop ends.
  explicit HeadlessDisplay(std::function<void(HeadlessDisplay&)> user = nullptr);
  ~HeadlessDisplay() override;

  // User. A key in a text control that the program leaves alone moves the caret or, with A and the
  // command key, selects all.
  void PressKey(const Key& key) override;
  void Type(std::string_view text) override;
  void SetClipboard(std::string_view text) override { clipboard_ = text; }
  void Click(Role role, std::string_view name) override;
  void DragSlider(std::string_view name, const std::vector<std::int64_t>& positions) override;
  void PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) override;
  void TurnWheel(std::string_view slider, std::int64_t notches) override;
  void PressByAssistiveTechnology(std::string_view button) override;
  bool Choose(std::string_view path) override;
  bool CanChoose(std::string_view path) override;
  void Close(std::string_view title) override;
  void ActivateWindow(std::string_view title) override;
  void LetTimePass(std::chrono::milliseconds time) override;
  std::vector<std::string> Windows() override;
  std::string ActiveTitle() override;
  ShownControl Sees(Role role, std::string_view name) override;
  ShownControl SeesDescribed(std::string_view description) override;
  ShownControl Focused() override;
  std::string Clipboard() override { return clipboard_; }
  int Beeps() override { return beeps_; }
  std::vector<std::string> Hears() override { return std::exchange(announcements_, {}); }

  // What a user can do besides, and what is known of the display from within.
  void Drop(Role role, std::string_view name, std::string_view text);
  void Select(std::string_view field, std::size_t anchor, std::size_t caret);
  void ClickDescribed(std::string_view description);
  // A click on another program's window.
  void SwitchAway();
  // The images that can be opened; by default every one can.
  void RemovePictures() { has_pictures_ = false; }
  bool Running() const { return !stopped_; }
  // The windows in the order of the screen, the front one last; hidden ones are among them.
  const std::vector<HeadlessWindow*>& Views() const { return windows_; }
  // The window that has the keys. InvalidArgumentException where none has.
  HeadlessWindow& ActiveView() const;
  // How often the clipboard has been read.
  int ClipboardReads() const { return clipboard_reads_; }

  // Display.
  void Run() override;
  void Stop() override { stopped_ = true; }
  std::unique_ptr<WindowView> OpenWindow(Window& window) override;
  void Beep() override { ++beeps_; }
  void Announce(std::string_view sentence) override { announcements_.emplace_back(sentence); }
  std::shared_ptr<DisplayPicture> OpenPicture(std::string_view file_name) override;
  std::unique_ptr<RunningTimer> StartTimer(std::chrono::milliseconds period,
                                           std::function<void()> fire) override;
  std::string ClipboardText() override;
  bool ClipboardMayHoldText() const override { return !clipboard_.empty(); }
  void SetClipboardText(std::string_view text) override { clipboard_ = text; }
  bool MenuBarsLiveInWindows() const override { return false; }

 private:
  friend class HeadlessWindow;
  friend class HeadlessTimer;

  void Post(std::function<void()> event) { events_.push_back(std::move(event)); }
  // Runs what the last act has set off.
  void RunEvents();
  // Does something as the user, unless the program has ended.
  void Act(const std::function<void()>& act);
  void Activate(HeadlessWindow& window);
  // As a desktop does when the window that had the keys has gone. Whether there was one to give to.
  bool GiveKeysToFrontWindow();
  HeadlessWindow& Titled(std::string_view title) const;
  HeadlessControl& Find(Role role, std::string_view name) const;
  HeadlessControl& FindDescribed(std::string_view description) const;
  void ClickOn(const HeadlessControl& control);
  Ref<MenuItem> FindItem(std::string_view path) const;

  std::function<void(HeadlessDisplay&)> user_;
  std::vector<HeadlessWindow*> windows_;
  std::deque<std::function<void()>> events_;
  std::vector<class HeadlessTimer*> timers_;
  std::chrono::milliseconds now_{0};
  std::string clipboard_;
  int clipboard_reads_ = 0;
  bool has_pictures_ = true;
  bool stopped_ = false;
  // The keys go to another program.
  bool away_ = false;
  int beeps_ = 0;
  std::vector<std::string> announcements_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_HEADLESS_DISPLAY_H_
