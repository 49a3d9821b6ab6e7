// What the toolkit asks of a display.
//
// The toolkit's objects hold all state: texts, positions, visibility, what is enabled, who has the
// focus. A display shows that state and reports what the user did, by the `User...` operations of
// Window, TextEdit, Slider and PushButton and by those of menu_service.h. It decides nothing. All
// lengths and positions are logical pixels: scale factors live in the display alone. All calls come
// on the main thread.
//
// Each report is an event of its own, which Runtime::Dispatch runs: an exception that leaves it
// ends there, and what was reported may have closed the window and destroyed its view. The reports
// of focus, caret and selection run no handler and so are no events: UserFocused, UserClicked,
// UserSelected and UserDeactivated.
//
// A key that Window::UserPressedKey leaves alone (false) is the display's: where it moves the caret
// or selects, the display does that as its platform does and then reports TextEdit::UserSelected.
//
// When the active window is hidden or closed, the foremost of the others becomes the active one. A
// window manager sees to that; a display without one has WindowOrder for it.
#ifndef VAMO_TOOLKIT_RUNTIME_DISPLAY_H_
#define VAMO_TOOLKIT_RUNTIME_DISPLAY_H_

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace vamo {

// What there is to be shown. A display knows these classes, this interface only their names.
class Canvas;
class Label;
class PushButton;
class Rectangle;
class Slider;
class TextArea;
class TextField;
class Window;

// A control, as an object of one of the classes that a display shows. A display that visits it and
// forgets a class does not compile.
using AnyControl =
    std::variant<Canvas*, Label*, PushButton*, Rectangle*, Slider*, TextArea*, TextField*>;

// One function object of several, for a visit.
template <class... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

// One control on a display.
class ControlView {
 public:
  virtual ~ControlView() = default;

  // Called by the control when anything that it shows has changed: text, selection, position,
  // visibility, whether it is enabled. Must show the control's present state before it returns to
  // the event loop, and must not report the change back as the user's.
  virtual void Update() = 0;
};

// One window on a display. It is destroyed when the window has been closed, which may be inside a
// report of this very view.
class WindowView {
 public:
  virtual ~WindowView() = default;

  // Called once for each control, in the order of creation, after the control has got its initial
  // state and before the window is first shown. The control outlives what is returned.
  virtual std::unique_ptr<ControlView> CreateControl(AnyControl control) = 0;

  // Called by Window::Show: must bring the window on the screen. With `activate`, in front and as
  // the active window, and must report the activation with Window::UserActivated once it has taken
  // place. Without, the keyboard focus stays with the program that has it.
  virtual void Show(bool activate) = 0;

  // Called by Window::Hide: must take the window off the screen and keep it for a later Show.
  virtual void Hide() = 0;

  // Called when another control has got the focus, or none: must send the keys there.
  virtual void UpdateFocus() = 0;
};

// A timer that a display runs. Destroying it stops it.
class RunningTimer {
 public:
  virtual ~RunningTimer() = default;
};

// An image that a display has decoded. What is in it, only the display knows.
class DisplayPicture {
 public:
  virtual ~DisplayPicture() = default;
};

// The screen, the keyboard, the clock, the clipboard and the loudspeaker.
class Display {
 public:
  virtual ~Display() = default;

  // Called once by the start-up's last step: takes the user's events until Stop is called. Where
  // the platform owns the event loop, lets the events come and returns at once.
  virtual void Run() = 0;

  // Called when the program is to end: must take no more events once the running one has ended, and
  // then make Run return or, where it has returned long ago, have the program finished.
  virtual void Stop() = 0;

  // Called while a window is constructed, after it has got its state and its controls. The window
  // outlives what is returned.
  virtual std::unique_ptr<WindowView> OpenWindow(Window& window) = 0;

  // Sounds the system alert, where the platform has one, and shows it for a moment.
  virtual void Beep() = 0;

  // Called with a sentence, never an empty one, about the active window: must have assistive
  // technology speak it where there is any, and shows nothing. The keys stay where they are.
  virtual void Announce(std::string_view sentence) = 0;

  // Called by Picture::_OpenFromApp: the image of that file name among the application's resources,
  // or null where there is none or it cannot be decoded.
  virtual std::shared_ptr<DisplayPicture> OpenPicture(std::string_view file_name) = 0;

  // Called by a Timer that is set going: must call `fire` from the event loop, and so inside no
  // other event, each time `period` has passed, until the result is destroyed, perhaps by `fire`
  // itself. The period is above 0 and may be longer than any clock of the platform can count.
  virtual std::unique_ptr<RunningTimer> StartTimer(std::chrono::milliseconds period,
                                                   std::function<void()> fire) = 0;

  // The clipboard's text in UTF-8, empty where it holds none; called for Paste alone. It may take
  // long: the text may have to come from another program, which may hang.
  virtual std::string ClipboardText() = 0;

  // Whether Paste may find a text, called each time that the menus are brought up to date: must be
  // answered without asking another program, and with true where that is not possible.
  virtual bool ClipboardMayHoldText() const = 0;

  // Called for Cut and Copy, with text that is not empty and whose lines end with a line feed; must
  // give it the platform's own line ends.
  virtual void SetClipboardText(std::string_view text) = 0;

  // Whether a menu bar lives in its window, so that a program without any window is out of reach.
  virtual bool MenuBarsLiveInWindows() const = 0;

  // Whether Tab goes on, past the last control of a window, to what lies around the program.
  virtual bool TabLeavesWindows() const = 0;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_RUNTIME_DISPLAY_H_
