// Steps that the tests of the Qt display share.
#ifndef VAMO_TESTS_QT_STEPS_H_
#define VAMO_TESTS_QT_STEPS_H_

#include <QApplication>
#include <QWidget>
#include <stdexcept>

namespace vamo {

// The widget of that class and accessible name in the active window.
template <class Widget>
Widget& Named(const char* accessible_name) {
  for (auto* widget : QApplication::activeWindow()->findChildren<Widget*>()) {
    if (widget->accessibleName() == QLatin1String(accessible_name)) return *widget;
  }
  throw std::runtime_error(accessible_name);
}

}  // namespace vamo

#endif  // VAMO_TESTS_QT_STEPS_H_
