#include "displays/qt/style.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace vamo {
namespace {

// Both colours have a contrast of at least 3 to 1 on white; the widths differ too.
struct Outline {
  QColor colour;
  int width;
};

Outline OutlineOf(const QStyleOption& option, bool marked) {
  if (marked) return {option.palette.color(QPalette::Highlight), 2};
  return {QColor(0x80, 0x80, 0x80), 1};
}

void DrawBox(QPainter& painter, const QRect& box, const Outline& outline, const QBrush& fill,
             double factor) {
  const double radius = 2.5 * factor;
  // A whole number, so that straight lines are sharp.
  const int width = qRound(outline.width * factor);
  const double half = width / 2.0;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(outline.colour, width));
  painter.setBrush(fill);
  painter.drawRoundedRect(QRectF(box).adjusted(half, half, -half, -half), radius, radius);
  painter.restore();
}

// The face of a control that the mouse can press: raised, and sunken while pressed.
QBrush Face(const QStyleOption& option, const QRect& box) {
  const bool lit = option.state.testFlag(QStyle::State_MouseOver);
  const bool held = option.state.testFlag(QStyle::State_Sunken);
  const QColor colour = option.palette.color(QPalette::Button).darker(held ? 115 : 100);
  QLinearGradient shine(box.topLeft(), box.bottomLeft());
  shine.setColorAt(0, held ? colour : colour.lighter(lit ? 115 : 107));
  shine.setColorAt(1, held ? colour : colour.darker(lit ? 100 : 105));
  return shine;
}

// The part of a slider's groove that the knob has passed.
QRect Passed(QRect groove, const QRect& knob, bool from_the_right) {
  if (from_the_right) {
    groove.setLeft(knob.center().x());
  } else {
    groove.setRight(knob.center().x());
  }
  return groove;
}

}  // namespace

int OutlinedStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                               const QWidget* widget) const {
  const int designed = QProxyStyle::pixelMetric(metric, option, widget);
  switch (metric) {
    case PM_DefaultFrameWidth:
    case PM_MenuBarHMargin:
    case PM_MenuBarItemSpacing:
    case PM_MenuBarVMargin:
    case PM_MenuHMargin:
    case PM_MenuVMargin:
    case PM_SliderControlThickness:
    case PM_SliderLength:
    case PM_SliderThickness:
    case PM_TextCursorWidth:
    case PM_ToolTipLabelFrameWidth:
      return qRound(designed * factor_);
    default:
      return designed;
  }
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  if (element == PE_FrameLineEdit) {
    const bool has_focus = option->state.testFlag(State_HasFocus);
    DrawBox(*painter, option->rect, OutlineOf(*option, has_focus), Qt::NoBrush, factor_);
  } else if (element == PE_PanelButtonCommand) {
    DrawBox(*painter, option->rect, OutlineOf(*option, false), Face(*option, option->rect),
            factor_);
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
  const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control != CC_Slider || slider == nullptr) {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    return;
  }
  const int groove_height = qRound(5 * factor_);
  const int free = qRound(factor_);
  QRect groove = subControlRect(CC_Slider, option, SC_SliderGroove, widget);
  groove.setTop(groove.center().y() - groove_height / 2);
  groove.setHeight(groove_height);
  const QRect knob =
      subControlRect(CC_Slider, option, SC_SliderHandle, widget).adjusted(free, free, -free, -free);
  const Outline outline = OutlineOf(*option, option->state.testFlag(State_HasFocus));
  const Outline narrow = {outline.colour, OutlineOf(*option, false).width};
  DrawBox(*painter, groove, narrow, option->palette.color(QPalette::Window).darker(108), factor_);
  DrawBox(*painter, Passed(groove, knob, slider->upsideDown), narrow,
          option->palette.color(QPalette::Highlight), factor_);
  DrawBox(*painter, knob, outline, Face(*option, knob), factor_);
}

}  // namespace vamo
