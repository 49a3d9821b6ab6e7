// What assistive technology reads where Qt's own answer falls short.
#ifndef VAMO_DISPLAYS_QT_ACCESSIBLE_H_
#define VAMO_DISPLAYS_QT_ACCESSIBLE_H_

#include <QAccessible>

namespace vamo {

// A factory for Qt: makes the accessible interfaces of windows, panes, sliders and labels, and null
// for any other object.
QAccessibleInterface* MakeAccessible(const QString& class_name, QObject* object);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_ACCESSIBLE_H_
