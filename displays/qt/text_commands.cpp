#include "displays/qt/text_commands.h"

#include <QMenu>
#include <QPoint>
#include <algorithm>
#include <array>

#include "displays/qt/convert.h"
#include "displays/qt/menu.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/text/edit_commands.h"

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

QKeySequence::StandardKey PlatformKey(EditAction action) {
  switch (action) {
    case EditAction::kUndo:
      return QKeySequence::Undo;
    case EditAction::kCut:
      return QKeySequence::Cut;
    case EditAction::kCopy:
      return QKeySequence::Copy;
    case EditAction::kPaste:
      return QKeySequence::Paste;
    // The toolkit handles this key.
    case EditAction::kDelete:
      break;
  }
  return QKeySequence::UnknownKey;
}

void Do(const EditCommand& command, TextEdit& text) {
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
  for (const EditCommand& command : kEditCommands) {
    const bool pastes = command.action == EditAction::kPaste && IsPasteToo(event);
    if (!pastes && !event.matches(PlatformKey(command.action))) continue;
    Do(command, text);
    return true;
  }
  return false;
}

void OpenTextMenu(QWidget& widget, TextEdit& text, const QPoint& at,
                  const std::function<void()>& select_all) {
  auto* menu = new QMenu(&widget);
  QObject::connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
  QString letters_in_use;
  for (const EditCommand& command : kEditCommands) {
    if (command.action == EditAction::kCut) menu->addSeparator();
    QAction* action = menu->addAction(WithMnemonic(ToQString(command.title), letters_in_use));
    action->setEnabled((text.*command.can_act)());
    QObject::connect(action, &QAction::triggered, &widget,
                     [&command, self = Self(&text)] { Do(command, *self); });
  }
  menu->addSeparator();
  QAction* action = menu->addAction(WithMnemonic(QStringLiteral("Select All"), letters_in_use));
  action->setEnabled(!text.Text().empty());
  QObject::connect(action, &QAction::triggered, &widget, select_all);
  menu->popup(at);
}

}  // namespace vamo
