// What the widgets of all controls have in common.
#include "displays/qt/control.h"

#include <QScopedValueRollback>

#include "displays/qt/button.h"
#include "displays/qt/convert.h"
#include "displays/qt/label.h"
#include "displays/qt/shapes.h"
#include "displays/qt/slider.h"
#include "displays/qt/text_area.h"
#include "displays/qt/text_field.h"
#include "toolkit/window.h"

namespace vamo {
namespace {

template <class WidgetClass, class ControlClass>
ControlWidget* MakeIf(RectControl& control, QWidget& parent) {
  auto* cast = dynamic_cast<ControlClass*>(&control);
  return cast == nullptr ? nullptr : new WidgetClass(*cast, parent);
}

}  // namespace

void ControlWidget::Rescale(double factor) {
  if (control_ == nullptr) return;
  const QScopedValueRollback<bool> refreshing(refreshing_, true);
  factor_ = factor;
  ShowLook();
  AsWidget().update();
}

void ControlWidget::Refresh() {
  if (control_ == nullptr) return;
  const QScopedValueRollback<bool> refreshing(refreshing_, true);
  ShowCommonState();
  ShowState();
}

void ControlWidget::ShowCommonState() {
  QWidget& widget = AsWidget();
  // Each of these tells assistive technology of a change even where there is none.
  const QString name = ToQString(control_->AccessibleName());
  if (widget.accessibleName() != name) widget.setAccessibleName(name);
  const QString description = ToQString(control_->AccessibleDescription());
  if (widget.accessibleDescription() != description) widget.setAccessibleDescription(description);
  widget.setToolTip(ToQString(control_->Tooltip()));
  widget.setEnabled(control_->Enabled());
  widget.setFocusPolicy(control_->CanTakeFocus() ? Qt::StrongFocus : Qt::NoFocus);
  widget.setVisible(control_->Visible());
}

void ControlWidget::ReportFocus(Qt::FocusReason reason) {
  const bool users = reason == Qt::MouseFocusReason || reason == Qt::OtherFocusReason;
  if (!users || !IsUsersDoing()) return;
  if (const Ref<Window> window = control_->Window()) window->UserFocused(Self(control_));
}

ControlWidget& MakeControlWidget(RectControl& control, QWidget& parent) {
  constexpr ControlWidget* (*kMakers[])(RectControl&, QWidget&) = {
      MakeIf<FieldWidget, TextField>,   MakeIf<AreaWidget, TextArea>,
      MakeIf<LabelWidget, Label>,       MakeIf<SliderWidget, Slider>,
      MakeIf<ButtonWidget, PushButton>, MakeIf<RectangleWidget, Rectangle>,
      MakeIf<CanvasWidget, Canvas>,     MakeIf<BlankWidget, RectControl>,
  };
  ControlWidget* widget = nullptr;
  for (const auto maker : kMakers) {
    if (widget == nullptr) widget = maker(control, parent);
  }
  widget->AsWidget().setObjectName(ToQString(control.Name()));
  return *widget;
}

}  // namespace vamo
