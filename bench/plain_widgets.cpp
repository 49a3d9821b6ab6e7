#include "plain_widgets.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QPixmap>

namespace vamo {

Box::Box(QWidget& parent, QRect place, int border, QColor top_left, QColor bottom_right,
         QColor fill)
    : QWidget(&parent),
      border_(border),
      top_left_(top_left),
      bottom_right_(bottom_right),
      fill_(fill) {
  setGeometry(place);
}

void Box::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), bottom_right_);
  painter.fillRect(0, 0, width(), border_, top_left_);
  painter.fillRect(0, 0, border_, height(), top_left_);
  painter.fillRect(rect().adjusted(border_, border_, -border_, -border_), fill_);
}

QFont InterfaceFont(int size, bool bold) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  font.setPixelSize(size);
  font.setBold(bold);
  return font;
}

QLabel* AddLabel(QWidget& parent, QRect place, const QString& text, QColor colour, int size,
                 bool bold, Qt::Alignment alignment) {
  auto* label = new QLabel(text, &parent);
  label->setGeometry(place);
  label->setTextFormat(Qt::PlainText);
  label->setFont(InterfaceFont(size, bold));
  label->setAlignment(alignment | Qt::AlignVCenter);
  QPalette colours = label->palette();
  colours.setColor(QPalette::WindowText, colour);
  label->setPalette(colours);
  return label;
}

QLabel* AddPicture(QWidget& parent, QRect place) {
  const QPixmap picture(QCoreApplication::applicationDirPath() + QStringLiteral("/ChartSmall.jpg"));
  auto* label = new QLabel(&parent);
  label->setGeometry(place);
  label->setPixmap(picture.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  return label;
}

void MakeWhite(QWidget& window) {
  QPalette colours = window.palette();
  colours.setColor(QPalette::Window, Qt::white);
  window.setPalette(colours);
  window.setAutoFillBackground(true);
}

}  // namespace vamo
