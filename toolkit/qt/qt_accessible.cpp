// What assistive technology reads where Qt's own answer falls short.
#include "qt_accessible.h"

#include <QAccessibleWidget>
#include <QLabel>

#include "qt_convert.h"
#include "qt_slider.h"
#include "qt_window.h"
#include "toolkit/label.h"

namespace vamo {
namespace {

// A slider with its value, and with the caption that it shares with a text field: Qt lets a label
// be the caption of one widget alone.
class AccessibleSlider : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit AccessibleSlider(SliderWidget& slider)
      : QAccessibleWidget(&slider, QAccessible::Slider), slider_(slider) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QVector<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
      QAccessible::Relation match) const override {
    auto related = QAccessibleWidget::relations(match);
    const RectControl* control = slider_.GetControl();
    if (control == nullptr || !match.testFlag(QAccessible::Label)) return related;
    if (const Ref<Label> caption = control->LabelledBy()) {
      auto* label = slider_.parentWidget()->findChild<QLabel*>(ToQString(caption->Name()));
      QAccessibleInterface* labelling = QAccessible::queryAccessibleInterface(label);
      if (labelling != nullptr) related.append({labelling, QAccessible::Label});
    }
    return related;
  }

  QVariant currentValue() const override { return InUnits(slider_.value()); }
  void setCurrentValue(const QVariant& value) override { slider_.ReportValue(value.toDouble()); }
  QVariant maximumValue() const override { return InUnits(slider_.maximum()); }
  QVariant minimumValue() const override { return InUnits(slider_.minimum()); }
  QVariant minimumStepSize() const override { return InUnits(slider_.singleStep()); }

 private:
  double InUnits(int position) const {
    const auto* slider = static_cast<const Slider*>(slider_.GetControl());
    return slider == nullptr ? position : slider->InUnits(position);
  }

  SliderWidget& slider_;
};

}  // namespace

QAccessibleInterface* MakeAccessible(const QString& /*class_name*/, QObject* object) {
  if (auto* slider = dynamic_cast<SliderWidget*>(object)) return new AccessibleSlider(*slider);
  // Qt takes a plain widget for a part of a window even where it is one.
  if (auto* window = dynamic_cast<WindowWidget*>(object)) {
    return new QAccessibleWidget(window, QAccessible::Window);
  }
  return nullptr;
}

}  // namespace vamo
