#include "displays/qt/shapes.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "displays/qt/convert.h"
#include "displays/qt/picture.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {

void RectangleWidget::paintEvent(QPaintEvent* /*event*/) {
  if (Control() == nullptr) return;
  const Rectangle& rectangle = TheControl();
  QPainter painter(this);
  const QRectF box = rect();
  // A whole number of physical pixels, so that the border is crisp and does not vanish.
  const double pixels = devicePixelRatioF();
  const double wanted = std::max(0.0, rectangle.BorderThickness() * Factor());
  const double pixel_count = wanted > 0 ? std::max(1.0, std::round(wanted * pixels)) : 0;
  const double border = std::min({pixel_count / pixels, box.width() / 2, box.height() / 2});
  const QRectF inside = box.adjusted(border, border, -border, -border);
  painter.fillRect(box, ToQColor(rectangle.BottomRightColour()));
  painter.setPen(Qt::NoPen);
  painter.setBrush(ToQColor(rectangle.TopLeftColour()));
  painter.drawPolygon(QPolygonF({box.bottomLeft(), box.topLeft(), box.topRight(), inside.topRight(),
                                 inside.topLeft(), inside.bottomLeft()}));
  painter.fillRect(inside, ToQColor(rectangle.FillColour()));
}

void CanvasWidget::ShowState() {
  scaled_ = QImage();
  update();
}

void CanvasWidget::paintEvent(QPaintEvent* /*event*/) {
  if (Control() == nullptr || !TheControl().Backdrop()) return;
  const auto* picture = dynamic_cast<const QtPicture*>(TheControl().Backdrop()->Image().get());
  if (picture == nullptr) return;
  const double ratio = Runtime::Current().SupportsHiDPI() ? devicePixelRatioF() : 1;
  const QSize pixels = (QSizeF(size()) * ratio).toSize();
  if (scaled_.size() != pixels) {
    scaled_ = picture->Image().scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  QPainter(this).drawImage(QRectF(rect()), scaled_);
}

}  // namespace vamo
