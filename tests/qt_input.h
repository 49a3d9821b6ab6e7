// How the user of the Qt display gets keys and the mouse to the program.
#ifndef VAMO_TESTS_QT_INPUT_H_
#define VAMO_TESTS_QT_INPUT_H_

#include <QPoint>
#include <QTest>

#include "toolkit/key.h"

namespace vamo {

// A keyboard and a mouse at Qt's own queue of window system events. Points are on the screen, in
// logical pixels.
class QtInput {
 public:
  void PressKey(const Key& key);
  void MoveTo(const QPoint& point);
  void Press() { Mouse(QTest::MousePress, Qt::LeftButton); }
  void Release() { Mouse(QTest::MouseRelease, Qt::LeftButton); }
  void TurnWheel(int notches);

 private:
  void Mouse(QTest::MouseAction action, Qt::MouseButton button);

  QPoint point_;
};

}  // namespace vamo

#endif  // VAMO_TESTS_QT_INPUT_H_
