#ifndef VAMO_DISPLAYS_QT_PANE_H_
#define VAMO_DISPLAYS_QT_PANE_H_

#include <QWidget>

namespace vamo {

class Pane;
class WindowWidget;

// The widget of a window's pane. It paints what the pane has to show, takes no key, and leaves a
// press to the window system, which brings the window to the front by it.
class PaneWidget : public QWidget {
 public:
  explicit PaneWidget(WindowWidget& parent);

  // Null where there is none, or the window's part on the display has been given up.
  const Pane* ShownPane() const;
  // Shows an open pane as wide as the screen lets it be, and none that is closed. False: the screen
  // has no room for it.
  bool Refresh();
  // How wide the pane is at least, with the window's factor; 0 while it is closed.
  int SmallestWidth() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  WindowWidget& window_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_PANE_H_
