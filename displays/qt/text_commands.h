// What the text field and the text area do alike with keys and menus.
#ifndef VAMO_DISPLAYS_QT_TEXT_COMMANDS_H_
#define VAMO_DISPLAYS_QT_TEXT_COMMANDS_H_

#include <QKeyEvent>
#include <functional>

#include "toolkit/text/text_edit.h"

class QPoint;
class QWidget;

namespace vamo {

// Whether a key, as the platform understands it, moves the caret or selects, and changes no text.
bool IsCaretKey(const QKeyEvent& event);

// Does what a key asks for where the platform has it for Undo, Cut, Copy or Paste. Whether it has.
bool DoEditKey(TextEdit& text, const QKeyEvent& event);

// Opens the menu of a text control at a place on the screen. `select_all` selects the widget's
// text.
void OpenTextMenu(QWidget& widget, TextEdit& text, const QPoint& at,
                  const std::function<void()>& select_all);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_TEXT_COMMANDS_H_
