#include "displays/qt/slider.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "displays/qt/convert.h"

namespace vamo {
namespace {

// Qt's angle for one notch of a wheel.
constexpr int kAnglePerNotch = 120;

}  // namespace

SliderWidget::SliderWidget(Slider& slider, QWidget& parent) : WidgetFor(slider, parent) {
  setOrientation(Qt::Horizontal);
  // Reports a value that something other than the handlers below has set.
  connect(this, &QSlider::valueChanged, this, [this](int position) {
    if (IsUsersDoing()) Report(position);
  });
}

void SliderWidget::ShowState() {
  const Slider& slider = TheControl();
  setRange(ToInt(slider.MinimumValue()), ToInt(slider.MaximumValue()));
  setSingleStep(ToInt(slider.LineStep()));
  setPageStep(ToInt(slider.PageStep()));
  setValue(ToInt(slider.Value()));
}

void SliderWidget::Report(int position) {
  TheControl().UserMovedTo(position);
  Refresh();
}

void SliderWidget::ReportValue(double value) {
  if (!IsUsersDoing()) return;
  TheControl().UserSetValue(value);
  Refresh();
}

QStyleOptionSlider SliderWidget::Option() const {
  QStyleOptionSlider option;
  initStyleOption(&option);
  return option;
}

QRect SliderWidget::Part(QStyle::SubControl which, const QStyleOptionSlider& option) const {
  return style()->subControlRect(QStyle::CC_Slider, &option, which, this);
}

void SliderWidget::MoveKnobTo(int x) {
  const QStyleOptionSlider option = Option();
  const QRect groove = Part(QStyle::SC_SliderGroove, option);
  const int knob = Part(QStyle::SC_SliderHandle, option).width();
  Report(QStyle::sliderValueFromPosition(minimum(), maximum(), x - groove.left() - knob / 2,
                                         groove.width() - knob, option.upsideDown));
}

void SliderWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !IsUsersDoing()) {
    event->ignore();
    return;
  }
  const QRect knob = Part(QStyle::SC_SliderHandle, Option());
  const QPoint at = event->position().toPoint();
  setSliderDown(true);
  grip_ = knob.contains(at) ? at.x() - knob.center().x() : 0;
  if (!knob.contains(at)) MoveKnobTo(at.x());
}

void SliderWidget::mouseMoveEvent(QMouseEvent* event) {
  if (isSliderDown() && IsUsersDoing()) MoveKnobTo(event->position().toPoint().x() - grip_);
}

void SliderWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) setSliderDown(false);
}

void SliderWidget::wheelEvent(QWheelEvent* event) {
  event->accept();
  if (!IsUsersDoing()) return;
  const QPoint turned = event->angleDelta();
  // Turning a wheel to the right moves the knob to the right.
  wheel_angle_ += turned.y() != 0 ? turned.y() : -turned.x();
  const int notches = wheel_angle_ / kAnglePerNotch;
  wheel_angle_ %= kAnglePerNotch;
  if (notches != 0) TheControl().UserTurnedWheel(notches);
}

void SliderWidget::keyPressEvent(QKeyEvent* event) { event->accept(); }

void SliderWidget::focusInEvent(QFocusEvent* event) {
  QSlider::focusInEvent(event);
  ReportFocus(event->reason());
}

}  // namespace vamo
