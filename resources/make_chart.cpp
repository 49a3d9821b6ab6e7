// Draws the program's picture: correlated points, their regression line and its confidence band.
#include <QCoreApplication>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QString>
#include <QTextStream>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace vamo {
namespace {

// The canvas in the windows, and how many pixels the picture has for one of the canvas's.
constexpr int kWidth = 92;
constexpr int kHeight = 72;
constexpr int kDensity = 3;

constexpr QRgb kPaper = qRgb(255, 255, 255);
constexpr QRgb kAxis = qRgb(150, 150, 150);
constexpr QRgb kBand = qRgb(219, 224, 233);
constexpr QRgb kLine = qRgb(70, 84, 112);
constexpr QRgb kPoint = qRgb(128, 0, 0);

// Student's t for a 95% interval with `kCount` - 2 degrees of freedom.
constexpr int kCount = 14;
constexpr double kStudentT = 2.179;

// Evenly spread numbers from 0 to 1, the same on each machine; not for statistics.
class Numbers {
 public:
  double Next() {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<double>(state_ >> 11U) / 9007199254740992.0;
  }

 private:
  std::uint64_t state_ = 6;
};

std::vector<QPointF> MakePoints() {
  Numbers numbers;
  std::vector<QPointF> points;
  for (int i = 0; i < kCount; ++i) {
    const double x = (i + 0.2 + 0.6 * numbers.Next()) / kCount;
    const double noise = numbers.Next() + numbers.Next() - 1.0;
    points.emplace_back(x, std::clamp(0.14 + 0.66 * x + 0.38 * noise, 0.05, 0.95));
  }
  return points;
}

// The least-squares line of some points, with the 95% confidence band of the mean around it.
class Regression {
 public:
  explicit Regression(const std::vector<QPointF>& points) : n_(static_cast<double>(points.size())) {
    for (const QPointF& point : points) mean_ += point / n_;
    double sxy = 0.0;
    double syy = 0.0;
    for (const QPointF& point : points) {
      const QPointF d = point - mean_;
      sxx_ += d.x() * d.x();
      sxy += d.x() * d.y();
      syy += d.y() * d.y();
    }
    slope_ = sxy / sxx_;
    error_ = std::sqrt((syy - slope_ * sxy) / (n_ - 2.0));
  }

  double At(double x) const { return mean_.y() + slope_ * (x - mean_.x()); }

  double HalfWidthAt(double x) const {
    const double d = x - mean_.x();
    return kStudentT * error_ * std::sqrt(1.0 / n_ + d * d / sxx_);
  }

 private:
  double n_;
  QPointF mean_;
  double sxx_ = 0.0;
  double slope_ = 0.0;
  double error_ = 0.0;
};

// From the unit square, y upwards, into the canvas, with room for the axes at the left and below.
QPointF ToCanvas(double x, double y) {
  constexpr double kLeft = 9.0;
  constexpr double kRight = 87.0;
  constexpr double kTop = 5.0;
  constexpr double kBottom = 64.0;
  return {kLeft + x * (kRight - kLeft), kBottom - y * (kBottom - kTop)};
}

QPainterPath BandOf(const Regression& regression) {
  constexpr int kSteps = 60;
  QPolygonF outline;
  for (int i = 0; i <= kSteps; ++i) {
    const double x = static_cast<double>(i) / kSteps;
    outline << ToCanvas(x, regression.At(x) + regression.HalfWidthAt(x));
  }
  for (int i = kSteps; i >= 0; --i) {
    const double x = static_cast<double>(i) / kSteps;
    outline << ToCanvas(x, regression.At(x) - regression.HalfWidthAt(x));
  }
  QPainterPath path;
  path.addPolygon(outline);
  return path;
}

void Draw(QPainter& painter) {
  const std::vector<QPointF> points = MakePoints();
  const Regression regression(points);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(kDensity, kDensity);

  painter.fillPath(BandOf(regression), QColor(kBand));
  painter.setPen(QPen(QColor(kAxis), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawPolyline(QPolygonF{QPointF(5.5, 5.5), QPointF(5.5, 66.5), QPointF(86.5, 66.5)});
  painter.setPen(QPen(QColor(kLine), 1.7, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(ToCanvas(0.0, regression.At(0.0)), ToCanvas(1.0, regression.At(1.0)));
  // The light rim keeps a point apart from the line that it lies on.
  painter.setPen(QPen(QColor(kPaper), 0.6));
  painter.setBrush(QColor(kPoint));
  for (const QPointF& point : points) painter.drawEllipse(ToCanvas(point.x(), point.y()), 2.5, 2.5);
}

bool Write(const QString& file) {
  QImage image(kWidth * kDensity, kHeight * kDensity, QImage::Format_RGB32);
  image.fill(kPaper);
  QPainter painter(&image);
  Draw(painter);
  painter.end();
  QImageWriter writer(file, "jpeg");
  writer.setQuality(92);
  if (writer.write(image)) return true;
  QTextStream(stderr) << file << ": " << writer.errorString() << '\n';
  return false;
}

}  // namespace
}  // namespace vamo

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() != 2) {
    QTextStream(stderr) << "make_chart FILE\n";
    return 2;
  }
  return vamo::Write(arguments.at(1)) ? 0 : 1;
}
