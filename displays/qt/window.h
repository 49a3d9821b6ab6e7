#ifndef VAMO_DISPLAYS_QT_WINDOW_H_
#define VAMO_DISPLAYS_QT_WINDOW_H_

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <vector>

#include "displays/qt/activation.h"
#include "displays/qt/content.h"
#include "displays/qt/keys.h"
#include "displays/qt/pane.h"
#include "displays/qt/presses.h"
#include "displays/qt/zoom.h"
#include "toolkit/runtime/display.h"

class QMenuBar;

namespace vamo {

// The desktop's window for a window of the toolkit: menu bar and content. It reports activation and
// requests to close, and never closes by itself. It may outlive the toolkit's window for a short
// time, hidden, and then does nothing.
class WindowWidget : public QWidget {
 public:
  WindowWidget(Window& window, Activation& activation, Zoom& zoom);

  // Null once the window's view is destroyed.
  Window* ShownWindow() const { return window_; }
  void Detach() { window_ = nullptr; }
  // Whether the toolkit wants the window on the screen.
  bool ShouldBeVisible() const;

  // The scale factor of the window.
  double Factor() const { return zoom_.Factor(); }
  // Applies a new factor.
  void Rescale();
  // The size of the window at another factor.
  QSize SizeAt(double factor) const;
  // Handles the keys that make windows larger and smaller and the one that opens the menus. Returns
  // false for any other key.
  bool HandleOwnKey(const QKeyEvent& event);

  ContentWidget& Content() { return *content_; }
  // Adds a control's new widget, whose parent is the content.
  void Add(ControlWidget& widget);
  // Shows the window's pane in its current state. Returns false if the screen has no room for it.
  bool ShowPane();
  // Shows the window when the event ends; with `activate`, in front and with the focus.
  void PutOnScreen(bool activate);
  void TakeOffScreen();
  // Hides the window and shows it again, which is not an activation.
  void MapAgain();
  // Moves the keyboard focus to where the toolkit has it.
  void ShowFocus();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool focusNextPrevChild(bool /*next*/) override { return false; }

 private:
  void AddMenuBar();
  void SetSize();
  void Map(bool activate);
  // Moves the keyboard focus to where the toolkit has it, unless a menu is open.
  void RestoreFocus();
  QWindow* NextToBeActive() const;
  // Makes sure that all of the window is on the screen, now that its frame is known.
  void Settle();

  Window* window_;
  Activation& activation_;
  Zoom& zoom_;
  ContentWidget* content_;
  // Null while the pane is closed.
  std::unique_ptr<PaneWidget> pane_;
  KeyRouter keys_;
  PressRouter presses_;
  QMenuBar* menu_bar_ = nullptr;
  // Runs while the frame of a newly shown window may still be missing.
  QTimer settle_;
};

// The program's windows, including hidden ones and those that are destroyed at the end of the
// event.
std::vector<WindowWidget*> AllWindows();

// The view through which a window reaches its widget. The view owns the widget.
class QtWindowView : public WindowView {
 public:
  QtWindowView(Window& window, Activation& activation, Zoom& zoom);
  ~QtWindowView() override;

  std::unique_ptr<ControlView> CreateControl(AnyControl control) override;
  void Show(bool activate) override;
  void Hide() override { widget_->TakeOffScreen(); }
  bool ShowPane() override { return widget_->ShowPane(); }
  void UpdateFocus() override { widget_->ShowFocus(); }

 private:
  template <class WidgetClass, class ControlClass>
  std::unique_ptr<ControlView> Create(ControlClass& control);

  QPointer<WindowWidget> widget_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_WINDOW_H_
