#ifndef VAMO_DISPLAYS_QT_TEXT_FIELD_H_
#define VAMO_DISPLAYS_QT_TEXT_FIELD_H_

#include <QLineEdit>

#include "displays/qt/control.h"
#include "toolkit/text/text_field.h"

namespace vamo {

// Shows a text field. Moves the caret and selects as the platform does, and reports it. It does not
// edit text itself: it reports typing, pasting and dropping, and shows the result.
class FieldWidget : public WidgetFor<QLineEdit, TextField> {
 public:
  FieldWidget(TextField& field, QWidget& parent);

 protected:
  void ShowState() override;
  void ShowLook() override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  // The caption may have been created after the field; now it exists.
  void showEvent(QShowEvent* event) override;

 private:
  void ShowCaption();
  void ShowText();
  // Applies the difference between the shown text and `after`, unless it is too large.
  void Edit(const QString& after);
  // Replaces that part of the shown text with `inserted`.
  void Replace(qsizetype from, qsizetype length, const QString& inserted);
  void ShowSelection();
  void ReportSelection();
  void ReportPaste(const QString& pasted);
  // Something other than the toolkit has set a text: reports it as a paste over the whole text.
  void ReportForeignText(const QString& foreign);

  // The number of characters that the widget remembers for its own undo.
  qsizetype remembered_ = 0;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_TEXT_FIELD_H_
