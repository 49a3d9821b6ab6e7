#ifndef VAMO_DISPLAYS_QT_BUTTON_H_
#define VAMO_DISPLAYS_QT_BUTTON_H_

#include <QPushButton>

#include "displays/qt/control.h"
#include "displays/qt/convert.h"
#include "toolkit/control/push_button.h"

namespace vamo {

// Shows a push button and reports presses by the mouse and by assistive technology. It never has
// the focus.
class ButtonWidget : public WidgetFor<QPushButton, PushButton> {
 public:
  ButtonWidget(PushButton& button, QWidget& parent);

 protected:
  void ShowState() override;
  void ShowLook() override { setFont(ToQFont(TheControl().Font(), Factor())); }
  void mousePressEvent(QMouseEvent* event) override;

 private:
  bool in_mouse_press_ = false;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_BUTTON_H_
