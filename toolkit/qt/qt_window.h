// A window on the screen.
#ifndef VAMO_TOOLKIT_QT_QT_WINDOW_H_
#define VAMO_TOOLKIT_QT_QT_WINDOW_H_

#include <QPointer>
#include <QWidget>
#include <memory>

#include "qt_activation.h"
#include "qt_content.h"
#include "qt_keys.h"
#include "toolkit/display.h"

class QMenuBar;

namespace vamo {

class Window;

// The window of the desktop that shows a window of the toolkit: menu bar and content. It reports
// activation and the wish to close, and never closes by itself. It may live a little longer than
// the toolkit's window, out of sight, and does nothing then.
class WindowWidget : public QWidget {
 public:
  WindowWidget(Window& window, Activation& activation);

  // Nil when the window's part on the display has been given up.
  Window* GetWindow() const { return window_; }
  void Detach() { window_ = nullptr; }

  ControlWidget& AddControl(RectControl& control);
  void BringToFront();
  void TakeAway();
  // Sends the keys where the toolkit has its focus.
  void ShowFocus();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool focusNextPrevChild(bool /*next*/) override { return false; }

 private:
  void AddMenuBar();
  void SetSizes();

  Window* window_;
  Activation& activation_;
  ContentWidget* content_;
  KeyRoad keys_;
  QMenuBar* menu_bar_ = nullptr;
  bool just_placed_ = false;
};

// A window's end of its widget, which it owns.
class QtWindowView : public WindowView {
 public:
  QtWindowView(Window& window, Activation& activation);
  ~QtWindowView() override;

  std::unique_ptr<ControlView> CreateControl(RectControl& control) override;
  void Show() override;
  void Hide() override { widget_->TakeAway(); }
  void UpdateFocus() override { widget_->ShowFocus(); }

 private:
  Activation& activation_;
  QPointer<WindowWidget> widget_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_QT_QT_WINDOW_H_
