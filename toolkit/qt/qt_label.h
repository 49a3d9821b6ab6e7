// The label on the screen.
#ifndef VAMO_TOOLKIT_QT_QT_LABEL_H_
#define VAMO_TOOLKIT_QT_QT_LABEL_H_

#include <QLabel>
#include <QRectF>
#include <QTextLayout>

#include "qt_control.h"
#include "qt_convert.h"
#include "toolkit/label.h"

namespace vamo {

// Draws a label's text in its box: narrower where it is too wide, and never cut off. What
// assistive technology needs to know of it, QLabel tells.
class LabelWidget : public WidgetFor<QLabel, Label> {
 public:
  LabelWidget(Label& label, QWidget& parent);

 protected:
  void ShowState() override;
  void ShowLook() override { setFont(ToQFont(TheControl().Font(), Factor())); }
  void paintEvent(QPaintEvent* event) override;

 private:
  void LayOut();

  // The text as it was last laid out, and what it covers from its starting point on the base line.
  QTextLayout line_;
  QRectF extent_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_QT_QT_LABEL_H_
