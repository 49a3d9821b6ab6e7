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

// A window as an element of the page, with a bar for its title where it has one.
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
  // Whether it is the one that the keys go to.
  bool IsInFront() const;
  // The user has come to this window.
  void BringToFront();
  // Shows that the window has come in front, or has gone from there.
  void ShowPlace(int depth);
  // Takes the browser's focus to what has the keys, but opens no keyboard on the screen: the user
  // does that by a touch. Meanwhile no change of focus is the user's.
  void ShowFocus();
  bool IsShowingFocus() const { return showing_focus_; }
  PageAnswer TakeKey(const PageReport& report);
  // A press that does not count is taken whole.
  PageAnswer BeginPress(const PageReport& report);
  // The command key with that letter.
  void TakeCommand(std::string_view letter);
  void ReportSelection();
  // Flashes what has the keys.
  void Flash();

  // What the controls lie in.
  PageElement& Content() { return content_; }
  void Add(WebControl& control) { controls_.push_back(&control); }
  void Remove(WebControl& control) { std::erase(controls_, &control); }
  // The element of a control that has been created; null for another.
  PageElement* ElementOf(const RectControl& control) const;
  WebDisplay& Display() { return display_; }

 private:
  WebControl* FocusedControl() const;
  void GiveFocus();
  PageAnswer TakePress(const PageReport& report);
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
  // Among these; null where there is none.
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
