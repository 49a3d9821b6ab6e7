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

// A page in a browser. Its windows are active among themselves: that another page or program is in
// front is nothing that it reports, so that whoever comes back finds all as it was.
class WebDisplay : public Display, public PageOwner {
 public:
  // Calls `ended`, as an event of its own, when the program is to be finished, and `linked` with
  // the fragment of the page's address when that changes.
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
  // A page may not look at the clipboard before the user pastes.
  bool ClipboardMayHoldText() const override { return true; }
  void SetClipboardText(std::string_view text) override;
  bool MenuBarsLiveInWindows() const override { return true; }
  bool TabLeavesWindows() const override { return true; }

  // What happens outside of all windows, and the keys.
  PageAnswer Take(const PageReport& report) override;
  void RunEvent(const std::function<void()>& event) override;

  // For the windows.
  PageElement& Page() { return page_; }
  WindowOrder<WebWindow>& Order() { return order_; }
  // The active window, or null.
  WebWindow* Front() const;
  void Activate(WebWindow& window);
  // Activates the window whose turn it is, as an event of its own.
  void ActivateLater();
  // Does something that may ask for the clipboard's text, which is `text`.
  void WithPasted(std::string text, const std::function<void()>& act);

 private:
  // Does something as an event of its own, unless the program ends before.
  void Post(std::function<void()> act);
  void ActivateNext();
  // Tells the style sheet which of the two layouts there is room for.
  void ShowRoom();

  const std::function<void()> ended_;
  const std::function<void(std::string_view link)> linked_;
  PageElement page_;
  PageElement announcement_;
  WindowOrder<WebWindow> order_;
  std::string pasted_;
  bool stopped_ = false;
};

// The display in the page that this program runs in.
std::unique_ptr<Display> MakeWebDisplay(std::function<void()> ended,
                                        std::function<void(std::string_view link)> linked);

// Says on the page that the program has ended, with that exit status, and offers to call `restart`.
void ShowEnd(int status, std::function<void()> restart);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_DISPLAY_H_
