// The label on the screen.
#include "qt_label.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "qt_convert.h"

namespace vamo {
namespace {

// What a line of text covers, from its starting point on the base line: at least its advance, and
// more where glyphs stand out of it.
QRectF Extent(const QFontMetricsF& metrics, const QString& text) {
  const QRectF ink = metrics.tightBoundingRect(text);
  const QRectF advance(0, ink.top(), metrics.horizontalAdvance(text), ink.height());
  return ink.united(advance);
}

// The base line for which the line lies in the middle of the box; moved where ink would stand out.
double BaseLine(const QFontMetricsF& metrics, const QRectF& extent, double height) {
  const double middle = (height - metrics.ascent() - metrics.descent()) / 2 + metrics.ascent();
  const double highest = -extent.top();
  const double lowest = height - extent.bottom();
  if (lowest < highest) return (lowest + highest) / 2;
  return std::clamp(middle, highest, lowest);
}

// How wide a text may be in a box, so that it does not touch what stands beside the box.
double Room(double width) {
  constexpr double kGap = 3;
  return width - std::min(kGap, width / 20);
}

double Left(Qt::Alignment alignment, double free) {
  if (alignment.testFlag(Qt::AlignHCenter)) return free / 2;
  return alignment.testFlag(Qt::AlignRight) ? free : 0;
}

}  // namespace

LabelWidget::LabelWidget(Label& label, QWidget& parent) : WidgetFor(label, parent) {
  setTextFormat(Qt::PlainText);
}

void LabelWidget::ShowState() {
  const Label& label = TheControl();
  setFont(ToQFont(label.Font()));
  setAlignment(ToQtAlignment(label.Alignment()));
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, ToQColor(label.TextColor()));
  setPalette(colours);
  const QString shown = ToQString(label.Text());
  if (text() != shown) setText(shown);
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
  if (text().isEmpty()) return;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  const QFontMetricsF metrics(font(), this);
  const QRectF extent = Extent(metrics, text());
  const double x_scale = std::min(1.0, Room(width()) / extent.width());
  const double y_scale = std::min(1.0, height() / extent.height());
  const double box = height() / y_scale;
  const double left = Left(alignment(), width() - extent.width() * x_scale);
  const double pixels = devicePixelRatioF();
  const double base = std::round(BaseLine(metrics, extent, box) * pixels) / pixels;
  painter.scale(x_scale, y_scale);
  painter.drawText(QPointF(left / x_scale - extent.left(), base), text());
}

}  // namespace vamo
