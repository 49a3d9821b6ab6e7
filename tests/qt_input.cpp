// How the user of the Qt display gets keys and the mouse to the program.
#include "qt_input.h"

#include <QApplication>
#include <QWheelEvent>
#include <QWindow>
#include <map>

namespace vamo {
namespace {

// Qt::Key_unknown for a character that is a key's own.
Qt::Key CodeOf(const Key& key) {
  static const std::map<KeyCode, Qt::Key> kCoded{
      {KeyCode::kLeft, Qt::Key_Left},     {KeyCode::kRight, Qt::Key_Right},
      {KeyCode::kUp, Qt::Key_Up},         {KeyCode::kDown, Qt::Key_Down},
      {KeyCode::kPageUp, Qt::Key_PageUp}, {KeyCode::kPageDown, Qt::Key_PageDown},
      {KeyCode::kHome, Qt::Key_Home},     {KeyCode::kEnd, Qt::Key_End},
      {KeyCode::kHelp, Qt::Key_F1},       {KeyCode::kOther, Qt::Key_F5},
  };
  static const std::map<std::string, Qt::Key> kControls{
      {"\b", Qt::Key_Backspace}, {"\t", Qt::Key_Tab},      {"\r", Qt::Key_Return},
      {"\x1b", Qt::Key_Escape},  {"\x7f", Qt::Key_Delete},
  };
  if (key.code != KeyCode::kCharacter) return kCoded.at(key.code);
  const auto control = kControls.find(key.text);
  return control == kControls.end() ? Qt::Key_unknown : control->second;
}

}  // namespace

void QtInput::PressKey(const Key& key) {
  QString text = QString::fromStdString(key.text);
  Qt::Key code = CodeOf(key);
  if (code == Qt::Key_unknown && text.size() == 1) code = Qt::Key(text[0].toUpper().unicode());
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ShiftModifier, key.shift);
  modifiers.setFlag(Qt::ControlModifier, key.command || key.word);
  if (key.command) text = QString(QChar(text[0].unicode() & 0x1F));
  for (const auto action : {QTest::Press, QTest::Release}) {
    // The release of a key that has closed the last window has nowhere to go.
    if (QWindow* window = QGuiApplication::focusWindow()) {
      QTest::sendKeyEvent(action, window, code, text, modifiers);
    }
  }
}

void QtInput::MoveTo(const QPoint& point) {
  point_ = point;
  Mouse(QTest::MouseMove, Qt::NoButton);
}

void QtInput::TurnWheel(int notches) {
  QWidget* widget = QApplication::widgetAt(point_);
  QWheelEvent event(widget->mapFromGlobal(QPointF(point_)), point_, {}, {0, 120 * notches},
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(widget, &event);
}

void QtInput::Mouse(QTest::MouseAction action, Qt::MouseButton button) {
  QWindow* window = QGuiApplication::topLevelAt(point_);
  if (window == nullptr) return;
  QTest::mouseEvent(action, window, button, {}, window->mapFromGlobal(point_));
}

}  // namespace vamo
