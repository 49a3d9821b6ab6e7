#ifndef VAMO_DISPLAYS_QT_SLIDER_H_
#define VAMO_DISPLAYS_QT_SLIDER_H_

#include <QRect>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>

#include "displays/qt/control.h"
#include "toolkit/control/slider.h"

namespace vamo {

// Shows a slider and reports where the mouse moves its knob. The toolkit handles the keys.
class SliderWidget : public WidgetFor<QSlider, Slider> {
 public:
  SliderWidget(Slider& slider, QWidget& parent);

  // Assistive technology has set a value.
  void ReportValue(double value);

 protected:
  void ShowState() override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void Report(int position);
  QStyleOptionSlider Option() const;
  QRect Part(QStyle::SubControl which, const QStyleOptionSlider& option) const;
  // Moves the middle of the knob to a position in widget coordinates.
  void MoveKnobTo(int x);

  // The distance from the middle of the knob to where the mouse holds it.
  int grip_ = 0;
  // The angle that the wheel has turned beyond whole notches.
  int wheel_angle_ = 0;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_SLIDER_H_
