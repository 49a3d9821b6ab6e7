#ifndef VAMO_DISPLAYS_QT_TEXT_FIELD_H_
#define VAMO_DISPLAYS_QT_TEXT_FIELD_H_

#include <QLineEdit>

#include "displays/qt/control.h"
#include "toolkit/text/text_field.h"

namespace vamo {

// Shows a text field; moves the caret and selects as the platform does and reports it. It edits no
// text itself: typing, pasting and dropping are reported, and what comes of them is shown.
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
  // The caption may have been created after the field; by now it is there.
  void showEvent(QShowEvent* event) override;

 private:
  void ShowCaption();
  void ShowText();
  // Makes the difference between what is shown and a text, unless it is too large for that.
  void Edit(const QString& after);
  // Puts `inserted` in the place of what is shown there.
  void Replace(qsizetype from, qsizetype length, const QString& inserted);
  void ShowSelection();
  void ReportSelection();
  void ReportPaste(const QString& pasted);
  // Something other than the toolkit has put a text in: takes it as a paste over the whole.
  void ReportForeignText(const QString& foreign);

  // The characters that the widget remembers for an undo of its own.
  qsizetype remembered_ = 0;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_TEXT_FIELD_H_
