// What the page shows when the program has ended.
#include <memory>
#include <utility>

#include "displays/web/display.h"

namespace vamo {
namespace {

class End : public PageOwner {
 public:
  End(int status, std::function<void()> restart)
      : pressed_([restart = std::move(restart)](const PageReport& report) {
          if (report.event == PageEvent::kClick) page::Post(restart);
          return PageAnswer::kPassed;
        }),
        frame_(page_, "section"),
        heading_(frame_, "h1"),
        text_(frame_, "p"),
        button_(frame_, "button", &pressed_) {
    frame_.SetAttribute("class", "end");
    heading_.SetText("Vamo");
    text_.SetAttribute("role", "status");
    text_.SetText(status == 0 ? "Vamo has ended." : "Vamo has stopped because of an error.");
    button_.SetAttribute("type", "button");
    button_.SetText("Start again");
    button_.Focus();
    page::SetOwner(this);
  }
  ~End() override { page::SetOwner(nullptr); }
  End(const End&) = delete;
  End& operator=(const End&) = delete;

  PageAnswer Handle(const PageReport& /*report*/) override { return PageAnswer::kPassed; }
  void RunEvent(const std::function<void()>& event) override { event(); }

 private:
  PageHandler pressed_;
  PageElement page_;
  PageElement frame_;
  PageElement heading_;
  PageElement text_;
  PageElement button_;
};

std::unique_ptr<End> end;

}  // namespace

void ShowEnd(int status, std::function<void()> restart) {
  end = std::make_unique<End>(status, [restart = std::move(restart)] {
    // Runs a copy, because `restart` is destroyed with what is shown.
    const std::function<void()> start = restart;
    end = nullptr;
    start();
  });
}

}  // namespace vamo
