#ifndef VAMO_DISPLAYS_QT_TEXT_AREA_H_
#define VAMO_DISPLAYS_QT_TEXT_AREA_H_

#include <QPlainTextEdit>

#include "displays/qt/control.h"
#include "toolkit/text/text_area.h"

namespace vamo {

// Shows a text of several lines, wrapped at words, that can be selected but not changed.
class AreaWidget : public WidgetFor<QPlainTextEdit, TextArea> {
 public:
  AreaWidget(TextArea& area, QWidget& parent);

 protected:
  bool event(QEvent* event) override;
  void ShowState() override;
  void ShowLook() override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void ShowBorder();
  void ShowColours();
  void ShowSelection();
  void ReportSelection();
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_TEXT_AREA_H_
