#include "displays/qt/button.h"

#include <QMouseEvent>
#include <QScopedValueRollback>

#include "toolkit/window/window.h"

namespace vamo {

ButtonWidget::ButtonWidget(PushButton& button, QWidget& parent) : WidgetFor(button, parent) {
  setAutoDefault(false);
  // The mouse is handled below and the button never gets a key, so this is assistive technology.
  connect(this, &QPushButton::pressed, this, [this] {
    if (IsUsersDoing() && !in_mouse_press_) TheControl().UserPressedByAssistiveTechnology();
  });
}

void ButtonWidget::ShowState() {
  const PushButton& button = TheControl();
  setText(ToQString(button.Caption()).replace(u'&', QStringLiteral("&&")));
  // Only for screen readers to read: the toolkit handles the key. A new text clears it.
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
