#include "displays/qt/accessible.h"

#include <QAccessibleWidget>

#include "displays/qt/convert.h"
#include "displays/qt/label.h"
#include "displays/qt/pane.h"
#include "displays/qt/slider.h"
#include "displays/qt/window.h"
#include "toolkit/control/label.h"
#include "toolkit/window/pane.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

using Relations = QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>;

const RectControl* ControlOf(const QWidget* widget) {
  const auto* shows = dynamic_cast<const ControlWidget*>(widget);
  return shows == nullptr ? nullptr : shows->Control();
}

// A control with its captions, or with the controls that it is the caption of: Qt knows only one
// widget for each caption.
class AccessibleControl : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  Relations relations(QAccessible::Relation match) const override {
    Relations related = QAccessibleWidget::relations(match);
    const RectControl* control = ControlOf(widget());
    if (control == nullptr) return related;
    for (QWidget* sibling :
         widget()->parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      const RectControl* other = ControlOf(sibling);
      if (other == nullptr) continue;
      if (match.testFlag(QAccessible::Label) && control->IsLabelledBy(*other)) {
        related.append({QAccessible::queryAccessibleInterface(sibling), QAccessible::Label});
      }
      if (match.testFlag(QAccessible::Labelled) && other->IsLabelledBy(*control)) {
        related.append({QAccessible::queryAccessibleInterface(sibling), QAccessible::Labelled});
      }
    }
    return related;
  }
};

// A label. Its name is its text and nothing else, so that an empty result is not read as its
// caption.
class AccessibleLabel : public AccessibleControl {
 public:
  explicit AccessibleLabel(LabelWidget& label)
      : AccessibleControl(&label, QAccessible::StaticText), label_(label) {}

  QString text(QAccessible::Text which) const override {
    if (which != QAccessible::Name) return AccessibleControl::text(which);
    return label_.accessibleName().isEmpty() ? label_.text() : label_.accessibleName();
  }

 private:
  LabelWidget& label_;
};

// A slider, with its value in the unit that assistive technology reads.
class AccessibleSlider : public AccessibleControl, public QAccessibleValueInterface {
 public:
  explicit AccessibleSlider(SliderWidget& slider)
      : AccessibleControl(&slider, QAccessible::Slider), slider_(slider) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return AccessibleControl::interface_cast(type);
  }

  QVariant currentValue() const override { return InUnits(slider_.value()); }
  void setCurrentValue(const QVariant& value) override { slider_.ReportValue(value.toDouble()); }
  QVariant maximumValue() const override { return InUnits(slider_.maximum()); }
  QVariant minimumValue() const override { return InUnits(slider_.minimum()); }
  QVariant minimumStepSize() const override { return InUnits(slider_.singleStep()); }

 private:
  double InUnits(int position) const {
    const auto* slider = static_cast<const Slider*>(slider_.Control());
    return slider == nullptr ? position : slider->InUnits(position);
  }

  SliderWidget& slider_;
};

// A pane. Its description is computed only when it is asked for.
class AccessiblePane : public QAccessibleWidget {
 public:
  explicit AccessiblePane(PaneWidget& pane)
      : QAccessibleWidget(&pane, QAccessible::Chart), pane_(pane) {}

  QString text(QAccessible::Text which) const override {
    const Pane* shown = pane_.ShownPane();
    if (which != QAccessible::Description || shown == nullptr)
      return QAccessibleWidget::text(which);
    return ToQString(shown->Description());
  }

 private:
  PaneWidget& pane_;
};

}  // namespace

QAccessibleInterface* MakeAccessible(const QString& /*class_name*/, QObject* object) {
  if (auto* slider = dynamic_cast<SliderWidget*>(object)) return new AccessibleSlider(*slider);
  if (auto* label = dynamic_cast<LabelWidget*>(object)) return new AccessibleLabel(*label);
  if (auto* pane = dynamic_cast<PaneWidget*>(object)) return new AccessiblePane(*pane);
  // Qt reports a plain widget as a part of a window even if it is one.
  if (auto* window = dynamic_cast<WindowWidget*>(object)) {
    const Window* shown = window->ShownWindow();
    const bool is_dialog = shown != nullptr && shown->IsSplash();
    return new QAccessibleWidget(window, is_dialog ? QAccessible::Dialog : QAccessible::Window);
  }
  return nullptr;
}

}  // namespace vamo
