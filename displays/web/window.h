#ifndef VAMO_DISPLAYS_WEB_WINDOW_H_
#define VAMO_DISPLAYS_WEB_WINDOW_H_

#include <memory>
#include <string_view>
#include <vector>

#include "displays/web/arrangement.h"
#include "displays/web/control.h"
#include "displays/web/menu.h"
#include "displays/web/page.h"
#include "displays/web/pane.h"
#include "toolkit/runtime/display.h"
#include "toolkit/window/window.h"

namespace vamo {

class WebDisplay;

// A window as an element of the page, with a title bar unless it is a splash.
class WebWindow : public WindowView {
 public:
  WebWindow(WebDisplay& display, Window& window);
  ~WebWindow() override;

  std::unique_ptr<ControlView> CreateControl(AnyControl control) override;
  void Show(bool activate) override;
  void Hide() override;
  bool ShowPane() override;
  void UpdateFocus() override;

  Window& Shown() const { return window_; }
  // Whether this is the active window.
  bool IsInFront() const;
  // The user has pressed or focused something in this window.
  void BringToFront();
  // Shows whether the window is in front, and its depth among the others.
  void UpdateOrder(int depth);
  // Moves the browser's focus to the focused control, but does not open an on-screen keyboard: the
  // user does that by a touch. During the call no change of focus counts as the user's.
  void ShowFocus();
  bool IsShowingFocus() const { return showing_focus_; }
  PageAnswer HandleKey(const PageReport& report);
  // Returns kPrevented for a press that does not count.
  PageAnswer BeginPress(const PageReport& report);
  // Handles the command key with that letter.
  void HandleCommand(std::string_view letter);
  void ReportSelection();
  // Flashes the focused control.
  void Flash();

  // The element that contains the controls.
  PageElement& Content() { return content_; }
  void Add(WebControl& control) { controls_.push_back(&control); }
  void Remove(WebControl& control) { std::erase(controls_, &control); }
  // The element of a control; null if it has not been created.
  PageElement* ElementOf(const RectControl& control) const;
  WebDisplay& Display() { return display_; }

 private:
  WebControl* FocusedControl() const;
  void GiveFocus();
  PageAnswer HandlePress(const PageReport& report);
  void MakeHiddenHeading();
  void MakeTitleBar();
  void LinkCaptions();

  WebDisplay& display_;
  Window& window_;
  PageHandler touched_;
  PageHandler pressed_;
  PageHandler closed_;
  PageElement frame_;
  std::vector<std::unique_ptr<PageElement>> title_bar_;
  // One of these; null if there is none.
  PageElement* close_button_ = nullptr;
  std::unique_ptr<WebMenuBar> menu_bar_;
  PageElement content_;
  std::unique_ptr<WebPane> pane_;
  std::vector<WebControl*> controls_;
  std::unique_ptr<Arrangement> arrangement_;
  bool has_been_shown_ = false;
  bool showing_focus_ = false;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_WINDOW_H_
