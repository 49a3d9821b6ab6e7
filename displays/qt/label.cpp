#include "displays/qt/label.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>
#include <algorithm>
#include <cmath>

#include "displays/qt/convert.h"
#include "toolkit/window/text_room.h"

namespace vamo {
namespace {

// The baseline at which the line is centred in the box; moved if ink would otherwise extend beyond
// the box.
double BaseLine(const QTextLine& line, const QRectF& extent, double height) {
  const double middle = (height - line.ascent() - line.descent()) / 2 + line.ascent();
  const double highest = -extent.top();
  const double lowest = height - extent.bottom();
  if (lowest < highest) return (lowest + highest) / 2;
  return std::clamp(middle, highest, lowest);
}

}  // namespace

LabelWidget::LabelWidget(Label& label, QWidget& parent) : WidgetFor(label, parent) {
  setTextFormat(Qt::PlainText);
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, ToQColor(label.TextColour()));
  setPalette(colours);
}

void LabelWidget::SetBox(const QRect& box) {
  box_ = box;
  Fit();
}

void LabelWidget::ShowLook() {
  const Label& label = TheControl();
  setFont(ToQFont(label.Font(), Factor()));
  const TextRoom room = RoomOfText(label);
  room_ = {room.left * Factor(), room.right * Factor()};
  Fit();
}

void LabelWidget::ShowState() {
  const QString shown = ToQString(TheControl().Text());
  if (text() == shown) return;
  setText(shown);
  Fit();
}

void LabelWidget::Fit() {
  if (!text().isEmpty()) LayOut();
  fitted_ = FitText(room_, box_.width(), TheControl().Alignment(), extent_.width());
  // A little wider than the text, for the antialiased edges of its letters.
  const QRectF covered(box_.left() + fitted_.left - 1, box_.top(),
                       extent_.width() * fitted_.scale + 2, box_.height());
  setGeometry(text().isEmpty() ? box_ : box_.united(covered.toAlignedRect()));
}

void LabelWidget::LayOut() {
  line_.setText(text());
  line_.setFont(font());
  line_.setTextOption(QTextOption(Qt::AlignLeft | Qt::AlignAbsolute));
  line_.setCacheEnabled(true);
  line_.beginLayout();
  const QTextLine line = line_.createLine();
  line_.endLayout();
  // At least the advance width, and more if glyphs extend beyond it.
  const QRectF ink = QFontMetricsF(font(), this).tightBoundingRect(text());
  extent_ = ink.united(QRectF(0, ink.top(), line.naturalTextWidth(), ink.height()));
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
  if (text().isEmpty()) return;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  const QTextLine line = line_.lineAt(0);
  const double y_scale = std::min(1.0, height() / extent_.height());
  const double left = box_.left() + fitted_.left - x();
  const double box = height() / y_scale;
  const double pixels = devicePixelRatioF();
  const double base = std::round(BaseLine(line, extent_, box) * pixels) / pixels;
  painter.scale(fitted_.scale, y_scale);
  // QTextLine rounds its position to 1/64, which would miss the whole pixel.
  painter.translate(0, base);
  line.draw(&painter, QPointF(left / fitted_.scale - extent_.left(), -line.ascent()));
}

}  // namespace vamo
