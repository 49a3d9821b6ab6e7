#include "displays/qt/text_field.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

#include "displays/qt/convert.h"
#include "displays/qt/text_commands.h"
#include "toolkit/control/label.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

Qt::InputMethodHints HintsFor(KeyboardKind keyboard) {
  switch (keyboard) {
    case KeyboardKind::kNumber:
      return Qt::ImhFormattedNumbersOnly;
    case KeyboardKind::kDigits:
      return Qt::ImhDigitsOnly;
    case KeyboardKind::kAll:
      break;
  }
  return Qt::ImhNone;
}

}  // namespace

FieldWidget::FieldWidget(TextField& field, QWidget& parent) : WidgetFor(field, parent) {
  setMaxLength(std::numeric_limits<int>::max());
  const auto report_selection = [this] {
    if (IsUsersDoing()) ReportSelection();
  };
  connect(this, &QLineEdit::selectionChanged, this, report_selection);
  connect(this, &QLineEdit::cursorPositionChanged, this, report_selection);
  connect(this, &QLineEdit::textChanged, this, [this](const QString& foreign) {
    if (IsUsersDoing()) ReportForeignText(foreign);
  });
}

void FieldWidget::ShowLook() {
  const TextField& field = TheControl();
  setFont(ToQFont(field.Font(), Factor()));
  // In addition to the two pixels that Qt keeps free at both ends of the text.
  const int margin = Scaled(2, Factor()) - 2;
  setTextMargins(margin, 0, margin, 0);
  setAlignment(ToQtAlignment(field.Alignment()));
  setFrame(field.HasBorder());
  setReadOnly(field.ReadOnly());
  setEchoMode(field.Password() ? QLineEdit::Password : QLineEdit::Normal);
  setInputMethodHints(inputMethodHints() | HintsFor(KeyboardFor(field.Rule())));
  setPlaceholderText(ToQString(field.Hint()));
  QPalette colours = palette();
  colours.setColor(QPalette::Text, ToQColor(field.TextColour()));
  colours.setColor(QPalette::Base, ToQColor(field.BackgroundColour()));
  setPalette(colours);
}

void FieldWidget::ShowState() {
  ShowCaption();
  ShowText();
  ShowSelection();
}

// The widget remembers each edit for its own undo, which the user cannot reach, and forgets them
// all when the text is set as a whole.
void FieldWidget::ShowText() {
  const QString shown = ToQString(TheControl().Text());
  if (text() != shown && hasFocus()) Edit(shown);
  if (text() == shown) return;
  setText(shown);
  remembered_ = 0;
}

// Leaves alone what stays the same: a screen reader speaks what is removed and inserted in the
// focused field, so that a backspace is one character to it.
void FieldWidget::Edit(const QString& after) {
  const QString before = text();
  const qsizetype shorter = std::min(before.size(), after.size());
  // An edit leaves the text after the caret as it was.
  const int caret = ToQtPosition(TheControl().Text(), TheControl().Selection().caret);
  const qsizetype after_caret = std::min(shorter, after.size() - caret);
  qsizetype tail = 0;
  while (tail < after_caret && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
    ++tail;
  qsizetype head = 0;
  while (head < shorter - tail && before[head] == after[head]) ++head;
  const qsizetype removed = before.size() - tail - head;
  const qsizetype inserted = after.size() - tail - head;
  constexpr qsizetype kMostRemembered = 1000;
  remembered_ += removed + inserted;
  if (remembered_ <= kMostRemembered) Replace(head, removed, after.mid(head, inserted));
}

// Does not select a single character first, because that would be spoken too.
void FieldWidget::Replace(qsizetype from, qsizetype length, const QString& inserted) {
  const int at = static_cast<int>(from);
  if (length == 0) {
    setCursorPosition(at);
  } else if (length > 1 || hasSelectedText()) {
    setSelection(at, static_cast<int>(length));
    if (inserted.isEmpty()) del();
  } else if (cursorPosition() == at) {
    del();
  } else {
    setCursorPosition(at + 1);
    backspace();
  }
  if (!inserted.isEmpty()) insert(inserted);
}

void FieldWidget::ShowCaption() {
  if (Control() == nullptr) return;
  const Ref<Label> caption = TheControl().LabelledBy();
  if (!caption) return;
  auto* label = parentWidget()->findChild<QLabel*>(ToQString(caption->Name()));
  if (label != nullptr && label->buddy() != this) label->setBuddy(this);
}

void FieldWidget::ShowSelection() {
  const auto [anchor, caret] = TheControl().Selection();
  const int from = ToQtPosition(TheControl().Text(), anchor);
  const int to = ToQtPosition(TheControl().Text(), caret);
  const bool shown = cursorPosition() == to && selectionLength() == std::abs(to - from);
  if (shown) return;
  if (from == to) {
    setCursorPosition(to);
  } else {
    setSelection(from, to - from);
  }
}

void FieldWidget::ReportSelection() {
  const int caret = cursorPosition();
  int anchor = caret;
  if (hasSelectedText()) anchor = selectionStart() == caret ? selectionEnd() : selectionStart();
  TextField& field = TheControl();
  field.UserSelected(ToByteOffset(field.Text(), anchor), ToByteOffset(field.Text(), caret));
}

void FieldWidget::ReportPaste(const QString& pasted) {
  TheControl().UserPasted(ToUtf8(pasted));
  Refresh();
}

void FieldWidget::ReportForeignText(const QString& foreign) {
  TheControl().UserSelected(0, TheControl().Text().size());
  ReportPaste(foreign);
}

void FieldWidget::keyPressEvent(QKeyEvent* event) {
  if (Control() != nullptr && !DoEditKey(TheControl(), *event) && IsCaretKey(*event)) {
    QLineEdit::keyPressEvent(event);
  }
  event->accept();
}

void FieldWidget::inputMethodEvent(QInputMethodEvent* event) {
  const QString committed = event->commitString();
  const int replaced = event->replacementLength();
  if (Control() != nullptr && (replaced > 0 || !committed.isEmpty())) {
    QInputMethodEvent nothing_being_composed;
    QLineEdit::inputMethodEvent(&nothing_being_composed);
    const Ref<Window> window = TheControl().Window();
    if (replaced > 0) {
      setSelection(cursorPosition() + event->replacementStart(), replaced);
      if (committed.isEmpty()) window->UserPressedKey(Key::Character(std::string(1, kBackspace)));
    }
    window->UserTyped(ToUtf8(committed));
    // If its first character was refused, the text that it would have replaced is still selected.
    deselect();
  }
  QInputMethodEvent composed(event->preeditString(), event->attributes());
  QLineEdit::inputMethodEvent(&composed);
  event->accept();
}

void FieldWidget::mouseReleaseEvent(QMouseEvent* event) {
  const QClipboard* clipboard = QGuiApplication::clipboard();
  if (event->button() != Qt::MiddleButton) {
    QLineEdit::mouseReleaseEvent(event);
    const bool clicked = event->button() == Qt::LeftButton && rect().contains(event->pos());
    if (clicked && IsUsersDoing()) TheControl().Window()->UserClicked(Self(&TheControl()));
  } else if (IsUsersDoing() && clipboard->supportsSelection()) {
    ReportPaste(clipboard->text(QClipboard::Selection));
  }
}

void FieldWidget::contextMenuEvent(QContextMenuEvent* event) {
  if (Control() == nullptr) return;
  OpenTextMenu(*this, TheControl(), event->globalPos(), [this] { selectAll(); });
}

void FieldWidget::dropEvent(QDropEvent* event) {
  if (!IsUsersDoing() || isReadOnly() || !event->mimeData()->hasText()) return;
  setCursorPosition(cursorPositionAt(event->position().toPoint()));
  ReportPaste(event->mimeData()->text());
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void FieldWidget::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  ReportFocus(event->reason());
}

// Qt would drop the selection when the focus moves to the menu bar, where Cut and Copy are.
void FieldWidget::focusOutEvent(QFocusEvent* event) {
  QFocusEvent to_menu(QEvent::FocusOut, Qt::PopupFocusReason);
  QLineEdit::focusOutEvent(event->reason() == Qt::MenuBarFocusReason ? &to_menu : event);
}

void FieldWidget::showEvent(QShowEvent* event) {
  QLineEdit::showEvent(event);
  ShowCaption();
}

}  // namespace vamo
