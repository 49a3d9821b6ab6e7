#ifndef VAMO_DISPLAYS_QT_LABEL_H_
#define VAMO_DISPLAYS_QT_LABEL_H_

#include <QLabel>
#include <QRectF>
#include <QTextLayout>

#include "displays/qt/control.h"
#include "toolkit/control/label.h"
#include "toolkit/window/text_room.h"

namespace vamo {

// Draws a label's text in its box. What is too wide stands out of the box where nothing else is;
// what is still too wide is drawn narrower, and nothing is cut off.
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
  // Finds the text's place and makes the widget as wide as it needs.
  void Fit();

  QRect box_;
  TextRoom room_;
  // The text, and what it covers from its starting point on the base line.
  QTextLayout line_;
  QRectF extent_;
  FittedText fitted_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_LABEL_H_
