#ifndef VAMO_DISPLAYS_QT_PRESSES_H_
#define VAMO_DISPLAYS_QT_PRESSES_H_

#include <QMouseEvent>
#include <QObject>

namespace vamo {

class Activation;
class WindowWidget;

// Reports where presses of the mouse and of fingers begin in a window, before a widget sees them:
// Qt moves the focus before it asks the widget. A press that the toolkit does not want, no widget
// sees.
class PressRouter : public QObject {
 public:
  PressRouter(WindowWidget& window, Activation& activation);

  // To be called when the platform's end of the window has been made.
  void WatchPlatformWindow();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Whether the widgets may see the press.
  bool TakePress(const QMouseEvent& event);

  WindowWidget& window_;
  Activation& activation_;
  bool ignoring_ = false;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_PRESSES_H_
