#ifndef VAMO_DISPLAYS_HEADLESS_DISPLAY_H_
#define VAMO_DISPLAYS_HEADLESS_DISPLAY_H_

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "toolkit/runtime/display.h"
#include "toolkit/window/window_order.h"

namespace vamo {

class HeadlessTimer;
class HeadlessUser;
class HeadlessWindow;

// A complete display in memory, without pixels, for tests and measurements. The function passed to
// it does what the user does while the program runs. It has no positions on the screen, and its
// clock stands still until LetTimePass.
class HeadlessDisplay : public Display {
 public:
  // The loop ends when `act` returns.
  explicit HeadlessDisplay(std::function<void(HeadlessUser&)> act = nullptr);
  ~HeadlessDisplay() override;

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
  bool TabLeavesWindows() const override { return tab_leaves_; }

  // Does something as the user, and then runs the events that it has caused, unless the program has
  // ended.
  void Do(const std::function<void()>& act);
  void LetTimePass(std::chrono::milliseconds time);
  // From now on no image can be opened; by default every one can.
  void RemovePictures() { has_pictures_ = false; }
  // From now on no pane has room; by default every pane has.
  void LeaveNoRoomForPanes() { has_room_for_panes_ = false; }
  // From now on Tab can leave a window; by default it stays inside.
  void LetTabLeave() { tab_leaves_ = true; }

  bool Running() const { return !stopped_; }
  WindowOrder<HeadlessWindow>& Order() { return order_; }
  // The active window. Raises InvalidArgumentException if there is none.
  HeadlessWindow& ActiveWindow() const;
  const std::string& Clipboard() const { return clipboard_; }
  // How often the clipboard has been read.
  int ClipboardReads() const { return clipboard_reads_; }
  std::size_t RunningTimers() const { return timers_.size(); }
  int Beeps() const { return beeps_; }
  // What has been announced since the last call.
  std::vector<std::string> TakeAnnouncements() { return std::exchange(announcements_, {}); }

 private:
  friend class HeadlessTimer;
  friend class HeadlessWindow;

  // Activates the window that is next in order, until there is none.
  void ActivateNext();

  std::function<void(HeadlessUser&)> act_;
  WindowOrder<HeadlessWindow> order_;
  std::vector<HeadlessTimer*> timers_;
  std::chrono::milliseconds now_{0};
  std::string clipboard_;
  int clipboard_reads_ = 0;
  bool has_pictures_ = true;
  bool has_room_for_panes_ = true;
  bool tab_leaves_ = false;
  bool stopped_ = false;
  int beeps_ = 0;
  std::vector<std::string> announcements_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_HEADLESS_DISPLAY_H_
