#ifndef VAMO_DISPLAYS_QT_CONTENT_H_
#define VAMO_DISPLAYS_QT_CONTENT_H_

#include <QWidget>
#include <vector>

#include "displays/qt/control.h"

namespace vamo {

class WindowWidget;

// The area of a window that holds its controls: places them, draws the background, and reports the
// presses that no control handles.
class ContentWidget : public QWidget {
 public:
  explicit ContentWidget(WindowWidget& parent);

  // Adds a control's new widget, whose parent is this widget.
  void Add(ControlWidget& widget);
  // Scales all controls by the window's factor.
  void Rescale();
  // The widget of a control, or null.
  QWidget* Find(const RectControl* control) const;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place(ControlWidget& widget);

  WindowWidget& window_;
  std::vector<ControlWidget*> controls_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_CONTENT_H_
