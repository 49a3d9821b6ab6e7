#include "displays/web/display.h"

#include <utility>

#include "displays/web/controls.h"
#include "displays/web/window.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {
namespace {

class WebTimer : public RunningTimer {
 public:
  WebTimer(std::chrono::milliseconds period, std::function<void()> fire)
      : number_(page::StartTimer(period, std::move(fire))) {}
  ~WebTimer() override { page::StopTimer(number_); }

 private:
  const int number_;
};

}  // namespace

WebDisplay::WebDisplay(std::function<void()> ended,
                       std::function<void(std::string_view link)> linked)
    : ended_(std::move(ended)), linked_(std::move(linked)), announcement_(page_, "div") {
  announcement_.SetAttribute("class", "unseen");
  announcement_.SetAttribute("role", "status");
  page::SetOwner(this);
  ShowRoom();
}

WebDisplay::~WebDisplay() { page::SetOwner(nullptr); }

// The browser owns the event loop.
void WebDisplay::Run() {}

void WebDisplay::Stop() {
  stopped_ = true;
  page::SetOwner(nullptr);
  page::Post(ended_);
}

void WebDisplay::Post(std::function<void()> act) {
  if (!stopped_) page::Post(std::move(act));
}

std::unique_ptr<WindowView> WebDisplay::OpenWindow(Window& window) {
  return std::make_unique<WebWindow>(*this, window);
}

void WebDisplay::Beep() {
  page::Sound();
  if (WebWindow* front = Front()) front->Flash();
}

void WebDisplay::SetClipboardText(std::string_view text) {
  if (!page::Copy(text)) Beep();
}

// Clears the text first, so that the sentence is spoken as new and not as a change of the last one.
void WebDisplay::Announce(std::string_view sentence) {
  announcement_.SetText("");
  announcement_.SetText(sentence);
}

std::shared_ptr<DisplayPicture> WebDisplay::OpenPicture(std::string_view file_name) {
  if (!page::HasPicture(file_name)) return nullptr;
  return std::make_shared<WebPicture>(std::string(file_name));
}

std::unique_ptr<RunningTimer> WebDisplay::StartTimer(std::chrono::milliseconds period,
                                                     std::function<void()> fire) {
  return std::make_unique<WebTimer>(period, std::move(fire));
}

void WebDisplay::RunEvent(const std::function<void()>& event) {
  Runtime::Current().Dispatch(event);
}

// Windows are shown as designed if the page is wide enough, its texts have about the designed size,
// and the user's main pointer is not a finger.
void WebDisplay::ShowRoom() {
  constexpr double kNarrow = 500;
  constexpr double kEnlarged = 1.1;
  const double enlargement = page::TextEnlargement();
  const bool flows = kNarrow > page::Width() || enlargement > kEnlarged || page::HasCoarsePointer();
  page_.SetAttribute("class", flows ? "flow" : "designed");
  page_.SetStyle("--enlarged", ShortText(std::max(1.0, enlargement)));
}

PageAnswer WebDisplay::Handle(const PageReport& report) {
  if (report.event == PageEvent::kRoom) {
    ShowRoom();
    return PageAnswer::kHandled;
  }
  if (report.event == PageEvent::kLink) {
    linked_(report.text);
    return PageAnswer::kHandled;
  }
  // Input is meant for the window that is about to come to the front.
  ActivateNext();
  WebWindow* front = Front();
  if (front == nullptr) return PageAnswer::kPassed;
  switch (report.event) {
    case PageEvent::kKey:
      return front->HandleKey(report);
    case PageEvent::kSelected:
      front->ReportSelection();
      return PageAnswer::kHandled;
    case PageEvent::kPressBegins:
      return front->BeginPress(report);
    case PageEvent::kPress:
      front->BringToFront();
      return PageAnswer::kHandled;
    // page.js prevents the browser's own copy if the program has copied something.
    case PageEvent::kCopy:
      front->HandleCommand("c");
      return PageAnswer::kHandled;
    case PageEvent::kCut:
      front->HandleCommand("x");
      return PageAnswer::kHandled;
    case PageEvent::kPaste:
      WithPasted(report.text, [front] { front->HandleCommand("v"); });
      return PageAnswer::kPrevented;
    default:
      return PageAnswer::kPassed;
  }
}

void WebDisplay::WithPasted(std::string text, const std::function<void()>& act) {
  pasted_ = std::move(text);
  act();
  pasted_.clear();
}

WebWindow* WebDisplay::Front() const { return order_.Active(); }

void WebDisplay::Activate(WebWindow& window) {
  if (!order_.Activate(window)) return;
  int depth = 0;
  for (WebWindow* view : order_.Views()) view->UpdateOrder(depth++);
  if (WebWindow* front = Front()) front->ShowFocus();
}

void WebDisplay::ActivateLater() {
  Post([this] { ActivateNext(); });
}

void WebDisplay::ActivateNext() {
  if (WebWindow* next = order_.TakeNext()) Activate(*next);
}

std::unique_ptr<Display> MakeWebDisplay(std::function<void()> ended,
                                        std::function<void(std::string_view link)> linked) {
  return std::make_unique<WebDisplay>(std::move(ended), std::move(linked));
}

}  // namespace vamo
