// The windows, controls and timers of the headless display.
#ifndef VAMO_DISPLAYS_HEADLESS_WINDOW_H_
#define VAMO_DISPLAYS_HEADLESS_WINDOW_H_

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "displays/headless/display.h"
#include "displays/user.h"
#include "toolkit/control/control.h"
#include "toolkit/drawing.h"
#include "toolkit/runtime/display.h"

namespace vamo {

// A control as it is shown: a copy of its state, made at its last Update. A change without an
// Update does not show.
class HeadlessControl : public ControlView {
 public:
  HeadlessControl(HeadlessWindow& window, AnyControl control);
  ~HeadlessControl() override;

  void Update() override { shown_ = Present(); }

  RectControl& Control() const { return control_; }
  HeadlessWindow& Window() const { return window_; }
  const ShownControl& Shown() const { return shown_; }
  // The control's current state, as an Update would show it.
  ShownControl Present() const;

 private:
  HeadlessWindow& window_;
  const AnyControl any_;
  RectControl& control_;
  ShownControl shown_;
};

// A window as it is shown: whether it is on the screen, and which of its controls has the focus.
class HeadlessWindow : public WindowView {
 public:
  HeadlessWindow(HeadlessDisplay& display, vamo::Window& window);
  ~HeadlessWindow() override;

  std::unique_ptr<ControlView> CreateControl(AnyControl control) override;
  void Show(bool activate) override;
  void Hide() override { on_screen_ = false; }
  bool ShowPane() override;
  void UpdateFocus() override;

  vamo::Window& Shown() const { return window_; }
  bool OnScreen() const { return on_screen_; }
  const std::vector<HeadlessControl*>& Controls() const { return controls_; }
  const HeadlessControl* Focus() const;
  // The pane as it is shown; invisible if it is closed or there is none.
  const ShownControl& ShownPane() const { return pane_; }
  const Drawing& PaneDrawing() const { return pane_drawing_; }
  // The pane's current state, as it would be shown.
  ShownControl PresentPane() const;
  // How often the pane has been shown.
  int PaneShowings() const { return pane_showings_; }

 private:
  friend class HeadlessControl;

  HeadlessDisplay& display_;
  vamo::Window& window_;
  std::vector<HeadlessControl*> controls_;
  const RectControl* focus_ = nullptr;
  ShownControl pane_;
  Drawing pane_drawing_;
  int pane_showings_ = 0;
  bool on_screen_ = false;
};

// A timer on the display's own clock.
class HeadlessTimer : public RunningTimer {
 public:
  HeadlessTimer(HeadlessDisplay& display, std::chrono::milliseconds period,
                std::function<void()> fire);
  ~HeadlessTimer() override;

  std::chrono::milliseconds Due() const { return due_; }
  // Calls the function, which may destroy the timer, and is due again after a period.
  void Fire();

 private:
  HeadlessDisplay& display_;
  const std::chrono::milliseconds period_;
  std::chrono::milliseconds due_;
  std::function<void()> fire_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_HEADLESS_WINDOW_H_
