#ifndef VAMO_TOOLKIT_WINDOW_WINDOW_H_
#define VAMO_TOOLKIT_WINDOW_WINDOW_H_

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/control/control.h"
#include "toolkit/object/class_info.h"
#include "toolkit/object/object.h"
#include "toolkit/object/ui_trap.h"
#include "toolkit/runtime/application.h"
#include "toolkit/runtime/display.h"
#include "toolkit/runtime/key.h"
#include "toolkit/window/announcer.h"

namespace vamo {

class MenuBar;

// What one control is to those who do not see it or hold no mouse, beside its text. Empty: nothing
// of the kind.
struct AccessibleText {
  std::string_view control;
  std::string_view name = {};
  std::string_view description = {};
  // The label that is the control's caption.
  std::string_view labelled_by = {};
  // Of a label or a text.
  Announced announced = Announced::kNot;
  // Of a slider.
  std::int64_t positions_per_unit = 1;
  // The key that presses a button, from anywhere in the window.
  std::optional<KeyCode> pressed_by = std::nullopt;
  // Whether a label's text is the description of the whole window.
  bool describes_window = false;
};

// What a window is for. The numbers are those of the property Type.
enum class WindowType : std::int64_t {
  kWorking = 0,
  // Without a frame, in the middle of the screen.
  kSplash = 2,
  // To be read beside the working window; Escape and the command key with W close it.
  kReading = 7
};

// A window: its state, its children, its focus, and what becomes of the user's keys and presses. It
// shows nothing by itself, and it knows nothing of what its subclasses are for.
class Window : public Object {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }
  ~Window() override { TakeOffDisplay(); }

  // Raises Close and ends the window: it is live no longer, and none of its timers fires.
  virtual void Close();
  // Builds the window: its own state, its controls, its part on the display, its menu handlers;
  // then it is live, and comes on the screen where its state says Visible.
  virtual void Constructor();
  // The controls in the order of their creation; other children are not among them.
  virtual std::vector<Ref<RectControl>> Controls() const;
  // Makes the window invisible. It stays live, with its state.
  virtual void Hide();
  virtual void SetFocus(const Ref<RectControl>& control);
  // Makes the window visible, brings it to the front and gives it the focus. When a timer shows it,
  // a window that is visible already stays where it is, minimised perhaps, and one that is not gets
  // the focus only from another window of this program.
  virtual void Show();
  // Enters a control, or another child, in the window under its name.
  virtual void _AddControl(std::string_view name, const Ref<Object>& child);
  // Enters the function for the menu item of that name. The first one entered for a name stands.
  virtual void _AddMenuHandler(std::string_view name, MenuHandler handler);
  // The child of that name, or nil.
  virtual Ref<Object> _ControlByName(std::string_view name) const;
  // Allocates a control, or another child, of a class for this window. Its properties and its name
  // come later.
  virtual Ref<Object> __New(const ClassInfo& child_class);

  // The events. A class implements one by overriding it; else the toolkit's default stands, which
  // is to do nothing. `Layout` and `CreateControls` come while the window is constructed; `KeyDown`
  // for every key but a bare modifier and an enabled item's shortcut, with the empty text for one
  // that carries no character; True of `KeyDown` and `MouseDown` ends the event.
  virtual void Layout() {}
  virtual void CreateControls() {}
  virtual void AddMenuHandlers(const Ref<Window>& /*window*/) {}
  virtual void Event_Close() {}
  virtual void Event_Activate() {}
  virtual void Event_EnableMenuItems() {}
  virtual bool Event_KeyDown(std::string /*key*/) { return false; }
  virtual bool Event_MouseDown(std::int64_t /*x*/, std::int64_t /*y*/) { return false; }
  // The table that is applied once the controls are there.
  virtual std::span<const AccessibleText> AccessibleTexts() const { return {}; }

  bool IsLive() const { return Trapped(view_ != nullptr); }
  // Gives up the window's part on the display, without an event, and stops its timers. The run time
  // does so at the program's end.
  void TakeOffDisplay();

  // A child of the class `ChildClass`, allocated or found by its name.
  template <class ChildClass>
  Ref<ChildClass> __New() {
    return Cast<ChildClass>(__New(ChildClass::kClass));
  }
  template <class ChildClass>
  Ref<ChildClass> ControlNamed(std::string_view name) const {
    return Cast<ChildClass>(_ControlByName(name));
  }

  const vamo::MenuHandlers& MenuHandlers() const { return Trapped(menu_handlers_); }
  const Ref<class MenuBar>& MenuBar() const;
  void SetMenuBar(Ref<class MenuBar> menu_bar);

  // The initial state, as the window's stream gives it. Lengths in logical pixels.
  struct State {
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::int64_t minimum_width = 0;
    std::int64_t minimum_height = 0;
    std::int64_t maximum_width = 0;
    std::int64_t maximum_height = 0;
    WindowType type = WindowType::kWorking;
    std::string title;
    bool has_close_button = true;
    bool has_maximize_button = false;
    bool has_minimize_button = true;
    bool resizeable = false;
    bool visible = true;
    bool has_background_colour = false;
    Colour background_colour;
  };
  const State& InitialState() const { return Trapped(state_); }
  // What a list of windows shows: the title, or else the program's name.
  std::string ListedTitle() const;
  bool IsSplash() const { return Trapped(state_.type == WindowType::kSplash); }
  bool IsReading() const { return Trapped(state_.type == WindowType::kReading); }
  // A splash has one size, whatever its state says: a desktop that tiles its windows would make a
  // poster of it.
  bool CanBeResized() const { return Trapped(state_.resizeable && !IsSplash()); }
  bool Visible() const { return Trapped(visible_); }

  // Where a display is to put the window that it brings on the screen, as far as it can.
  struct Placement {
    enum class Rule {
      // Where it was, or else where the platform puts a new window.
      kAnywhere,
      kMiddleOfScreen,
      // Its middle where the other window has or, if that is hidden by now, had its own.
      kOver,
      // Right of the other window, else left of it, where the screen has the room; else as far to
      // the freer side as it has.
      kBeside
    };
    Rule rule = Rule::kAnywhere;
    Ref<Window> other = nullptr;
    // Whether it stays in front of the other one, and goes where that one goes.
    bool stays_with_other = false;
  };
  Placement WhereToShow() const;

  // The control in which another one lies, or nil where that lies on the window itself.
  Ref<RectControl> ParentOf(const RectControl& control) const {
    const std::string& name = control.InitialParent();
    return name.empty() ? nullptr : ControlNamed<RectControl>(name);
  }
  // The control that has the keys while the window is active, or nil.
  const Ref<RectControl>& Focus() const { return Trapped(focus_); }

  // What a screen reader says of the window beside its title; empty for nothing.
  std::string AccessibleDescription() const;
  // The key that presses a control from anywhere in the window.
  std::optional<KeyCode> KeyThatPresses(const RectControl& control) const;

  // What a display reports.
  //
  // The window has become the one that the user's keys go to, or has ceased to be.
  void UserActivated();
  void UserDeactivated();
  // The close button, or what stands for it.
  void UserAskedToClose();
  // A key. True: it has been dealt with. False: the display may do what its platform does with it.
  // The repeats of a key that has dismissed another window do nothing.
  bool UserPressedKey(const Key& key);
  // Text from an input method, from dictation or from a keyboard on the screen: taken as keys, one
  // by one.
  void UserTyped(std::string_view text);
  // A press of any mouse button, or of a finger, begins somewhere in the window; to be reported
  // before all that comes of it. `repeat`: it follows another press as in a double click. The
  // window becomes the active one first, so that the press acts on an active window, whichever the
  // platform reports first. False: the press before has dismissed another window, and the display
  // ignores this one.
  bool UserBeginsPress(bool repeat);
  // The mouse has gone down, on no enabled control that takes it. Window coordinates.
  void UserPressedMouse(std::int64_t x, std::int64_t y);
  // The user has brought the focus to a control, for example with the mouse.
  void UserFocused(const Ref<RectControl>& control);
  // A press on a control has ended there. The press that has brought the focus enters the control
  // as Tab does.
  void UserClicked(const Ref<RectControl>& control);

 private:
  struct Child {
    std::string name;
    Ref<Object> object;
  };

  struct Properties;
  void ApplyAccessibleTexts();
  void MakeView();
  bool TakeKey(const Key& key);
  // Presses the button that the key is for. Whether there is one.
  bool PressButton(const Key& key);
  // Takes the keys to the next control. False: there is none, and they go on from here.
  bool MoveFocus(bool backwards);

  State state_;
  bool visible_ = false;
  bool has_been_shown_ = false;
  std::vector<Child> children_;
  Ref<RectControl> focus_;
  // Whether the present press has brought the focus to `focus_`.
  bool entered_by_press_ = false;
  Ref<class MenuBar> menu_bar_;
  vamo::MenuHandlers menu_handlers_;
  Announcer announcer_{*this};
  std::unique_ptr<WindowView> view_;
};

// The live window whose class has that name, hidden or not; nil where there is none.
Ref<Window> _GetImplicitWindow(std::string_view class_name);

// The one live window of a class, which is made when there is none.
template <class WindowClass>
Ref<WindowClass> ImplicitInstance() {
  Ref<Window> window = _GetImplicitWindow(WindowClass::kClass.name);
  if (!window) {
    window = New<WindowClass>();
    window->Constructor();
  }
  return Cast<WindowClass>(window);
}

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_WINDOW_H_
