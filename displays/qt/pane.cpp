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

PaneWidget::PaneWidget(WindowWidget& parent) : QWidget(&parent), window_(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(ToQString(Pane::kName));
  hide();
}

const Pane* PaneWidget::ShownPane() const {
  Window* window = window_.ShownWindow();
  return window == nullptr ? nullptr : window->SidePane();
}

bool PaneWidget::Refresh() {
  const Pane* pane = ShownPane();
  const bool open = pane != nullptr && pane->IsOpen();
  if (open) {
    const QSize content = window_.Content().size();
    const int room = WidthOfRoom(window_) - content.width();
    const auto scaled = [this](double length) { return qRound(length * window_.Factor()); };
    if (room < scaled(Pane::kSmallestWidth)) return false;
    setFixedSize(std::min(scaled(Pane::kWidth), room), content.height());
    update();
    if (QAccessible::isActive()) {
      QAccessibleEvent event(this, QAccessible::DescriptionChanged);
      QAccessible::updateAccessibility(&event);
    }
  }
  setVisible(open);
  return true;
}

int PaneWidget::SmallestWidth() const {
  return isHidden() ? 0 : qRound(Pane::kSmallestWidth * window_.Factor());
}

void PaneWidget::paintEvent(QPaintEvent* /*event*/) {
  const Pane* pane = ShownPane();
  if (pane == nullptr) return;
  const double factor = window_.Factor();
  Paint(pane->Draw(width() / factor, height() / factor), factor, *this);
}

}  // namespace vamo
