// How the text field and the text area handle keys and menus.
#ifndef VAMO_DISPLAYS_QT_TEXT_COMMANDS_H_
#define VAMO_DISPLAYS_QT_TEXT_COMMANDS_H_

#include <QKeyEvent>
#include <functional>

#include "toolkit/text/text_edit.h"

class QPoint;
class QWidget;

namespace vamo {

// Whether a key moves the caret or selects on this platform, without changing text.
bool IsCaretKey(const QKeyEvent& event);

// Runs the Edit command whose key on this platform the event is. Returns whether there is one.
bool DoEditKey(TextEdit& text, const QKeyEvent& event);

// Opens the context menu of a text control at a position on the screen. `select_all` selects the
// widget's text.
void OpenTextMenu(QWidget& widget, TextEdit& text, const QPoint& at,
                  const std::function<void()>& select_all);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_TEXT_COMMANDS_H_
