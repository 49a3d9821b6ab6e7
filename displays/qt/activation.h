// Which window the user's keys go to.
#ifndef VAMO_DISPLAYS_QT_ACTIVATION_H_
#define VAMO_DISPLAYS_QT_ACTIVATION_H_

#include <QPointer>
#include <QTimer>

namespace vamo {

class WindowWidget;

// Passes on to the toolkit which window the platform has made the active one. A menu that closes
// can give the keys back to its window for a moment although its item has just brought another
// window up: while a shown window waits for the keys, no other one is reported. On Wayland a menu
// itself may have the keyboard focus, and its window is without it for a moment when the menu
// closes: that is not reported either, since a menu is no other window.
class Activation {
 public:
  Activation();

  // A press has begun in the window, which the toolkit takes for the active one by now. Where no
  // window manager does it, the program itself must make it so.
  void Pressed(WindowWidget& window);
  // The window has been brought up and is to have the keys.
  void Await(WindowWidget& window);
  // The active window is about to go and to come up again, which is no activation of it.
  void AwaitAgain(WindowWidget& window);
  // What the platform says.
  void Activated(const WindowWidget& window);
  void Deactivated(WindowWidget& window);

 private:
  // A menu has closed, and its window has not got the focus back.
  void GiveUpReturn();
  // The platform has given the keys to no window, or has left them where they were.
  void GiveUp();

  QPointer<WindowWidget> awaited_;
  QTimer patience_;
  // The window that is to get the focus back from its menu.
  QPointer<WindowWidget> left_for_menu_;
  QTimer return_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_ACTIVATION_H_
