#ifndef VAMO_DISPLAYS_QT_PRESSES_H_
#define VAMO_DISPLAYS_QT_PRESSES_H_

#include <QMouseEvent>
#include <QObject>

namespace vamo {

class Activation;
class WindowWidget;

// Reports presses of the mouse and of fingers before the widgets get them, because Qt moves the
// focus first. A press that the toolkit refuses reaches no widget.
class PressRouter : public QObject {
 public:
  PressRouter(WindowWidget& window, Activation& activation);

  // Call this when the platform's window has been created.
  void WatchPlatformWindow();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Returns whether the press may go on to the widgets.
  bool HandlePress(const QMouseEvent& event);

  WindowWidget& window_;
  Activation& activation_;
  bool ignoring_ = false;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_PRESSES_H_
