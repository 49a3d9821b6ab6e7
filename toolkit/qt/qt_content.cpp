// What a window shows below its menu bar.
#include "qt_content.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "qt_convert.h"
#include "qt_window.h"
#include "toolkit/window.h"

namespace vamo {
namespace {

struct Span {
  int begin;
  int length;
};

// One dimension of a control in a window that has grown by so much since it was designed.
Span Stretched(Span designed, int growth, bool begin_locked, bool end_locked) {
  if (!end_locked) return designed;
  if (!begin_locked) return {designed.begin + growth, designed.length};
  return {designed.begin, std::max(0, designed.length + growth)};
}

QSize DesignedSize(const Window::State& state) { return {ToInt(state.width), ToInt(state.height)}; }

}  // namespace

ContentWidget::ContentWidget(WindowWidget& parent)
    : QWidget(&parent),
      window_(parent),
      designed_size_(DesignedSize(parent.GetWindow()->GetState())) {
  const Window::State& state = parent.GetWindow()->GetState();
  setAutoFillBackground(true);
  QPalette colours = palette();
  // Without a colour of its own a window has that of the text on it, which then needs no edge.
  colours.setColor(QPalette::Window, state.has_background_colour ? ToQColor(state.background_colour)
                                                                 : colours.color(QPalette::Base));
  setPalette(colours);
}

ControlWidget& ContentWidget::AddControl(RectControl& control) {
  ControlWidget& widget = MakeControlWidget(control, *this);
  controls_.push_back(&widget);
  Place(widget);
  widget.Refresh();
  return widget;
}

QWidget* ContentWidget::Find(const RectControl* control) const {
  for (ControlWidget* widget : controls_) {
    if (control != nullptr && widget->GetControl() == control) return &widget->AsWidget();
  }
  return nullptr;
}

void ContentWidget::Place(ControlWidget& widget) {
  const RectControl* control = widget.GetControl();
  if (control == nullptr) return;
  const Bounds& bounds = control->Bounds();
  const RectControl::Locks& locks = control->GetLocks();
  const QSize growth = size() - designed_size_;
  const Span across =
      Stretched({ToInt(bounds.left), ToInt(bounds.width)}, growth.width(), locks.left, locks.right);
  const Span down = Stretched({ToInt(bounds.top), ToInt(bounds.height)}, growth.height(), locks.top,
                              locks.bottom);
  widget.AsWidget().setGeometry(across.begin, down.begin, across.length, down.length);
}

void ContentWidget::mousePressEvent(QMouseEvent* event) {
  event->accept();
  const QPoint at = event->position().toPoint();
  if (Window* window = window_.GetWindow()) window->UserPressedMouse(at.x(), at.y());
}

void ContentWidget::resizeEvent(QResizeEvent* /*event*/) {
  for (ControlWidget* widget : controls_) Place(*widget);
}

void ContentWidget::paintEvent(QPaintEvent* /*event*/) {
  const Window* window = window_.GetWindow();
  if (window == nullptr || !window->IsSplash()) return;
  // A window without a frame needs an edge where it lies on another one of its colour.
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace vamo
