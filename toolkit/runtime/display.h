// What the toolkit asks of a display.
//
// The toolkit's objects hold all state: texts, positions, visibility, what is enabled and what has
// the focus. A display shows that state, and reports what the user does by calling the `User...`
// operations of Window, TextEdit, Slider and PushButton and those of menu_service.h. It decides
// nothing. All lengths and positions are in logical pixels; only the display knows scale factors.
// All calls are made on the main thread.
//
// Each report is a separate event, which Runtime::Dispatch runs: an exception that leaves it stops
// there, and the report may close the window and so destroy its view. UserFocused, UserClicked,
// UserSelected and UserDeactivated are not events, because they run no handler.
//
// If Window::UserPressedKey returns false, the display handles the key: if the platform moves the
// caret or selects at this key, so does the display, and then reports TextEdit::UserSelected.
//
// When the active window is hidden or closed, another visible window must be activated. A display
// without a window manager uses WindowOrder, which takes the front one.
#ifndef VAMO_TOOLKIT_RUNTIME_DISPLAY_H_
#define VAMO_TOOLKIT_RUNTIME_DISPLAY_H_

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace vamo {

// What a display shows. It knows these classes; this interface knows only their names.
class Canvas;
class Label;
class PushButton;
class Rectangle;
class Slider;
class TextArea;
class TextField;
class Window;

// A control of one of the classes that a display shows. A display that visits it and forgets a
// class does not compile.
using AnyControl =
    std::variant<Canvas*, Label*, PushButton*, Rectangle*, Slider*, TextArea*, TextField*>;

// Several function objects in one, for a visit.
template <class... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

// A control on a display.
class ControlView {
 public:
  virtual ~ControlView() = default;

  // Called by the control after a change of anything that it shows: text, selection, position,
  // visibility, whether it is enabled. Must show the control's current state before it returns to
  // the event loop, and must not report the change as the user's.
  virtual void Update() = 0;
};

// A window on a display. It is destroyed when the window closes, possibly inside a report of this
// very view.
class WindowView {
 public:
  virtual ~WindowView() = default;

  // Called once for each control, in the order of creation, after the control has its initial state
  // and before the window is first shown. The control outlives the returned view.
  virtual std::unique_ptr<ControlView> CreateControl(AnyControl control) = 0;

  // Called by Window::Show: must show the window. With `activate`, must bring it to the front and
  // activate it, and report the activation with Window::UserActivated once it has happened. Without
  // `activate`, must leave the keyboard focus to the program that has it.
  virtual void Show(bool activate) = 0;

  // Called by Window::Hide: must take the window off the screen and keep it for a later Show.
  virtual void Hide() = 0;

  // Called when the window's pane has been opened or closed and, while it is open, at the end of
  // each event that has changed it: must show the pane's current state before it returns to the
  // event loop. Returns false if the screen has no room for the pane.
  virtual bool ShowPane() = 0;

  // Called when another control, or none, has received the focus: must move the keyboard focus
  // there.
  virtual void UpdateFocus() = 0;
};

// A timer that a display runs. Destroying it stops it.
class RunningTimer {
 public:
  virtual ~RunningTimer() = default;
};

// An image that a display has decoded. Only that display knows what is in it.
class DisplayPicture {
 public:
  virtual ~DisplayPicture() = default;
};

// The screen, the keyboard, the clock, the clipboard and the loudspeaker.
class Display {
 public:
  virtual ~Display() = default;

  // Called once by the last step of start-up: runs the event loop until Stop is called. If the
  // platform owns the event loop, returns at once, and the events come later.
  virtual void Run() = 0;

  // Called when the program is to end: must handle no more events after the current one, and then
  // make Run return or, if it has returned already, make the program finish.
  virtual void Stop() = 0;

  // Called while a window is constructed, after it has its state and its controls. The window
  // outlives the returned view.
  virtual std::unique_ptr<WindowView> OpenWindow(Window& window) = 0;

  // Sounds the system alert, if the platform has one, and shows it for a moment.
  virtual void Beep() = 0;

  // Called with a sentence, never an empty one, about the active window: must have assistive
  // technology, if there is any, speak it. Shows nothing and does not move the focus.
  virtual void Announce(std::string_view sentence) = 0;

  // Called by Picture::_OpenFromApp: returns the image of that file name in the application's
  // resources, or null if there is none or it cannot be decoded.
  virtual std::shared_ptr<DisplayPicture> OpenPicture(std::string_view file_name) = 0;

  // Called to start a timer: must call `fire` from the event loop, so never inside another event,
  // each time `period` has passed, until the result is destroyed, perhaps by `fire` itself. The
  // period is above 0 and may be longer than the platform's timers can count.
  virtual std::unique_ptr<RunningTimer> StartTimer(std::chrono::milliseconds period,
                                                   std::function<void()> fire) = 0;

  // Returns the clipboard's text in UTF-8, empty if it holds none. Called only for Paste. It may
  // take long, because the text may have to come from another program, which may hang.
  virtual std::string ClipboardText() = 0;

  // Whether the clipboard may hold text. Called each time the menus are updated, so it must not ask
  // another program; if it cannot tell, it returns true.
  virtual bool ClipboardMayHoldText() const = 0;

  // Called for Cut and Copy, with text that is not empty and whose lines end with a line feed; must
  // convert these to the platform's own line ends.
  virtual void SetClipboardText(std::string_view text) = 0;

  // Whether menu bars are part of their windows, so that the user cannot reach a program without a
  // window.
  virtual bool MenuBarsLiveInWindows() const = 0;

  // Whether Tab goes on from the last control of a window to what surrounds the program.
  virtual bool TabLeavesWindows() const = 0;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_RUNTIME_DISPLAY_H_
