// What a window shows below its menu bar.
#include "displays/qt/content.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "displays/qt/convert.h"
#include "displays/qt/window.h"
#include "toolkit/window.h"

namespace vamo {
namespace {

struct Span {
  int begin;
  int length;
};

// Both ends go to whole pixels, so that what touches as designed does so at every factor.
Span ScaledSpan(std::int64_t begin, std::int64_t length, double factor) {
  const int from = Scaled(begin, factor);
  return {from, Scaled(begin + length, factor) - from};
}

// One dimension of a control in a window that its user has made larger by so much.
Span Stretched(Span designed, int growth, bool begin_locked, bool end_locked) {
  if (!end_locked) return designed;
  if (!begin_locked) return {designed.begin + growth, designed.length};
  return {designed.begin, std::max(0, designed.length + growth)};
}

}  // namespace

ContentWidget::ContentWidget(WindowWidget& parent) : QWidget(&parent), window_(parent) {
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
  widget.Rescale(window_.Factor());
  widget.Refresh();
  return widget;
}

void ContentWidget::Rescale() {
  for (ControlWidget* widget : controls_) {
    Place(*widget);
    widget->Rescale(window_.Factor());
  }
}

QWidget* ContentWidget::Find(const RectControl* control) const {
  for (ControlWidget* widget : controls_) {
    if (control != nullptr && widget->GetControl() == control) return &widget->AsWidget();
  }
  return nullptr;
}

void ContentWidget::Place(ControlWidget& widget) {
  const RectControl* control = widget.GetControl();
  const Window* window = window_.GetWindow();
  if (control == nullptr || window == nullptr) return;
  const double factor = window_.Factor();
  const Bounds& bounds = control->Bounds();
  const RectControl::Locks& locks = control->GetLocks();
  const Window::State& designed = window->GetState();
  const Span across = Stretched(ScaledSpan(bounds.left, bounds.width, factor),
                                width() - Scaled(designed.width, factor), locks.left, locks.right);
  const Span down = Stretched(ScaledSpan(bounds.top, bounds.height, factor),
                              height() - Scaled(designed.height, factor), locks.top, locks.bottom);
  widget.SetBox({across.begin, down.begin, across.length, down.length});
}

void ContentWidget::mousePressEvent(QMouseEvent* event) {
  event->accept();
  const QPoint at = (event->position() / window_.Factor()).toPoint();
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
  const int edge = Scaled(1, window_.Factor());
  painter.setClipRegion(QRegion(rect()) - rect().adjusted(edge, edge, -edge, -edge));
  painter.fillRect(rect(), palette().color(QPalette::Mid));
}

}  // namespace vamo
