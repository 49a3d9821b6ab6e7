// What the windows written by hand are put together from.
#ifndef VAMO_BENCH_PLAIN_WIDGETS_H_
#define VAMO_BENCH_PLAIN_WIDGETS_H_

#include <QColor>
#include <QLabel>
#include <QRect>
#include <QString>
#include <QWidget>

namespace vamo {

inline const QColor kDarkRed(0x80, 0, 0);

// A box with a border in two colours. It answers no input.
class Box : public QWidget {
 public:
  Box(QWidget& parent, QRect place, int border, QColor top_left, QColor bottom_right, QColor fill);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const int border_;
  const QColor top_left_, bottom_right_, fill_;
};

// The interface font of the desktop in a size in pixels.
QFont InterfaceFont(int size, bool bold);

QLabel* AddLabel(QWidget& parent, QRect place, const QString& text, QColor colour, int size = 12,
                 bool bold = false, Qt::Alignment alignment = Qt::AlignLeft);

// The program's picture, from the file beside the program.
QLabel* AddPicture(QWidget& parent, QRect place);

// A background of its own for a window.
void MakeWhite(QWidget& window);

}  // namespace vamo

#endif  // VAMO_BENCH_PLAIN_WIDGETS_H_
