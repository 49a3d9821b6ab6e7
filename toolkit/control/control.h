// The base classes of what a window holds: children, controls, and controls with a rectangle.
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
// A control knows which window holds it but calls nothing of it.
class Window;

// What a window needs of everything that it holds under a name, whether it is a control or not.
class _PaneChild {
 public:
  virtual ~_PaneChild() = default;
  // The window keeps its children alive; a child must not keep the window alive.
  virtual void _SetWindow(const Ref<class Window>& window) = 0;
  // The window; nil before _SetWindow and once the window is destroyed.
  virtual Ref<class Window> Window() const = 0;
  // The index in a control set.
  virtual std::int64_t _Index() const = 0;
  virtual void _SetIndex(std::int64_t index) = 0;
};

// The base of all controls, with a name and a window but no place on the screen.
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

// A control with a rectangle on the window. It holds what all visible controls have in common; its
// subclasses handle keys and the mouse.
class RectControl : public Control {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  const vamo::Bounds& Bounds() const { return Trapped(bounds_); }
  const vamo::Locks& Locks() const { return Trapped(locks_); }
  // The name of the control that contains this one; empty if the window does. In both cases the
  // bounds are in window coordinates.
  const std::string& InitialParent() const { return Trapped(initial_parent_); }

  bool Visible() const { return Trapped(visible_); }
  void SetVisible(bool visible);
  bool Enabled() const { return Trapped(enabled_); }
  void SetEnabled(bool enabled);
  const std::string& Tooltip() const { return Trapped(tooltip_); }

  std::int64_t TabIndex() const { return Trapped(tab_index_); }
  bool TabStop() const { return Trapped(tab_stop_); }
  void SetTabStop(bool tab_stop);
  // Whether the control can have the focus now.
  bool CanTakeFocus() const { return Trapped(HandlesKeys() && enabled_ && visible_); }

  // What a screen reader reads for the control. For a label without a name it reads the text.
  const std::string& AccessibleName() const { return Trapped(accessible_name_); }
  const std::string& AccessibleDescription() const { return Trapped(accessible_description_); }
  void SetAccessibleName(std::string_view name);
  void SetAccessibleDescription(std::string_view description);
  // The label that is the caption of this control, or nil.
  Ref<Label> LabelledBy() const { return Trapped(labelled_by_.Value()); }
  void SetLabelledBy(const Ref<Label>& label);
  // Whether `control` is this control's caption.
  bool IsLabelledBy(const RectControl& control) const;

  // Called by the window for a key while this control has the focus. True: the key is handled.
  // False: it is left to the window, and then to the display.
  virtual bool HandleKey(const Key& /*key*/) { return false; }
  // Called by the window when Tab, or a press that has ended there, has entered the control.
  virtual void EnteredByTab() {}
  virtual void EnteredByClick() {}
  // Called by the window with text that an input method has entered as a whole, in valid UTF-8.
  // Returns the characters that are then typed one by one.
  virtual std::string Typed(std::string_view text) const { return std::string(text); }

  // Called once by the window: creates the control's view.
  void Open(WindowView& window_view) { view_ = window_view.CreateControl(AsAny()); }
  // Also calls `changed` after each change of something that is shown. There is at most one
  // observer.
  void SetObserver(std::function<void()> changed) { observer_ = std::move(changed); }
  // Destroys the view and drops the observer.
  void TakeOffDisplay();

 protected:
  virtual AnyControl AsAny() = 0;
  // Whether controls of this class handle keys.
  virtual bool HandlesKeys() const { return false; }
  // Shows the current state. Call this after each change of something that is shown.
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
