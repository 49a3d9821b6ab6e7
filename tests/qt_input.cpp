// How the user of the Qt display gets keys and the mouse to the program.
#include "qt_input.h"

#include <QApplication>
#include <QProcess>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <map>

#include "toolkit/exceptions.h"

namespace vamo {
namespace {

struct KeyName {
  Qt::Key key;
  const char* keysym;
};

KeyName NameOf(const Key& key) {
  static const std::map<KeyCode, KeyName> kCoded{
      {KeyCode::kLeft, {Qt::Key_Left, "Left"}},
      {KeyCode::kRight, {Qt::Key_Right, "Right"}},
      {KeyCode::kUp, {Qt::Key_Up, "Up"}},
      {KeyCode::kDown, {Qt::Key_Down, "Down"}},
      {KeyCode::kPageUp, {Qt::Key_PageUp, "Prior"}},
      {KeyCode::kPageDown, {Qt::Key_PageDown, "Next"}},
      {KeyCode::kHome, {Qt::Key_Home, "Home"}},
      {KeyCode::kEnd, {Qt::Key_End, "End"}},
      {KeyCode::kOther, {Qt::Key_F5, "F5"}},
  };
  static const std::map<std::string, KeyName> kControls{
      {"\b", {Qt::Key_Backspace, "BackSpace"}}, {"\t", {Qt::Key_Tab, "Tab"}},
      {"\r", {Qt::Key_Return, "Return"}},       {"\x1b", {Qt::Key_Escape, "Escape"}},
      {"\x7f", {Qt::Key_Delete, "Delete"}},
  };
  if (key.code != KeyCode::kCharacter) return kCoded.at(key.code);
  const auto control = kControls.find(key.text);
  return control == kControls.end() ? KeyName{Qt::Key_unknown, nullptr} : control->second;
}

// Events through Qt's own queue.
class QueueInput : public QtInput {
 public:
  void PressKey(const Key& key) override {
    const KeyName name = NameOf(key);
    QString text = QString::fromStdString(key.text);
    Qt::Key code = name.key;
    if (code == Qt::Key_unknown && text.size() == 1) code = Qt::Key(text[0].toUpper().unicode());
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, key.shift);
    modifiers.setFlag(Qt::ControlModifier, key.command);
    if (key.command) text = QString(QChar(text[0].unicode() & 0x1F));
    for (const auto action : {QTest::Press, QTest::Release}) {
      // The release of a key that has closed the last window has nowhere to go.
      if (QWindow* window = QGuiApplication::focusWindow()) {
        QTest::sendKeyEvent(action, window, code, text, modifiers);
      }
    }
  }
  void MoveTo(const QPoint& point) override {
    point_ = point;
    Mouse(QTest::MouseMove, Qt::NoButton);
  }
  void Press() override { Mouse(QTest::MousePress, Qt::LeftButton); }
  void Release() override { Mouse(QTest::MouseRelease, Qt::LeftButton); }
  void TurnWheel(int notches) override {
    QWidget* widget = QApplication::widgetAt(point_);
    QWheelEvent event(widget->mapFromGlobal(QPointF(point_)), point_, {}, {0, 120 * notches},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
  }
  void Activate(QWidget& window) override { window.windowHandle()->requestActivate(); }
  void CloseActiveWindow() override { QApplication::activeWindow()->windowHandle()->close(); }

 private:
  void Mouse(QTest::MouseAction action, Qt::MouseButton button) {
    QWindow* window = QGuiApplication::topLevelAt(point_);
    if (window == nullptr) return;
    QTest::mouseEvent(action, window, button, {}, window->mapFromGlobal(point_));
  }

  QPoint point_;
};

// Events through an X server, as a keyboard and a mouse cause them.
class XdotoolInput : public QtInput {
 public:
  void PressKey(const Key& key) override {
    const char* keysym = NameOf(key).keysym;
    const QString text = QString::fromStdString(key.text);
    if (keysym == nullptr && !key.command) return Run({"type", "--", text});
    QString combination = keysym == nullptr ? text : QString(keysym);
    if (key.shift) combination.prepend("shift+");
    if (key.command) combination.prepend("ctrl+");
    Run({"key", combination});
  }
  void MoveTo(const QPoint& point) override {
    Run({"mousemove", QString::number(point.x()), QString::number(point.y())});
  }
  void Press() override { Run({"mousedown", "1"}); }
  void Release() override { Run({"mouseup", "1"}); }
  void TurnWheel(int notches) override {
    Run({"click", "--repeat", QString::number(std::abs(notches)), notches > 0 ? "4" : "5"});
  }
  void Activate(QWidget& window) override {
    Run({"windowactivate", QString::number(window.winId())});
  }
  void CloseActiveWindow() override { Run({"key", "alt+F4"}); }

 private:
  static void Run(const QStringList& arguments) {
    QProcess xdotool;
    xdotool.start("xdotool", arguments);
    // The program is in this process and must answer the window manager meanwhile.
    while (!xdotool.waitForFinished(1) && xdotool.state() != QProcess::NotRunning) {
      QCoreApplication::processEvents();
    }
    if (xdotool.exitCode() != 0) {
      throw UnsupportedOperationException("xdotool: " +
                                          xdotool.readAllStandardError().toStdString());
    }
  }
};

}  // namespace

std::unique_ptr<QtInput> MakeQtInput() {
  if (qEnvironmentVariable("VAMO_TEST_INPUT") == "xdotool") return std::make_unique<XdotoolInput>();
  return std::make_unique<QueueInput>();
}

}  // namespace vamo
