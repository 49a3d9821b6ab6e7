#include "displays/qt/content.h"

#include <QMouseEvent>
#include <QPainter>

#include "displays/qt/convert.h"
#include "displays/qt/window.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// Both ends are rounded to whole pixels, so that controls that touch by design do so at every
// factor.
QRect ScaledBox(const Bounds& bounds, double factor) {
  const QPoint begin(Scaled(bounds.left, factor), Scaled(bounds.top, factor));
  const QPoint end(Scaled(bounds.left + bounds.width, factor),
                   Scaled(bounds.top + bounds.height, factor));
  return {begin, QSize(end.x() - begin.x(), end.y() - begin.y())};
}

}  // namespace

ContentWidget::ContentWidget(WindowWidget& parent) : QWidget(&parent), window_(parent) {
  const Window::State& state = parent.ShownWindow()->InitialState();
  setAutoFillBackground(true);
  QPalette colours = palette();
  // A window without a colour of its own gets the background colour of texts, so that a text area
  // in it shows no edge.
  colours.setColor(QPalette::Window, state.has_background_colour ? ToQColor(state.background_colour)
                                                                 : colours.color(QPalette::Base));
  setPalette(colours);
}

void ContentWidget::Add(ControlWidget& widget) {
  controls_.push_back(&widget);
  widget.AsWidget().setObjectName(ToQString(widget.Control()->Name()));
  Place(widget);
  widget.Rescale(window_.Factor());
  widget.Refresh();
}

void ContentWidget::Rescale() {
  for (ControlWidget* widget : controls_) {
    Place(*widget);
    widget->Rescale(window_.Factor());
  }
}

QWidget* ContentWidget::Find(const RectControl* control) const {
  for (ControlWidget* widget : controls_) {
    if (control != nullptr && widget->Control() == control) return &widget->AsWidget();
  }
  return nullptr;
}

void ContentWidget::Place(ControlWidget& widget) {
  const RectControl* control = widget.Control();
  if (control != nullptr) widget.SetBox(ScaledBox(control->Bounds(), window_.Factor()));
}

void ContentWidget::mousePressEvent(QMouseEvent* event) {
  event->accept();
  const QPoint at = (event->position() / window_.Factor()).toPoint();
  if (Window* window = window_.ShownWindow()) window->UserPressedMouse(at.x(), at.y());
}

void ContentWidget::paintEvent(QPaintEvent* /*event*/) {
  const Window* window = window_.ShownWindow();
  if (window == nullptr || !window->IsSplash()) return;
  // A window without a frame needs an edge where it lies on another window of the same colour.
  QPainter painter(this);
  const int edge = Scaled(1, window_.Factor());
  painter.setClipRegion(QRegion(rect()) - rect().adjusted(edge, edge, -edge, -edge));
  painter.fillRect(rect(), palette().color(QPalette::Mid));
}

}  // namespace vamo
