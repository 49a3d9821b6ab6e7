// What a window holds: the roots of the controls.
#include "toolkit/control.h"

#include <array>

#include "toolkit/label.h"
#include "toolkit/runtime.h"
#include "toolkit/window.h"

namespace vamo {

struct Control::Properties {
  static constexpr std::array kRows{
      Declare<&Control::name_>("Name"),
      Declare<&Control::_SetIndex>("Index"),
  };
};

constinit const ClassInfo Control::kClass{"Control", nullptr, Properties::kRows};

struct RectControl::Properties {
  static constexpr std::array kRows{
      Declare<&RectControl::bounds_, &vamo::Bounds::left>("Left"),
      Declare<&RectControl::bounds_, &vamo::Bounds::top>("Top"),
      Declare<&RectControl::bounds_, &vamo::Bounds::width>("Width"),
      Declare<&RectControl::bounds_, &vamo::Bounds::height>("Height"),
      Declare<&RectControl::locks_, &Locks::left>("LockLeft"),
      Declare<&RectControl::locks_, &Locks::top>("LockTop"),
      Declare<&RectControl::locks_, &Locks::right>("LockRight"),
      Declare<&RectControl::locks_, &Locks::bottom>("LockBottom"),
      Declare<&RectControl::tab_index_>("TabIndex"),
      ReadOver<std::int64_t>("TabPanelIndex"),
      Declare<&RectControl::tab_stop_>("TabStop"),
      ReadOver<bool>("AllowAutoDeactivate"),
      Declare<&RectControl::SetEnabled>("Enabled"),
      Declare<&RectControl::tooltip_>("Tooltip"),
      ReadOver<bool>("Transparent"),
      Declare<&RectControl::SetVisible>("Visible"),
      Declare<&RectControl::SetInitialParent>("InitialParent"),
  };
};

constinit const ClassInfo RectControl::kClass{"RectControl", &Control::kClass, Properties::kRows};

void Control::_SetWindow(const Ref<class Window>& window) { window_ = WeakRef(window); }

Ref<Window> Control::Window() const { return Cast<class Window>(window_.Value()); }

void RectControl::SetVisible(bool visible) {
  _UITrap();
  if (visible_ == visible) return;
  visible_ = visible;
  Changed();
}

void RectControl::SetEnabled(bool enabled) {
  _UITrap();
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Changed();
}

Ref<Label> RectControl::LabelledBy() const { return Cast<Label>(labelled_by_.Value()); }

void RectControl::SetAccessibleName(std::string_view name) {
  _UITrap();
  accessible_name_ = name;
  Changed();
}

void RectControl::SetAccessibleDescription(std::string_view description) {
  _UITrap();
  accessible_description_ = description;
  Changed();
}

void RectControl::SetLabelledBy(const Ref<Label>& label) {
  _UITrap();
  labelled_by_ = WeakRef(label);
  Changed();
}

void RectControl::SetInitialParent(std::string_view name) {
  if (name.empty()) return;
  parent_ = WeakRef(Cast<RectControl>(Window()->_ControlByName(name)));
}

void RectControl::Changed() {
  if (view_ != nullptr) view_->Update();
  if (announced_ == Announced::kNot) return;
  if (const Ref<class Window> window = Window()) window->AnnouncedLabelChanged(announced_);
}

}  // namespace vamo
