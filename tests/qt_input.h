// How the user of the Qt display gets keys and the mouse to the program.
#ifndef VAMO_TESTS_QT_INPUT_H_
#define VAMO_TESTS_QT_INPUT_H_

#include <QPoint>
#include <memory>

#include "toolkit/key.h"

class QWidget;

namespace vamo {

// A keyboard, a mouse and a hand for the window manager. Points are on the screen, in logical
// pixels.
class QtInput {
 public:
  virtual ~QtInput() = default;
  virtual void PressKey(const Key& key) = 0;
  virtual void MoveTo(const QPoint& point) = 0;
  virtual void Press() = 0;
  virtual void Release() = 0;
  virtual void TurnWheel(int notches) = 0;
  virtual void Activate(QWidget& window) = 0;
  virtual void CloseActiveWindow() = 0;
};

// The one that the environment asks for: VAMO_TEST_INPUT=xdotool for events of an X server.
std::unique_ptr<QtInput> MakeQtInput();

}  // namespace vamo

#endif  // VAMO_TESTS_QT_INPUT_H_
