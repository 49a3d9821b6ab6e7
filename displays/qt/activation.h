// Which window is active.
#ifndef VAMO_DISPLAYS_QT_ACTIVATION_H_
#define VAMO_DISPLAYS_QT_ACTIVATION_H_

#include <QPointer>
#include <QTimer>

namespace vamo {

class WindowWidget;

// Reports to the toolkit which window the platform has activated. A menu that closes can return the
// focus to its window for a moment although its item has just shown another window: while a shown
// window waits for the focus, no other one is reported. On Wayland a menu itself may have the
// keyboard focus, and its window is without the focus for a moment when the menu closes. That is
// not reported either, since a menu is not another window.
class Activation {
 public:
  Activation();

  // A press has begun in the window, which the toolkit now treats as active. Activates it if the
  // window manager has not.
  void Pressed(WindowWidget& window);
  // The window has been shown and is waiting for the focus.
  void Await(WindowWidget& window);
  // The active window is about to be hidden and shown again, which is not an activation.
  void AwaitAgain(WindowWidget& window);
  // What the platform reports.
  void Activated(const WindowWidget& window);
  void Deactivated(WindowWidget& window);

 private:
  // A menu has closed, and its window has not received the focus back.
  void GiveUpReturn();
  // The platform has focused no window, or has left the focus where it was.
  void GiveUp();

  QPointer<WindowWidget> awaited_;
  QTimer patience_;
  // The window that waits for the focus to return from its menu.
  QPointer<WindowWidget> left_for_menu_;
  QTimer return_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_ACTIVATION_H_
