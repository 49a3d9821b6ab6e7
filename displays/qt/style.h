// How fields, sliders and buttons are drawn.
#ifndef VAMO_DISPLAYS_QT_STYLE_H_
#define VAMO_DISPLAYS_QT_STYLE_H_

#include <QProxyStyle>

namespace vamo {

// Fusion, but for what it outlines too faintly to be distinguished from a white window: text
// fields, sliders and buttons. What has the keys is outlined in the colour of a selection.
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
