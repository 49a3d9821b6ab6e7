// The system alert on a platform that has no sound for it.
#ifndef VAMO_DISPLAYS_QT_VISIBLE_BELL_H_
#define VAMO_DISPLAYS_QT_VISIBLE_BELL_H_

#include <QPalette>
#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace vamo {

// Whether QApplication::beep is heard: under Wayland, for example, it does nothing.
bool PlatformSoundsAlerts();

// Lets one widget at a time light up for a moment. One that is alerted again while it is lit stays
// so a little longer and does not flicker.
class VisibleBell {
 public:
  VisibleBell();

  // `widget` may be null.
  void Flash(QWidget* widget);

 private:
  void End();

  QPointer<QWidget> lit_;
  QPalette usual_colours_;
  QTimer timer_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_VISIBLE_BELL_H_
