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

#include "toolkit/display.h"
#include "toolkit/key.h"
#include "toolkit/object.h"
#include "toolkit/window.h"

namespace vamo {

// How a screen reader tells the kinds of control apart.
enum class Role { kText, kSlider, kButton, kLabel };

// What a display without pixels shows of a control. It is a copy, made when the control asked for
// it: what a control forgets to have shown stays out of it.
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
};

class HeadlessControl;
class HeadlessWindow;

// A whole display in memory, for checks and for machines without a screen. The user of it is a
// function; what a user does and sees has a call here each. Positions on the screen mean nothing to
// it, and the clock stands still unless it is told to go on.
class HeadlessDisplay : public Display {
 public:
  // `user` is what happens while the program runs; when it is through, the loop ends.
  explicit HeadlessDisplay(std::function<void(HeadlessDisplay&)> user = nullptr);
  ~HeadlessDisplay() override;

  // What a user does, in the active window where nothing else is said. Controls are found by what a
  // screen reader reads; InvalidArgumentException tells that there is none of that kind. After the
  // program has been told to end, nothing of this has an effect.
  //
  // A key. In a text control, a key that the program leaves alone moves the caret or, with A and
  // the command key, selects all.
  void PressKey(const Key& key);
  void Type(std::string_view text);
  void Drop(Role role, std::string_view name, std::string_view text);
  void Select(std::string_view field, std::size_t anchor, std::size_t caret);
  void Click(Role role, std::string_view name);
  void ClickDescribed(std::string_view description);
  void DragSlider(std::string_view name, const std::vector<std::int64_t>& positions);
  void TurnWheel(std::string_view slider, std::int64_t notches);
  void PressByAssistiveTechnology(std::string_view button);
  // An item by its texts, such as "Edit/Copy", after the menu has been opened. False where the item
  // is disabled.
  bool Choose(std::string_view path);
  void Close(std::string_view title);
  // A click on another window of the program, or on another program's.
  void ActivateWindow(std::string_view title);
  void SwitchAway();
  void LetTimePass(std::chrono::milliseconds time);
  void SetClipboard(std::string_view text) { clipboard_ = text; }
  // The images that can be opened; by default every one can.
  void RemovePictures() { has_pictures_ = false; }

  // What a user sees.
  //
  // The titles of the windows on the screen, the front one last.
  std::vector<std::string> Windows() const;
  // The title of the window that has the keys; empty where none has.
  std::string ActiveTitle() const;
  const ShownControl& Sees(Role role, std::string_view name) const;
  const ShownControl& SeesDescribed(std::string_view description) const;
  // What has the keys in the active window; nil where nothing has.
  const ShownControl* Focused() const;
  // Whether an item of the menu bar can be chosen, with the menu opened for it.
  bool CanChoose(std::string_view path);
  int Beeps() const { return beeps_; }
  // What assistive technology has been given to say since the last call.
  std::vector<std::string> Hears() { return std::exchange(announcements_, {}); }
  bool Running() const { return !stopped_; }
  const std::string& Clipboard() const { return clipboard_; }
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
  HeadlessWindow& ActiveView() const;
  HeadlessWindow& Titled(std::string_view title) const;
  HeadlessControl& Find(Role role, std::string_view name) const;
  HeadlessControl& FindDescribed(std::string_view description) const;
  void ClickOn(const HeadlessControl& control);
  Ref<MenuItem> FindItem(std::string_view path) const;

  std::function<void(HeadlessDisplay&)> user_;
  // In the order of the screen, the front one last; hidden ones are among them.
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
