#include "displays/qt/text_area.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QTextCursor>

#include "displays/qt/convert.h"
#include "displays/qt/text_commands.h"
#include "toolkit/window/window.h"

namespace vamo {
AreaWidget::AreaWidget(TextArea& area, QWidget& parent) : WidgetFor(area, parent) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  const auto report_selection = [this] {
    if (IsUsersDoing()) ReportSelection();
  };
  connect(this, &QPlainTextEdit::selectionChanged, this, report_selection);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, report_selection);
}

void AreaWidget::ShowLook() {
  setFont(ToQFont(TheControl().Font(), Factor()));
  document()->setDocumentMargin(Scaled(4, Factor()));
  setCursorWidth(Scaled(1, Factor()));
  ShowBorder();
  ShowColours();
}

void AreaWidget::ShowState() {
  const QString shown = ToQString(TheControl().TextInLines());
  if (toPlainText() != shown) setPlainText(shown);
  ShowSelection();
}

// If a side lies outside the window, the rest of the border would look like a mistake.
void AreaWidget::ShowBorder() {
  const TextArea& area = TheControl();
  const Window::State& window = area.Window()->InitialState();
  const Bounds& bounds = area.Bounds();
  const bool whole = bounds.left >= 0 && bounds.top >= 0 &&
                     bounds.left + bounds.width <= window.width &&
                     bounds.top + bounds.height <= window.height;
  setLineWidth(Scaled(1, Factor()));
  setFrameStyle(area.HasBorder() && whole ? QFrame::Box | QFrame::Plain : QFrame::NoFrame);
}

void AreaWidget::ShowColours() {
  QPalette colours = palette();
  colours.setColor(QPalette::Text, ToQColor(TheControl().TextColour()));
  colours.setColor(QPalette::Base, ToQColor(TheControl().BackgroundColour()));
  colours.setColor(QPalette::WindowText, palette().color(QPalette::Mid));
  // Qt paints with the inactive colours while the focus is elsewhere, even in a menu of this
  // window.
  const bool hidden = TheControl().HideSelection() && !isActiveWindow();
  const auto shown_as = [&](QPalette::ColorRole usual, QPalette::ColorRole unmarked) {
    colours.setColor(QPalette::Inactive, usual,
                     colours.color(QPalette::Active, hidden ? unmarked : usual));
  };
  shown_as(QPalette::Highlight, QPalette::Base);
  shown_as(QPalette::HighlightedText, QPalette::Text);
  if (colours != palette()) setPalette(colours);
}

void AreaWidget::ShowSelection() {
  const auto [anchor, caret] = TheControl().Selection();
  QTextCursor cursor = textCursor();
  const int from = ToQtPosition(TheControl().Text(), anchor);
  const int to = ToQtPosition(TheControl().Text(), caret);
  if (cursor.anchor() == from && cursor.position() == to) return;
  cursor.setPosition(from);
  cursor.setPosition(to, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

void AreaWidget::ReportSelection() {
  const QTextCursor cursor = textCursor();
  TextArea& area = TheControl();
  area.UserSelected(ToByteOffset(area.Text(), cursor.anchor()),
                    ToByteOffset(area.Text(), cursor.position()));
}

bool AreaWidget::event(QEvent* event) {
  const bool turned =
      event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate;
  const bool done = QPlainTextEdit::event(event);
  if (turned && Control() != nullptr) ShowColours();
  return done;
}

void AreaWidget::keyPressEvent(QKeyEvent* event) {
  if (Control() != nullptr && !DoEditKey(TheControl(), *event) && IsCaretKey(*event)) {
    QPlainTextEdit::keyPressEvent(event);
  }
  event->accept();
}

void AreaWidget::contextMenuEvent(QContextMenuEvent* event) {
  if (Control() == nullptr) return;
  OpenTextMenu(*this, TheControl(), event->globalPos(), [this] { selectAll(); });
}

void AreaWidget::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  ReportFocus(event->reason());
}

}  // namespace vamo
