// What a window holds: the roots of the controls.
#ifndef VAMO_TOOLKIT_CONTROL_H_
#define VAMO_TOOLKIT_CONTROL_H_

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "toolkit/class_info.h"
#include "toolkit/display.h"
#include "toolkit/key.h"
#include "toolkit/object.h"

namespace vamo {

class Label;
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

  const std::string& Name() const { return name_; }
  void _SetWindow(const Ref<class Window>& window) override;
  Ref<class Window> Window() const override;
  std::int64_t _Index() const override { return index_; }
  void _SetIndex(std::int64_t index) override { index_ = index; }

 private:
  struct Properties;

  std::string name_;
  WeakRef window_;
  std::int64_t index_ = 0;
};

// A place on a window, in logical pixels from the top left corner of its content area.
struct Bounds {
  std::int64_t left = 0;
  std::int64_t top = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;
};

// Whether and when a change of a label is announced: together with others once they have come to
// rest, or alone in the same moment.
enum class Announced { kNot, kAfterPause, kAtOnce };

// How text on a control is drawn. "System" as the name is the platform's interface font.
struct Font {
  std::string name = "System";
  float size = 12;
  bool bold = false;
  bool italic = false;
  bool underline = false;
};

// A control with a rectangle on the window. It holds what all visible controls have in common; what
// a key or the mouse does to it is its subclasses' matter.
class RectControl : public Control {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  const vamo::Bounds& Bounds() const { return bounds_; }
  // Whether each side keeps its distance to the window's side when the window changes its size.
  struct Locks {
    bool left = false;
    bool top = false;
    bool right = false;
    bool bottom = false;
  };
  const Locks& GetLocks() const { return locks_; }

  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  const std::string& Tooltip() const { return tooltip_; }

  std::int64_t TabIndex() const { return tab_index_; }
  bool TabStop() const { return tab_stop_; }
  // Whether the control can have the keys at all, now.
  bool CanTakeFocus() const { return TakesKeys() && enabled_ && visible_; }

  // The control in which this one lies, or nil where it lies on the window itself. Bounds are the
  // window's coordinates in both cases.
  Ref<RectControl> Parent() const { return Cast<RectControl>(parent_.Value()); }

  // What a screen reader says of the control. A label without a name of its own is read by its
  // text.
  const std::string& AccessibleName() const { return accessible_name_; }
  const std::string& AccessibleDescription() const { return accessible_description_; }
  void SetAccessibleName(std::string_view name);
  void SetAccessibleDescription(std::string_view description);
  void SetAnnounced(Announced announced) { announced_ = announced; }
  // The caption that stands for this control, or nil.
  Ref<Label> LabelledBy() const;
  void SetLabelledBy(const Ref<Label>& label);

  // Called by the window when a key comes while this control has the focus. True: the key has been
  // dealt with. False: it is free for the window, and then for the display.
  virtual bool TakeKey(const Key& /*key*/) { return false; }
  // Called by the window when Tab has brought the focus here.
  virtual void EnteredByTab() {}

  // Called once by the window, with the control's part on the display.
  void SetView(std::unique_ptr<ControlView> view) { view_ = std::move(view); }
  void ReleaseView() { view_ = nullptr; }

 protected:
  // Whether keys mean anything to controls of this class.
  virtual bool TakesKeys() const { return false; }
  // Shows the present state. To be called after each change of something that is shown.
  void Changed();

 private:
  struct Properties;
  void SetInitialParent(std::string_view name);

  vamo::Bounds bounds_;
  Locks locks_;
  std::int64_t tab_index_ = 0;
  bool tab_stop_ = true;
  bool enabled_ = true;
  bool visible_ = true;
  std::string tooltip_;
  WeakRef parent_;
  std::string accessible_name_;
  std::string accessible_description_;
  WeakRef labelled_by_;
  Announced announced_ = Announced::kNot;
  std::unique_ptr<ControlView> view_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_CONTROL_H_
