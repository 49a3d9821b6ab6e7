// How fields, sliders and buttons are drawn.
#include "qt_style.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace vamo {
namespace {

// Both at least 3 to 1 against white, and told apart by their width too.
struct Outline {
  QColor colour;
  int width;
};

Outline OutlineOf(const QStyleOption& option, bool marked) {
  if (marked) return {option.palette.color(QPalette::Highlight), 2};
  return {QColor(0x80, 0x80, 0x80), 1};
}

void DrawBox(QPainter& painter, const QRect& box, const Outline& outline, const QBrush& fill) {
  constexpr double kRadius = 2.5;
  const double half = outline.width / 2.0;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(outline.colour, outline.width));
  painter.setBrush(fill);
  painter.drawRoundedRect(QRectF(box).adjusted(half, half, -half, -half), kRadius, kRadius);
  painter.restore();
}

// What the mouse can press: raised, and sunk while it is held down.
QBrush Face(const QStyleOption& option, const QRect& box) {
  const bool lit = option.state.testFlag(QStyle::State_MouseOver);
  const bool held = option.state.testFlag(QStyle::State_Sunken);
  const QColor colour = option.palette.color(QPalette::Button).darker(held ? 115 : 100);
  QLinearGradient shine(box.topLeft(), box.bottomLeft());
  shine.setColorAt(0, held ? colour : colour.lighter(lit ? 115 : 107));
  shine.setColorAt(1, held ? colour : colour.darker(lit ? 100 : 105));
  return shine;
}

}  // namespace

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  if (element == PE_FrameLineEdit) {
    const bool has_keys = option->state.testFlag(State_HasFocus);
    DrawBox(*painter, option->rect, OutlineOf(*option, has_keys), Qt::NoBrush);
  } else if (element == PE_PanelButtonCommand) {
    DrawBox(*painter, option->rect, OutlineOf(*option, false), Face(*option, option->rect));
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
  constexpr int kGrooveHeight = 5;
  QRect groove = subControlRect(CC_Slider, option, SC_SliderGroove, widget);
  groove.setTop(groove.center().y() - kGrooveHeight / 2);
  groove.setHeight(kGrooveHeight);
  const QRect knob =
      subControlRect(CC_Slider, option, SC_SliderHandle, widget).adjusted(1, 1, -1, -1);
  const Outline outline = OutlineOf(*option, option->state.testFlag(State_HasFocus));
  const Outline plain = OutlineOf(*option, false);
  DrawBox(*painter, groove, {outline.colour, plain.width},
          option->palette.color(QPalette::Window).darker(108));
  DrawBox(*painter, knob, outline, Face(*option, knob));
}

}  // namespace vamo
