#include "displays/qt/pane.h"

#include <QAccessible>
#include <algorithm>

#include "displays/qt/convert.h"
#include "displays/qt/painting.h"
#include "displays/qt/placement.h"
#include "displays/qt/window.h"
#include "toolkit/window/pane.h"
#include "toolkit/window/window.h"

namespace vamo {

PaneWidget::PaneWidget(WindowWidget& parent) : window_(parent) {
  // Newer versions of Qt make the accessible object when a widget gets a visible parent, which must
  // not be while this is only a QWidget.
  setParent(&parent);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(ToQString(Pane::kName));
}

const Pane* PaneWidget::ShownPane() const {
  Window* window = window_.ShownWindow();
  return window == nullptr ? nullptr : window->SidePane();
}

bool PaneWidget::Refresh() {
  const QSize content = window_.Content().size();
  const int room = WidthOfRoom(window_) - content.width();
  if (room < SmallestWidth()) return false;
  setFixedSize(std::min(qRound(Pane::kWidth * window_.Factor()), room), content.height());
  update();
  if (QAccessible::isActive()) {
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
  }
  return true;
}

int PaneWidget::SmallestWidth() const { return qRound(Pane::kSmallestWidth * window_.Factor()); }

void PaneWidget::paintEvent(QPaintEvent* /*event*/) {
  const Pane* pane = ShownPane();
  if (pane == nullptr) return;
  const double factor = window_.Factor();
  Paint(pane->Draw(width() / factor, height() / factor), factor, *this);
}

}  // namespace vamo
