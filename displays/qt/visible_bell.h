// The system alert, for the eye.
#ifndef VAMO_DISPLAYS_QT_VISIBLE_BELL_H_
#define VAMO_DISPLAYS_QT_VISIBLE_BELL_H_

#include <QPalette>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace vamo {

// Lets one widget at a time light up for a moment. One that is alerted again while it is lit stays
// so a little longer and does not flicker.
class VisibleBell {
 public:
  VisibleBell();

  // Does nothing where the style is told to keep still. `widget` may be null.
  void Flash(QWidget* widget);

 private:
  void End();

  QPointer<QWidget> lit_;
  QPalette usual_colours_;
  QTimer timer_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_VISIBLE_BELL_H_
