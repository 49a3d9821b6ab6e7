#include "toolkit/control/control.h"

#include <array>

#include "toolkit/control/label.h"
#include "toolkit/control/properties.h"
#include "toolkit/object/ui_trap.h"

namespace vamo {

struct Control::Properties {
  static constexpr std::array kRows{
      Sets<&Control::name_>(property::kName),
      Sets<&Control::_SetIndex>(property::kIndex),
  };
};

struct RectControl::Properties {
  static constexpr std::array kRows{
      Sets<&RectControl::bounds_, &vamo::Bounds::left>(property::kLeft),
      Sets<&RectControl::bounds_, &vamo::Bounds::top>(property::kTop),
      Sets<&RectControl::bounds_, &vamo::Bounds::width>(property::kWidth),
      Sets<&RectControl::bounds_, &vamo::Bounds::height>(property::kHeight),
      Sets<&RectControl::locks_, &vamo::Locks::left>(property::kLockLeft),
      Sets<&RectControl::locks_, &vamo::Locks::top>(property::kLockTop),
      Sets<&RectControl::locks_, &vamo::Locks::right>(property::kLockRight),
      Sets<&RectControl::locks_, &vamo::Locks::bottom>(property::kLockBottom),
      Sets<&RectControl::tab_index_>(property::kTabIndex),
      Skipped(property::kTabPanelIndex),
      Skipped(property::kAllowAutoDeactivate),
      Sets<&RectControl::SetEnabled>(property::kEnabled),
      Sets<&RectControl::tooltip_>(property::kTooltip),
      Skipped(property::kTransparent),
      Sets<&RectControl::SetVisible>(property::kVisible),
      Sets<&RectControl::initial_parent_>(property::kInitialParent),
  };
};

constinit const ClassInfo Control::kClass{"Control", nullptr, Properties::kRows};
constinit const ClassInfo RectControl::kClass{"RectControl", &Control::kClass, Properties::kRows};
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

void RectControl::SetTabStop(bool tab_stop) {
  _UITrap();
  tab_stop_ = tab_stop;
}

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

bool RectControl::IsLabelledBy(const RectControl& control) const {
  const Ref<Label> caption = LabelledBy();
  return caption && &*caption == &control;
}

void RectControl::SetLabelledBy(const Ref<Label>& label) {
  _UITrap();
  labelled_by_ = WeakRef(label);
  Changed();
}

void RectControl::TakeOffDisplay() {
  view_ = nullptr;
  observer_ = nullptr;
}

void RectControl::Changed() {
  if (view_ != nullptr) view_->Update();
  if (observer_ != nullptr) observer_();
}

}  // namespace vamo
