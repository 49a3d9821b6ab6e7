#ifndef VAMO_DISPLAYS_QT_CONTROL_H_
#define VAMO_DISPLAYS_QT_CONTROL_H_

#include <QPointer>
#include <QWidget>

#include "toolkit/control/control.h"
#include "toolkit/runtime/display.h"

namespace vamo {

// The widget of a control: shows the control's state, and reports what the user does to it. It
// does not place itself. It may live a little longer than the control, and does nothing then.
class ControlWidget {
 public:
  explicit ControlWidget(RectControl& control) : control_(&control) {}
  virtual ~ControlWidget() = default;
  ControlWidget(const ControlWidget&) = delete;
  ControlWidget& operator=(const ControlWidget&) = delete;

  virtual QWidget& AsWidget() = 0;
  // Null when the control's part on the display has been given up.
  RectControl* Control() const { return control_; }
  void Detach() { control_ = nullptr; }

  // Scales everything by `factor`. The place is up to the parent.
  void Rescale(double factor);
  // Puts the widget where the control's box is.
  virtual void SetBox(const QRect& box) { AsWidget().setGeometry(box); }
  // Shows the control's present state.
  void Refresh();

 protected:
  virtual void ShowState() = 0;
  // Shows what the control's stream has settled for good. Called again when the factor changes.
  virtual void ShowLook() {}
  double Factor() const { return factor_; }
  // Whether what happens now is the user's doing.
  bool IsUsersDoing() const { return control_ != nullptr && !refreshing_; }
  // To be called when the widget has got the keys: reports it if the user has brought them here.
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

// The view through which a control reaches its widget. It does not own the widget: the window's
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
