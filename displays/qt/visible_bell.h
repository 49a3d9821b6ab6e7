// The visible form of the system alert.
#ifndef VAMO_DISPLAYS_QT_VISIBLE_BELL_H_
#define VAMO_DISPLAYS_QT_VISIBLE_BELL_H_

#include <QPalette>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace vamo {

// Lights up one widget at a time for a moment. A widget that is alerted again while it is lit stays
// lit a little longer and does not flicker.
class VisibleBell {
 public:
  VisibleBell();

  // Does nothing if the style's animations are off. `widget` may be null.
  void Flash(QWidget* widget);

 private:
  void End();

  QPointer<QWidget> lit_;
  QPalette usual_colours_;
  QTimer timer_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_VISIBLE_BELL_H_
