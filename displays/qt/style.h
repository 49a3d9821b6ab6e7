// How fields, sliders and buttons are drawn.
#ifndef VAMO_DISPLAYS_QT_STYLE_H_
#define VAMO_DISPLAYS_QT_STYLE_H_

#include <QProxyStyle>

namespace vamo {

// The Fusion style with stronger outlines for text fields, sliders and buttons, which it outlines
// too faintly for a white window. The outline of the focused control has the colour of a selection.
class OutlinedStyle : public QProxyStyle {
 public:
  OutlinedStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  // Scales everything that is drawn.
  void SetFactor(double factor) { factor_ = factor; }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;

 private:
  double factor_ = 1;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_STYLE_H_
