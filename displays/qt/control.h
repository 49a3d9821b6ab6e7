#ifndef VAMO_DISPLAYS_QT_CONTROL_H_
#define VAMO_DISPLAYS_QT_CONTROL_H_

#include <QPointer>
#include <QWidget>

#include "toolkit/control/control.h"
#include "toolkit/runtime/display.h"

namespace vamo {

// The widget of a control: shows the control's state and reports what the user does to it. It does
// not place itself. It may outlive the control for a short time and then does nothing.
class ControlWidget {
 public:
  explicit ControlWidget(RectControl& control) : control_(&control) {}
  virtual ~ControlWidget() = default;
  ControlWidget(const ControlWidget&) = delete;
  ControlWidget& operator=(const ControlWidget&) = delete;

  virtual QWidget& AsWidget() = 0;
  // Null once the control's view is destroyed.
  RectControl* Control() const { return control_; }
  void Detach() { control_ = nullptr; }

  // Scales everything by `factor`. The parent places the widget.
  void Rescale(double factor);
  // Places the widget in the control's box.
  virtual void SetBox(const QRect& box) { AsWidget().setGeometry(box); }
  // Shows the control's current state.
  void Refresh();

 protected:
  virtual void ShowState() = 0;
  // Shows what the control's stream has set and nothing changes later. Called again when the factor
  // changes.
  virtual void ShowLook() {}
  double Factor() const { return factor_; }
  // Whether the current change is the user's.
  bool IsUsersDoing() const { return control_ != nullptr && !refreshing_; }
  // Call this when the widget has received the focus: reports it if assistive technology has moved
  // it here. PressRouter reports the presses.
  void ReportFocus(Qt::FocusReason reason);

 private:
  void ShowCommonState();

  RectControl* control_;
  double factor_ = 1;
  bool refreshing_ = false;
};

// The widget of a control of one class.
template <class QtWidget, class ControlClass>
class WidgetFor : public QtWidget, public ControlWidget {
 public:
  WidgetFor(ControlClass& control, QWidget& parent) : QtWidget(&parent), ControlWidget(control) {}

  QWidget& AsWidget() override { return *this; }

 protected:
  ControlClass& TheControl() const { return static_cast<ControlClass&>(*Control()); }
};

// The view through which a control updates its widget. It does not own the widget: the window's
// widget does.
class QtControlView : public ControlView {
 public:
  explicit QtControlView(ControlWidget& widget) : alive_(&widget.AsWidget()), widget_(widget) {}
  ~QtControlView() override {
    if (alive_ != nullptr) widget_.Detach();
  }
  void Update() override {
    if (alive_ != nullptr) widget_.Refresh();
  }

 private:
  QPointer<QWidget> alive_;
  ControlWidget& widget_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_CONTROL_H_
