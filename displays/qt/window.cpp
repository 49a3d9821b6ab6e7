#include "displays/qt/window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QWindow>
#include <chrono>
#include <utility>
#include <vector>

#include "displays/qt/button.h"
#include "displays/qt/convert.h"
#include "displays/qt/label.h"
#include "displays/qt/menu.h"
#include "displays/qt/placement.h"
#include "displays/qt/shapes.h"
#include "displays/qt/slider.h"
#include "displays/qt/text_area.h"
#include "displays/qt/text_field.h"
#include "toolkit/window/pane.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

Qt::WindowFlags Flags(const Window& window) {
  // A dialog can stay in front of a window, and no desktop tiles it.
  if (window.IsSplash()) return Qt::Dialog | Qt::FramelessWindowHint;
  const Window::State& state = window.InitialState();
  Qt::WindowFlags flags =
      Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
  flags.setFlag(Qt::WindowCloseButtonHint, state.has_close_button);
  flags.setFlag(Qt::WindowMinimizeButtonHint, state.has_minimize_button);
  return flags;
}

// How long a window manager may take to draw its frame. Qt does not report when it has.
constexpr std::chrono::milliseconds kFrameIsDrawn{300};

}  // namespace

WindowWidget::WindowWidget(Window& window, Activation& activation, Zoom& zoom)
    : QWidget(nullptr, Flags(window)),
      window_(&window),
      activation_(activation),
      zoom_(zoom),
      content_(new ContentWidget(*this)),
      keys_(*this),
      presses_(*this, activation) {
  setWindowTitle(ToQString(window.ListedTitle()));
  setAccessibleDescription(ToQString(window.AccessibleDescription()));
  setObjectName(ToQString(window.Class()->name));
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(content_);
  AddMenuBar();
  SetSize();
  settle_.setSingleShot(true);
  connect(&settle_, &QTimer::timeout, this, [this] { Settle(); });
}

bool WindowWidget::ShouldBeVisible() const { return window_ != nullptr && window_->Visible(); }

void WindowWidget::AddMenuBar() {
  if (!window_->MenuBar()) return;
  menu_bar_ = new QMenuBar(this);
  menu_bar_->setNativeMenuBar(kOneMenuBarOnScreen);
  FillMenuBar(*menu_bar_, *window_->MenuBar(), zoom_);
  layout()->setMenuBar(menu_bar_);
}

void WindowWidget::SetSize() {
  const Window::State& state = window_->InitialState();
  content_->setFixedSize(Scaled(state.width, Factor()), Scaled(state.height, Factor()));
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  layout()->activate();
}

void WindowWidget::Rescale() {
  if (window_ == nullptr) return;
  SetSize();
  content_->Rescale();
  if (pane_ != nullptr) pane_->Refresh();
  layout()->activate();
}

QSize WindowWidget::SizeAt(double factor) const {
  const int pane = pane_ == nullptr ? 0 : pane_->width() - pane_->SmallestWidth();
  return (QSizeF(width() - pane, height()) * (factor / Factor())).toSize();
}

void WindowWidget::Add(ControlWidget& widget) {
  content_->Add(widget);
  keys_.Watch(widget.AsWidget());
}

bool WindowWidget::ShowPane() {
  const Pane* pane = window_ == nullptr ? nullptr : window_->SidePane();
  if (pane == nullptr || !pane->IsOpen()) {
    pane_ = nullptr;
    layout()->activate();
    return true;
  }
  // A screen reader finds hidden widgets too, so a closed pane has none.
  auto opened = pane_ == nullptr ? std::make_unique<PaneWidget>(*this) : nullptr;
  if (!(opened != nullptr ? *opened : *pane_).Refresh()) return false;
  const bool opens = opened != nullptr;
  if (opens) {
    pane_ = std::move(opened);
    layout()->addWidget(pane_.get());
    pane_->show();
  }
  layout()->activate();
  if (!opens || !isVisible()) return true;
  if (PlatformPlacesWindows()) {
    MapAgain();
  } else {
    KeepOnScreen(*this);
  }
  return true;
}

void WindowWidget::PutOnScreen(bool activate) {
  Place(*this, window_->WhereToShow());
  zoom_.FitScreen();
  if (isVisible()) {
    Map(activate);
    return;
  }
  // A window that is hidden again by the end of the event must not appear, or it takes the focus
  // with it.
  QMetaObject::invokeMethod(
      this,
      [this, activate] {
        if (ShouldBeVisible()) Map(activate);
      },
      Qt::QueuedConnection);
}

void WindowWidget::Map(bool activate) {
  if (!isVisible()) settle_.start(kFrameIsDrawn);
  ShowFocus();
  setWindowState(windowState() & ~Qt::WindowMinimized);
  setAttribute(Qt::WA_ShowWithoutActivating, !activate);
  // Qt passes the attribute on only when it creates the platform's window, which may already exist.
  if (windowHandle() != nullptr) {
    windowHandle()->setProperty("_q_showWithoutActivating", !activate);
  }
  show();
  if (!activate) return;
  raise();
  activateWindow();
  // Qt can consider a window active throughout a quick Hide and Show, and then reports no change.
  const bool has_focus = windowHandle() == QGuiApplication::focusWindow();
  if (has_focus && !isActiveWindow()) QApplication::setActiveWindow(this);
  activation_.Await(*this);
}

// The window that this one stays with, or else any other window of the program.
QWindow* WindowWidget::NextToBeActive() const {
  if (windowHandle() != nullptr && windowHandle()->transientParent() != nullptr) {
    return windowHandle()->transientParent();
  }
  for (const WindowWidget* window : AllWindows()) {
    if (window != this && window->isVisible() && !window->isMinimized()) {
      return window->windowHandle();
    }
  }
  return nullptr;
}

bool WindowWidget::HandleOwnKey(const QKeyEvent& event) {
  const bool opens_menus = event.key() == Qt::Key_F10 && event.modifiers() == Qt::NoModifier;
  if (!opens_menus || menu_bar_ == nullptr) return zoom_.HandleKey(event);
  menu_bar_->setActiveAction(menu_bar_->actions().front());
  return true;
}

void WindowWidget::MapAgain() {
  const bool active = isActiveWindow();
  if (active) activation_.AwaitAgain(*this);
  hide();
  Map(active);
  RestoreFocus();
}

void WindowWidget::TakeOffScreen() {
  // Before hiding: a window manager might activate any other window, and without one none would be
  // activated.
  QWindow* next = isActiveWindow() ? NextToBeActive() : nullptr;
  if (next != nullptr) next->requestActivate();
  const QRect at = geometry();
  hide();
  setGeometry(at);
}

void WindowWidget::ShowFocus() {
  if (window_ == nullptr) return;
  const Ref<RectControl>& focus = window_->Focus();
  QWidget* widget = focus ? content_->Find(&*focus) : nullptr;
  if (widget == nullptr) widget = this;
  if (widget->hasFocus()) return;
  // This was not the mouse, so the style must show which control has the focus.
  if (isVisible()) setAttribute(Qt::WA_KeyboardFocusChange);
  widget->setFocus(Qt::OtherFocusReason);
}

void WindowWidget::RestoreFocus() {
  if (isActiveWindow() && QApplication::activePopupWidget() == nullptr) ShowFocus();
}

void WindowWidget::Settle() {
  zoom_.FitScreen();
  KeepOnScreen(*this);
}

bool WindowWidget::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate && settle_.isActive()) {
    // Many window managers have drawn their frame by now, and a later jump would be visible.
    QMetaObject::invokeMethod(this, &WindowWidget::Settle, Qt::QueuedConnection);
  }
  if (event->type() == QEvent::WinIdChange) presses_.WatchPlatformWindow();
  if (event->type() == QEvent::ScreenChangeInternal) {
    // After it is placed there.
    QMetaObject::invokeMethod(
        this, [this] { zoom_.FitScreen(); }, Qt::QueuedConnection);
  }
  if (event->type() == QEvent::WindowActivate) {
    // The menu bar may have had the focus when the user left, or nothing when the window was
    // hidden.
    QMetaObject::invokeMethod(this, &WindowWidget::RestoreFocus, Qt::QueuedConnection);
    activation_.Activated(*this);
  }
  if (event->type() == QEvent::WindowDeactivate) activation_.Deactivated(*this);
  return QWidget::event(event);
}

void WindowWidget::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (window_ != nullptr) window_->UserAskedToClose();
}

std::vector<WindowWidget*> AllWindows() {
  std::vector<WindowWidget*> windows;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* window = dynamic_cast<WindowWidget*>(widget)) windows.push_back(window);
  }
  return windows;
}

QtWindowView::QtWindowView(Window& window, Activation& activation, Zoom& zoom)
    : widget_(new WindowWidget(window, activation, zoom)) {}

QtWindowView::~QtWindowView() {
  if (widget_ == nullptr) return;
  widget_->Detach();
  widget_->TakeOffScreen();
  // The view may be destroyed while one of its widgets is still handling an event.
  widget_->deleteLater();
}

// The window's widget owns the control's widget.
template <class WidgetClass, class ControlClass>
std::unique_ptr<ControlView> QtWindowView::Create(ControlClass& control) {
  auto* widget = new WidgetClass(control, widget_->Content());
  widget_->Add(*widget);
  return std::make_unique<QtControlView>(*widget);
}

std::unique_ptr<ControlView> QtWindowView::CreateControl(AnyControl control) {
  const Overloaded create{
      [this](Canvas* canvas) { return Create<CanvasWidget>(*canvas); },
      [this](Label* label) { return Create<LabelWidget>(*label); },
      [this](PushButton* button) { return Create<ButtonWidget>(*button); },
      [this](Rectangle* rectangle) { return Create<RectangleWidget>(*rectangle); },
      [this](Slider* slider) { return Create<SliderWidget>(*slider); },
      [this](TextArea* area) { return Create<AreaWidget>(*area); },
      [this](TextField* field) { return Create<FieldWidget>(*field); },
  };
  return std::visit(create, control);
}

void QtWindowView::Show(bool activate) { widget_->PutOnScreen(activate); }

}  // namespace vamo
