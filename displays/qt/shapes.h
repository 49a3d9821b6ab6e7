// The widgets of the controls that are only drawn: rectangle and canvas.
#ifndef VAMO_DISPLAYS_QT_SHAPES_H_
#define VAMO_DISPLAYS_QT_SHAPES_H_

#include <QImage>
#include <QWidget>

#include "displays/qt/control.h"
#include "toolkit/control/canvas.h"
#include "toolkit/control/rectangle.h"

namespace vamo {

// Draws a border in two colours, with mitred corners, and the area inside it.
class RectangleWidget : public WidgetFor<QWidget, Rectangle> {
 public:
  using WidgetFor::WidgetFor;

 protected:
  void ShowState() override { update(); }
  void paintEvent(QPaintEvent* event) override;
};

// Draws a picture over its whole area, as sharp as the screen allows.
class CanvasWidget : public WidgetFor<QWidget, Canvas> {
 public:
  using WidgetFor::WidgetFor;

 protected:
  void ShowState() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage scaled_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_SHAPES_H_
