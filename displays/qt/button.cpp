#include "displays/qt/button.h"

#include <QMouseEvent>
#include <QScopedValueRollback>

#include "toolkit/window/window.h"

namespace vamo {

ButtonWidget::ButtonWidget(PushButton& button, QWidget& parent) : WidgetFor(button, parent) {
  setAutoDefault(false);
  // Without the mouse and the keys, only assistive technology is left to press it.
  connect(this, &QPushButton::pressed, this, [this] {
    if (IsUsersDoing() && !in_mouse_press_) TheControl().UserPressedByAssistiveTechnology();
  });
}

void ButtonWidget::ShowState() {
  const PushButton& button = TheControl();
  setText(ToQString(button.Caption()).replace(u'&', QStringLiteral("&&")));
  setDefault(button.Default());
  // Only to be read out: the toolkit knows what the key does. A new text takes it away.
  const bool has_key = button.Window()->KeyThatPresses(button) == KeyCode::kHelp;
  setShortcut(has_key ? QKeySequence(Qt::Key_F1) : QKeySequence());
}

void ButtonWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || Control() == nullptr) {
    event->ignore();
    return;
  }
  const QPoint at = (event->position() / Factor()).toPoint();
  if (TheControl().UserPressed(at.x(), at.y())) return;
  const QScopedValueRollback<bool> in_mouse_press(in_mouse_press_, true);
  QPushButton::mousePressEvent(event);
}

}  // namespace vamo
