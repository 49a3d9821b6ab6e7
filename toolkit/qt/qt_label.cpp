// The label on the screen.
#include "qt_label.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace vamo {
namespace {

// The base line for which the line lies in the middle of the box; moved where ink would stand out.
double BaseLine(const QTextLine& line, const QRectF& extent, double height) {
  const double middle = (height - line.ascent() - line.descent()) / 2 + line.ascent();
  const double highest = -extent.top();
  const double lowest = height - extent.bottom();
  if (lowest < highest) return (lowest + highest) / 2;
  return std::clamp(middle, highest, lowest);
}

// How wide a text may be in a box, so that it does not touch what stands beside the box.
double Room(double width, double factor) {
  const double gap = 3 * factor;
  return width - std::min(gap, width / 20);
}

double Left(Qt::Alignment alignment, double free) {
  if (alignment.testFlag(Qt::AlignHCenter)) return free / 2;
  return alignment.testFlag(Qt::AlignRight) ? free : 0;
}

}  // namespace

LabelWidget::LabelWidget(Label& label, QWidget& parent) : WidgetFor(label, parent) {
  setTextFormat(Qt::PlainText);
  setAlignment(ToQtAlignment(label.Alignment()));
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, ToQColor(label.TextColor()));
  setPalette(colours);
}

void LabelWidget::ShowState() {
  const QString shown = ToQString(TheControl().Text());
  if (text() != shown) setText(shown);
}

void LabelWidget::LayOut() {
  line_.setText(text());
  line_.setFont(font());
  line_.setTextOption(QTextOption(Qt::AlignLeft | Qt::AlignAbsolute));
  line_.setCacheEnabled(true);
  line_.beginLayout();
  const QTextLine line = line_.createLine();
  line_.endLayout();
  // At least the advance, and more where glyphs stand out of it.
  const QRectF ink = QFontMetricsF(font(), this).tightBoundingRect(text());
  extent_ = ink.united(QRectF(0, ink.top(), line.naturalTextWidth(), ink.height()));
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
  if (text().isEmpty()) return;
  // What lies beside a changing text is painted with it, and measuring costs more than painting.
  if (line_.text() != text() || line_.font() != font()) LayOut();
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  const QTextLine line = line_.lineAt(0);
  const double x_scale = std::min(1.0, Room(width(), Factor()) / extent_.width());
  const double y_scale = std::min(1.0, height() / extent_.height());
  const double box = height() / y_scale;
  const double left = Left(alignment(), width() - extent_.width() * x_scale);
  const double pixels = devicePixelRatioF();
  const double base = std::round(BaseLine(line, extent_, box) * pixels) / pixels;
  painter.scale(x_scale, y_scale);
  // A line's own place is in sixty-fourths, which would miss the whole pixel.
  painter.translate(0, base);
  line.draw(&painter, QPointF(left / x_scale - extent_.left(), -line.ascent()));
}

}  // namespace vamo
