#ifndef VAMO_DISPLAYS_WEB_DISPLAY_H_
#define VAMO_DISPLAYS_WEB_DISPLAY_H_

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "displays/web/page.h"
#include "toolkit/runtime/display.h"
#include "toolkit/window/window_order.h"

namespace vamo {

class WebWindow;

// A page in a browser. It activates its windows only among themselves: it does not report that
// another page or program was in front, so that a user who comes back finds everything unchanged.
class WebDisplay : public Display, public PageOwner {
 public:
  // Calls `ended`, as a separate event, when the program is to be finished, and `linked` with the
  // fragment of the page's address when the fragment changes.
  WebDisplay(std::function<void()> ended, std::function<void(std::string_view link)> linked);
  ~WebDisplay() override;

  void Run() override;
  void Stop() override;
  std::unique_ptr<WindowView> OpenWindow(Window& window) override;
  void Beep() override;
  void Announce(std::string_view sentence) override;
  std::shared_ptr<DisplayPicture> OpenPicture(std::string_view file_name) override;
  std::unique_ptr<RunningTimer> StartTimer(std::chrono::milliseconds period,
                                           std::function<void()> fire) override;
  std::string ClipboardText() override { return pasted_; }
  // A page may not read the clipboard before the user pastes.
  bool ClipboardMayHoldText() const override { return true; }
  void SetClipboardText(std::string_view text) override;
  bool MenuBarsLiveInWindows() const override { return true; }
  bool TabLeavesWindows() const override { return true; }

  // Handles keys, and what happens outside all windows.
  PageAnswer Handle(const PageReport& report) override;
  void RunEvent(const std::function<void()>& event) override;

  // For the windows.
  PageElement& Page() { return page_; }
  WindowOrder<WebWindow>& Order() { return order_; }
  // The active window, or null.
  WebWindow* Front() const;
  void Activate(WebWindow& window);
  // Activates the next window in order, in a separate event.
  void ActivateLater();
  // Calls `act`; until it returns, ClipboardText returns `text`.
  void WithPasted(std::string text, const std::function<void()>& act);

 private:
  // Calls `act` as a separate event, unless the program ends first.
  void Post(std::function<void()> act);
  void ActivateNext();
  // Tells the style sheet which of the two layouts the page has room for.
  void ShowRoom();

  const std::function<void()> ended_;
  const std::function<void(std::string_view link)> linked_;
  PageElement page_;
  PageElement announcement_;
  WindowOrder<WebWindow> order_;
  std::string pasted_;
  bool stopped_ = false;
};

// Creates the display in the page that runs this program.
std::unique_ptr<Display> MakeWebDisplay(std::function<void()> ended,
                                        std::function<void(std::string_view link)> linked);

// Shows on the page that the program has ended, with that exit status, and offers to call
// `restart`.
void ShowEnd(int status, std::function<void()> restart);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_DISPLAY_H_
