// What a window holds: the roots of the controls.
#ifndef VAMO_TOOLKIT_CONTROL_CONTROL_H_
#define VAMO_TOOLKIT_CONTROL_CONTROL_H_

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "toolkit/object/class_info.h"
#include "toolkit/object/object.h"
#include "toolkit/object/ui_trap.h"
#include "toolkit/runtime/display.h"
#include "toolkit/runtime/key.h"
#include "toolkit/style.h"

namespace vamo {

class Label;
// A control can tell which window holds it. It asks nothing of it: a window knows its controls, not
// the other way round.
class Window;

// What a window asks of everything that it holds under a name, be it a control or not.
class _PaneChild {
 public:
  virtual ~_PaneChild() = default;
  // The window keeps its children alive; none of them keeps the window alive.
  virtual void _SetWindow(const Ref<class Window>& window) = 0;
  // The window, or nil before _SetWindow and once the window has gone.
  virtual Ref<class Window> Window() const = 0;
  // The place in a control set.
  virtual std::int64_t _Index() const = 0;
  virtual void _SetIndex(std::int64_t index) = 0;
};

// The root of the controls: it knows its name and its window. It has no place on the screen.
class Control : public Object, public _PaneChild {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  const std::string& Name() const { return Trapped(name_); }
  void _SetWindow(const Ref<class Window>& window) override { window_ = WeakRef(Trapped(window)); }
  Ref<class Window> Window() const override { return Trapped(window_.Value()); }
  std::int64_t _Index() const override { return Trapped(index_); }
  void _SetIndex(std::int64_t index) override { index_ = Trapped(index); }

 private:
  struct Properties;

  std::string name_;
  WeakRef<class Window> window_;
  std::int64_t index_ = 0;
};

// A control with a rectangle on the window. It holds what all visible controls have in common; what
// a key or the mouse does to it is up to its subclasses.
class RectControl : public Control {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  const vamo::Bounds& Bounds() const { return Trapped(bounds_); }
  const vamo::Locks& Locks() const { return Trapped(locks_); }
  // The name of the control in which this one lies; empty where it lies on the window itself.
  // Bounds are the window's coordinates in both cases.
  const std::string& InitialParent() const { return Trapped(initial_parent_); }

  bool Visible() const { return Trapped(visible_); }
  void SetVisible(bool visible);
  bool Enabled() const { return Trapped(enabled_); }
  void SetEnabled(bool enabled);
  const std::string& Tooltip() const { return Trapped(tooltip_); }

  std::int64_t TabIndex() const { return Trapped(tab_index_); }
  bool TabStop() const { return Trapped(tab_stop_); }
  void SetTabStop(bool tab_stop);
  // Whether the control can have the keys at all, now.
  bool CanTakeFocus() const { return Trapped(TakesKeys() && enabled_ && visible_); }

  // What a screen reader says of the control. A label without a name of its own is read by its
  // text.
  const std::string& AccessibleName() const { return Trapped(accessible_name_); }
  const std::string& AccessibleDescription() const { return Trapped(accessible_description_); }
  void SetAccessibleName(std::string_view name);
  void SetAccessibleDescription(std::string_view description);
  // The caption that stands for this control, or nil.
  Ref<Label> LabelledBy() const { return Trapped(labelled_by_.Value()); }
  void SetLabelledBy(const Ref<Label>& label);

  // Called by the window when a key comes while this control has the focus. True: the key has been
  // dealt with. False: it is free for the window, and then for the display.
  virtual bool TakeKey(const Key& /*key*/) { return false; }
  // Called by the window when Tab has brought the focus here, or a click that was no drag.
  virtual void EnteredByTab() {}
  virtual void EnteredByClick() {}
  // Called by the window with a text that an input method has typed as a whole, in valid UTF-8: the
  // characters that are then typed one by one.
  virtual std::string Typed(std::string_view text) const { return std::string(text); }

  // Called once by the window: makes the control's part on the display.
  void Open(WindowView& window_view) { view_ = window_view.CreateControl(AsAny()); }
  // Calls `changed`, too, after each change of something that is shown. One observer at most.
  void SetObserver(std::function<void()> changed) { observer_ = std::move(changed); }
  // Gives up the part on the display and the observer.
  void TakeOffDisplay();

 protected:
  virtual AnyControl AsAny() = 0;
  // Whether keys mean anything to controls of this class.
  virtual bool TakesKeys() const { return false; }
  // Shows the present state. To be called after each change of something that is shown.
  void Changed();

 private:
  struct Properties;

  vamo::Bounds bounds_;
  vamo::Locks locks_;
  std::string initial_parent_;
  std::int64_t tab_index_ = 0;
  bool tab_stop_ = true;
  bool enabled_ = true;
  bool visible_ = true;
  std::string tooltip_;
  std::string accessible_name_;
  std::string accessible_description_;
  WeakRef<Label> labelled_by_;
  std::unique_ptr<ControlView> view_;
  std::function<void()> observer_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_CONTROL_CONTROL_H_
