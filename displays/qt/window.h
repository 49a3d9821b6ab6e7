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

// The window of the desktop that shows a window of the toolkit: menu bar and content. It reports
// activation and the wish to close, and never closes by itself. It may live a little longer than
// the toolkit's window, out of sight, and does nothing then.
class WindowWidget : public QWidget {
 public:
  WindowWidget(Window& window, Activation& activation, Zoom& zoom);

  // Null when the window's part on the display has been given up.
  Window* ShownWindow() const { return window_; }
  void Detach() { window_ = nullptr; }
  // Whether the toolkit wants the window on the screen.
  bool IsToBeSeen() const;

  // How many times larger than designed the window is.
  double Factor() const { return zoom_.Factor(); }
  // Applies a changed factor.
  void Rescale();
  // How large the window would be with another factor.
  QSize SizeAt(double factor) const;
  // The keys that make windows larger and smaller, and the one that opens the menus. False: it is
  // another key.
  bool TakeOwnKey(const QKeyEvent& event);

  ContentWidget& Content() { return *content_; }
  // Adds a control's new widget, whose parent is the content.
  void Add(ControlWidget& widget);
  // Shows the window's pane as it is now. False: the screen has no room for it.
  bool ShowPane();
  // Puts the window on the screen, when the event ends; with `activate` in front and with the
  // focus.
  void PutOnScreen(bool activate);
  void TakeAway();
  // Takes the window off the screen and puts it there again, which is no activation.
  void MapAgain();
  // Sends the keys where the toolkit has its focus.
  void ShowFocus();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool focusNextPrevChild(bool /*next*/) override { return false; }

 private:
  void AddMenuBar();
  QSize DesignedSize() const;
  void SetSizes(const QSize& content);
  void Map(bool activate);
  // Sends the keys where the toolkit has its focus, unless a menu is open.
  void RestoreFocus();
  QWindow* NextToBeActive() const;
  // Makes sure that all of a window is on the screen, with the frame that it has by now.
  void Settle();

  Window* window_;
  Activation& activation_;
  Zoom& zoom_;
  // The factor that the sizes have been set for.
  double factor_;
  ContentWidget* content_;
  PaneWidget* pane_;
  KeyRouter keys_;
  PressRouter presses_;
  QMenuBar* menu_bar_ = nullptr;
  // Runs while the frame of a window that has just come up may still be missing.
  QTimer settle_;
};

// The program's windows, hidden ones and those that go at the end of an event among them.
std::vector<WindowWidget*> AllWindows();

// The view through which a window reaches its widget, which it owns.
class QtWindowView : public WindowView {
 public:
  QtWindowView(Window& window, Activation& activation, Zoom& zoom);
  ~QtWindowView() override;

  std::unique_ptr<ControlView> CreateControl(AnyControl control) override;
  void Show(bool activate) override;
  void Hide() override { widget_->TakeAway(); }
  bool ShowPane() override { return widget_->ShowPane(); }
  void UpdateFocus() override { widget_->ShowFocus(); }

 private:
  template <class WidgetClass, class ControlClass>
  std::unique_ptr<ControlView> Create(ControlClass& control);

  Activation& activation_;
  QPointer<WindowWidget> widget_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_WINDOW_H_
