#ifndef VAMO_DISPLAYS_QT_LABEL_H_
#define VAMO_DISPLAYS_QT_LABEL_H_

#include <QLabel>
#include <QRectF>
#include <QTextLayout>

#include "displays/qt/control.h"
#include "toolkit/control/label.h"
#include "toolkit/window/text_room.h"

namespace vamo {

// Draws a label's text in its box. Text wider than the box extends into the room around it and, if
// it is still too wide, is narrowed. Nothing is cut off.
class LabelWidget : public WidgetFor<QLabel, Label> {
 public:
  LabelWidget(Label& label, QWidget& parent);

  void SetBox(const QRect& box) override;

 protected:
  void ShowState() override;
  void ShowLook() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void LayOut();
  // Finds the place of the text and makes the widget wide enough for it.
  void Fit();

  QRect box_;
  TextRoom room_;
  // The text, and the rectangle that it covers, relative to its starting point on the baseline.
  QTextLayout line_;
  QRectF extent_;
  FittedText fitted_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_LABEL_H_
