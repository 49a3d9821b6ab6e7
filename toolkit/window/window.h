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
class Pane;

// A control's accessibility data: name, description, caption, shortcut. An empty field means none.
struct AccessibleText {
  std::string_view control;
  std::string_view name = {};
  std::string_view description = {};
  // The label that is the caption of the control.
  std::string_view labelled_by = {};
  // For a label or a text: when it is announced.
  Announced announced = Announced::kNot;
  // For a slider: assistive technology reads its position divided by this.
  std::int64_t positions_per_unit = 1;
  // For a button: the key that presses it from anywhere in the window.
  std::optional<KeyCode> pressed_by = std::nullopt;
  // For a label: whether its text describes the whole window.
  bool describes_window = false;
};

// What a window is for. The numbers are those of the property Type.
enum class WindowType : std::int64_t {
  kWorking = 0,
  // Without a frame, over the working window or in the middle of the screen.
  kSplash = 2,
  // Shown beside the working window; Escape and the command key with W close it.
  kReading = 7
};

// A window: its state, its children, its focus, and how it handles keys and presses. It draws
// nothing itself and knows nothing about its subclasses.
class Window : public Object {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }
  ~Window() override { TakeOffDisplay(); }

  // Raises Close and then ends the window: it is no longer live, and its timers stop.
  virtual void Close();
  // Builds the window: its state, its controls, its view, its menu handlers. It is then live, and
  // shows itself if its initial state is visible.
  virtual void Constructor();
  // The controls in the order of their creation, without other children.
  virtual std::vector<Ref<RectControl>> Controls() const;
  // Hides the window. It stays live and keeps its state.
  virtual void Hide();
  virtual void SetFocus(const Ref<RectControl>& control);
  // Shows the window, brings it to the front and activates it. When a timer calls this, a visible
  // window stays where it is, even if minimised, and a hidden one is activated only if a window of
  // this program is active.
  virtual void Show();
  // Adds a control or another child to the window, under a name.
  virtual void _AddControl(std::string_view name, const Ref<Object>& child);
  // Adds the handler of the menu item of that name. The first handler added for a name stays.
  virtual void _AddMenuHandler(std::string_view name, MenuHandler handler);
  // The child of that name, or nil.
  virtual Ref<Object> _ControlByName(std::string_view name) const;
  // Allocates a control or another child for this window. Its name and properties are set later.
  // Raises UnsupportedOperationException for a class of which windows hold no objects.
  virtual Ref<Object> __New(const ClassInfo& child_class);

  // The events. A class implements one by overriding it; the default does nothing. `Layout` and
  // `CreateControls` come while the window is constructed. `KeyDown` comes for every key except
  // bare modifiers and the shortcuts of enabled items, with an empty text if the key carries no
  // character. `KeyDown` and `MouseDown` return True if they have handled the event.
  virtual void Layout() {}
  virtual void CreateControls() {}
  virtual void AddMenuHandlers(const Ref<Window>& /*window*/) {}
  virtual void Event_Close() {}
  virtual void Event_Activate() {}
  virtual void Event_EnableMenuItems() {}
  virtual bool Event_KeyDown(std::string /*key*/) { return false; }
  virtual bool Event_MouseDown(std::int64_t /*x*/, std::int64_t /*y*/) { return false; }
  // The accessibility data of the controls, applied once the controls exist.
  virtual std::span<const AccessibleText> AccessibleTexts() const { return {}; }
  // The pane at the window's side, or null if the class has none.
  virtual Pane* SidePane() { return nullptr; }

  bool IsLive() const { return Trapped(view_ != nullptr); }

  // Create and find a child of the class `ChildClass`.
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

  // The initial state, as the window's stream sets it. Lengths are in logical pixels.
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
  // The title or, if it is empty, the program's name: wherever a display names the window, in its
  // title bar, in a list of windows or to a screen reader.
  std::string ListedTitle() const;
  bool IsSplash() const { return Trapped(state_.type == WindowType::kSplash); }
  bool IsReading() const { return Trapped(state_.type == WindowType::kReading); }
  bool Visible() const { return Trapped(visible_); }

  // Where a display puts the window when it shows it, as far as it can.
  struct Placement {
    enum class Rule {
      // Its last place, or where the platform puts a new window.
      kAnywhere,
      kMiddleOfScreen,
      // Centred over the other window or, if that is hidden by now, over its last place.
      kOver,
      // To the right of the other window or, if the screen has no room there, to its left; if
      // neither side has room, as far to the larger side as possible.
      kBeside
    };
    Rule rule = Rule::kAnywhere;
    Ref<Window> other = nullptr;
    // Whether it belongs to the other window and so stays in front of it.
    bool stays_with_other = false;
  };
  Placement WhereToShow() const;

  // The control that contains `control`, or nil if the window itself does.
  Ref<RectControl> ParentOf(const RectControl& control) const {
    const std::string& name = control.InitialParent();
    return name.empty() ? nullptr : ControlNamed<RectControl>(name);
  }
  // The control that has the focus while the window is active, or nil.
  const Ref<RectControl>& Focus() const { return Trapped(focus_); }

  // The description that a screen reader reads in addition to the title; may be empty.
  std::string AccessibleDescription() const;
  // The key that presses a control from anywhere in the window.
  std::optional<KeyCode> KeyThatPresses(const RectControl& control) const;

  // Has the display show the pane's current state. Returns false if the screen has no room for it.
  bool ShowPane() { return IsLive() && view_->ShowPane(); }

  // What a display reports.
  //
  // The window has been activated or deactivated.
  void UserActivated();
  void UserDeactivated();
  // The user has clicked the close button or its equivalent.
  void UserAskedToClose();
  // A key. True: it is handled. False: the display may do what its platform does with the key.
  // Repeats of a key that has dismissed another window are ignored.
  bool UserPressedKey(const Key& key);
  // Text from an input method, from dictation or from an on-screen keyboard. It is handled as keys,
  // one by one.
  void UserTyped(std::string_view text);
  // A press of a mouse button or finger begins in the window. A display must report it before
  // anything that follows from it. Activates the window first, in whatever order the platform
  // reports the two. `repeat`: a further press, as in a double click. False: the previous press
  // dismissed another window, and the display must ignore this one.
  bool UserBeginsPress(bool repeat);
  // The mouse was pressed at (x, y) in the window, where no enabled control handles it.
  void UserPressedMouse(std::int64_t x, std::int64_t y);
  // The user has moved the focus to a control, for example with the mouse.
  void UserFocused(const Ref<RectControl>& control);
  // A press on a control has ended there. If the press activated the window or focused the control,
  // the control is entered by the click.
  void UserClicked(const Ref<RectControl>& control);

 private:
  // Destroys the window's view without raising an event, and stops its timers.
  void TakeOffDisplay();
  struct Child {
    std::string name;
    Ref<Object> object;
  };

  struct Properties;
  void ApplyAccessibleTexts();
  void MakeView();
  bool HandleKey(const Key& key);
  // Presses the button whose key it is. Returns whether there is one.
  bool PressButton(const Key& key);
  // Moves the focus to the next control. Returns false if Tab leaves the window instead.
  bool MoveFocus(bool backwards);

  State state_;
  bool visible_ = false;
  bool has_been_shown_ = false;
  std::vector<Child> children_;
  Ref<RectControl> focus_;
  // Whether the current press activated the window or moved the focus to `focus_`.
  bool entered_by_press_ = false;
  Ref<class MenuBar> menu_bar_;
  vamo::MenuHandlers menu_handlers_;
  Announcer announcer_{*this};
  std::unique_ptr<WindowView> view_;
};

// The live window whose class has that name, visible or hidden; nil if there is none.
Ref<Window> _GetImplicitWindow(std::string_view class_name);

// The one live window of a class, created if there is none.
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
