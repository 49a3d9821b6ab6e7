#ifndef VAMO_DISPLAYS_QT_PANE_H_
#define VAMO_DISPLAYS_QT_PANE_H_

#include <QWidget>

namespace vamo {

class Pane;
class WindowWidget;

// The widget of a window's open pane. It paints what the pane shows. It handles no keys, and leaves
// a press to the window system, which brings the window to the front.
class PaneWidget : public QWidget {
 public:
  explicit PaneWidget(WindowWidget& parent);

  // Null if the window's view is destroyed.
  const Pane* ShownPane() const;
  // Shows the pane as wide as the screen allows. Returns false if the screen has no room for it.
  bool Refresh();
  // The smallest width of the pane at the window's factor.
  int SmallestWidth() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  WindowWidget& window_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_PANE_H_
