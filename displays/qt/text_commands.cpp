// What the text field and the text area do alike with keys and menus.
#include "displays/qt/text_commands.h"

#include <QMenu>
#include <QPoint>
#include <algorithm>
#include <array>

#include "toolkit/runtime.h"

namespace vamo {
namespace {

constexpr std::array kCaretKeys{
    QKeySequence::MoveToNextChar,
    QKeySequence::MoveToPreviousChar,
    QKeySequence::MoveToNextWord,
    QKeySequence::MoveToPreviousWord,
    QKeySequence::MoveToNextLine,
    QKeySequence::MoveToPreviousLine,
    QKeySequence::MoveToNextPage,
    QKeySequence::MoveToPreviousPage,
    QKeySequence::MoveToStartOfLine,
    QKeySequence::MoveToEndOfLine,
    QKeySequence::MoveToStartOfBlock,
    QKeySequence::MoveToEndOfBlock,
    QKeySequence::MoveToStartOfDocument,
    QKeySequence::MoveToEndOfDocument,
    QKeySequence::SelectNextChar,
    QKeySequence::SelectPreviousChar,
    QKeySequence::SelectNextWord,
    QKeySequence::SelectPreviousWord,
    QKeySequence::SelectNextLine,
    QKeySequence::SelectPreviousLine,
    QKeySequence::SelectNextPage,
    QKeySequence::SelectPreviousPage,
    QKeySequence::SelectStartOfLine,
    QKeySequence::SelectEndOfLine,
    QKeySequence::SelectStartOfBlock,
    QKeySequence::SelectEndOfBlock,
    QKeySequence::SelectStartOfDocument,
    QKeySequence::SelectEndOfDocument,
    QKeySequence::SelectAll,
    QKeySequence::Deselect,
};

struct Command {
  const char* title;
  QKeySequence::StandardKey key;
  bool (TextEdit::*can_act)() const;
  void (TextEdit::*act)();
};
constexpr std::array kCommands{
    Command{"&Undo", QKeySequence::Undo, &TextEdit::CanUndo, &TextEdit::Undo},
    Command{"Cu&t", QKeySequence::Cut, &TextEdit::CanCut, &TextEdit::Cut},
    Command{"&Copy", QKeySequence::Copy, &TextEdit::CanCopy, &TextEdit::Copy},
    Command{"&Paste", QKeySequence::Paste, &TextEdit::CanPaste, &TextEdit::Paste},
};

void Do(const Command& command, TextEdit& text) {
  Runtime::Current().Dispatch([&, self = Self(&text)] { (text.*command.act)(); });
}

bool IsPasteToo(const QKeyEvent& event) {
  return event.key() == Qt::Key_V && event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
}

}  // namespace

bool IsCaretKey(const QKeyEvent& event) {
  const auto matches = [&](QKeySequence::StandardKey key) { return event.matches(key); };
  return std::any_of(kCaretKeys.begin(), kCaretKeys.end(), matches);
}

bool DoEditKey(TextEdit& text, const QKeyEvent& event) {
  for (const Command& command : kCommands) {
    const bool pastes = command.key == QKeySequence::Paste && IsPasteToo(event);
    if (!pastes && !event.matches(command.key)) continue;
    Do(command, text);
    return true;
  }
  return false;
}

void OpenTextMenu(QWidget& widget, TextEdit& text, const QPoint& at,
                  const std::function<void()>& select_all) {
  auto* menu = new QMenu(&widget);
  QObject::connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
  for (const Command& command : kCommands) {
    if (command.key == QKeySequence::Cut) menu->addSeparator();
    QAction* action = menu->addAction(QString::fromLatin1(command.title));
    action->setEnabled((text.*command.can_act)());
    QObject::connect(action, &QAction::triggered, &widget,
                     [&command, self = Self(&text)] { Do(command, *self); });
  }
  menu->addSeparator();
  QAction* action = menu->addAction(QStringLiteral("Select &All"));
  action->setEnabled(!text.Text().empty());
  QObject::connect(action, &QAction::triggered, &widget, select_all);
  menu->popup(at);
}

}  // namespace vamo
