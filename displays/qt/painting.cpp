#include "displays/qt/painting.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <algorithm>
#include <cmath>
#include <string>
#include <variant>
#include <vector>

#include "displays/qt/convert.h"
#include "toolkit/drawing.h"

namespace vamo {
namespace {

// The picture of a mark that takes long to paint. Most of these marks are the same from one
// painting to the next, so the pictures are kept.
template <class Make>
QPixmap Kept(const QString& key, const Make& make) {
  QPixmap picture;
  if (QPixmapCache::find(key, &picture)) return picture;
  picture = make();
  QPixmapCache::insert(key, picture);
  return picture;
}

// Paints one mark after the other, in pixels of the device.
class MarkPainter {
 public:
  MarkPainter(QPainter& painter, double scale, QColor background)
      : painter_(painter), scale_(scale), background_(background) {}

  void operator()(const Drawing::Line& line) const;
  void operator()(const Drawing::Polyline& line) const;
  // Lines cover the edges of a polygon, so these need not be smooth, which would take four times as
  // long.
  void operator()(const Drawing::Polygon& polygon) const {
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(ToQColor(polygon.fill));
    painter_.drawPolygon(ToQPolygon(polygon.points));
    painter_.setRenderHint(QPainter::Antialiasing);
  }
  void operator()(const Drawing::Dot& dot) const {
    painter_.setPen(QPen(background_, dot.rim * scale_));
    painter_.setBrush(ToQColor(dot.fill));
    painter_.drawEllipse(ToQPoint(dot.middle), dot.radius * scale_, dot.radius * scale_);
  }
  void operator()(const Drawing::Text& text) const;

 private:
  QPointF ToQPoint(Drawing::Point point) const { return {point.x * scale_, point.y * scale_}; }
  QPolygonF ToQPolygon(const std::vector<Drawing::Point>& points) const {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(points.size()));
    for (const Drawing::Point& point : points) polygon.append(ToQPoint(point));
    return polygon;
  }
  QPolygonF Ribbon(const Drawing::Polyline& line) const;
  void DrawDashed(const Drawing::Polyline& line) const;
  QPixmap PictureOf(const Drawing::Text& text, int margin) const;
  // The distance of the baseline from the upper edge of a text's picture.
  double BaseIn(const Drawing::Text& text, int margin) const {
    return std::ceil(text.size * scale_) + margin;
  }
  QPen ToQPen(const Drawing::Pen& pen) const {
    QPen result(ToQColor(pen.colour), pen.width * scale_, Qt::SolidLine, Qt::FlatCap);
    // Qt's unit is the width of the pen.
    if (pen.gap > 0) result.setDashPattern({pen.dash / pen.width, pen.gap / pen.width});
    return result;
  }

  QPainter& painter_;
  const double scale_;
  const QColor background_;
};

// It covers whole pixels.
void MarkPainter::operator()(const Drawing::Line& line) const {
  const QPointF from = ToQPoint(line.from);
  const QPointF to = ToQPoint(line.to);
  const double width = std::max(1.0, std::round(line.pen.width * scale_));
  QRectF covered = QRectF(from, to).normalized();
  const double half = width / 2;
  covered = from.x() == to.x() ? covered.adjusted(-half, 0, half, 0)
                               : covered.adjusted(0, -half, 0, half);
  covered.moveTo(std::round(covered.x()), std::round(covered.y()));
  if (line.pen.gap == 0) return painter_.fillRect(covered, ToQColor(line.pen.colour));
  QPen pen = ToQPen(line.pen);
  pen.setWidthF(width);
  painter_.setPen(pen);
  const QPointF middle = covered.center();
  if (from.x() == to.x()) {
    painter_.drawLine(QPointF(middle.x(), covered.top()), QPointF(middle.x(), covered.bottom()));
  } else {
    painter_.drawLine(QPointF(covered.left(), middle.y()), QPointF(covered.right(), middle.y()));
  }
}

// A solid polyline as an area, which takes a third of the time to paint.
QPolygonF MarkPainter::Ribbon(const Drawing::Polyline& line) const {
  const QPolygonF middle = ToQPolygon(line.points);
  const qsizetype size = middle.size();
  QPolygonF ribbon(2 * size);
  for (qsizetype i = 0; i < size; ++i) {
    // Perpendicular to the line at this point, half its width to each side.
    const QPointF along = middle[std::min(i + 1, size - 1)] - middle[std::max<qsizetype>(i - 1, 0)];
    const double length = std::hypot(along.x(), along.y());
    const double part = length > 0 ? line.pen.width * scale_ / 2 / length : 0;
    const QPointF across(-along.y() * part, along.x() * part);
    ribbon[i] = middle[i] + across;
    ribbon[2 * size - 1 - i] = middle[i] - across;
  }
  return ribbon;
}

void MarkPainter::operator()(const Drawing::Polyline& line) const {
  if (line.pen.gap > 0) return DrawDashed(line);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(ToQColor(line.pen.colour));
  painter_.drawPolygon(Ribbon(line), Qt::WindingFill);
}

void MarkPainter::DrawDashed(const Drawing::Polyline& line) const {
  const QPolygonF points = ToQPolygon(line.points);
  const QPen pen = ToQPen(line.pen);
  const int margin = static_cast<int>(std::ceil(pen.widthF()));
  const QRect box =
      points.boundingRect().toAlignedRect().adjusted(-margin, -margin, margin, margin);
  const auto bytes = reinterpret_cast<const char*>(points.constData());
  const QString key =
      QStringLiteral("vamo-%1-%2-%3-%4-")
          .arg(pen.color().rgb())
          .arg(pen.widthF())
          .arg(line.pen.dash)
          .arg(line.pen.gap) +
      QString::fromLatin1(bytes, points.size() * static_cast<qsizetype>(sizeof(QPointF)));
  const QPixmap picture = Kept(key, [&] {
    QPixmap made(box.size());
    made.fill(Qt::transparent);
    QPainter painter(&made);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-box.topLeft());
    painter.setPen(pen);
    painter.drawPolyline(points);
    return made;
  });
  painter_.drawPixmap(box.topLeft(), picture);
}

void MarkPainter::operator()(const Drawing::Text& text) const {
  const int margin = static_cast<int>(std::ceil(Drawing::Text::kHalo * scale_));
  const QString key = QStringLiteral("vamo-%1-%2-%3-%4-%5")
                          .arg(ToQString(text.text))
                          .arg(text.size * scale_)
                          .arg(text.bold)
                          .arg(ToQColor(text.colour).rgb())
                          .arg(background_.rgb());
  const QPixmap picture = Kept(key, [&] { return PictureOf(text, margin); });
  double left = text.base.x * scale_ - margin;
  const double width = picture.width() - 2 * margin;
  if (text.alignment == TextAlignment::kCentre) left -= width / 2;
  if (text.alignment == TextAlignment::kRight) left -= width;
  const double top = text.base.y * scale_ - BaseIn(text, margin);
  painter_.drawPixmap(QPointF(std::round(left), std::round(top)), picture);
}

QPixmap MarkPainter::PictureOf(const Drawing::Text& text, int margin) const {
  const QFont font = ToQFont({"System", static_cast<float>(text.size), text.bold}, scale_);
  const QString shown = ToQString(text.text);
  const QFontMetricsF metrics(font);
  const QPointF base(margin, BaseIn(text, margin));
  QPixmap picture(static_cast<int>(std::ceil(metrics.horizontalAdvance(shown))) + 2 * margin,
                  static_cast<int>(std::ceil(base.y() + metrics.descent())) + margin);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath outline;
  outline.addText(base, font, shown);
  painter.strokePath(outline, QPen(background_, Drawing::Text::kHalo * scale_, Qt::SolidLine,
                                   Qt::RoundCap, Qt::RoundJoin));
  painter.setFont(font);
  painter.setPen(ToQColor(text.colour));
  painter.drawText(base, shown);
  return picture;
}

}  // namespace

void Paint(const Drawing& drawing, double factor, QPaintDevice& device) {
  const double pixels = device.devicePixelRatioF();
  QPainter painter(&device);
  painter.scale(1 / pixels, 1 / pixels);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor background = ToQColor(drawing.background);
  painter.fillRect(QRectF(0, 0, device.width() * pixels, device.height() * pixels), background);
  const MarkPainter paint(painter, factor * pixels, background);
  for (const Drawing::Mark& mark : drawing.marks) std::visit(paint, mark);
}

}  // namespace vamo
