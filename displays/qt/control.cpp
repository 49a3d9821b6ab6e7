#include "displays/qt/control.h"

#include <QScopedValueRollback>

#include "displays/qt/convert.h"
#include "toolkit/window/window.h"

namespace vamo {

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
  // Each of these setters notifies assistive technology even if nothing changes.
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
  if (reason != Qt::OtherFocusReason || !IsUsersDoing()) return;
  if (const Ref<Window> window = control_->Window()) window->UserFocused(Self(control_));
}

}  // namespace vamo
