#ifndef VAMO_DISPLAYS_QT_DISPLAY_H_
#define VAMO_DISPLAYS_QT_DISPLAY_H_

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "toolkit/runtime/display.h"

namespace vamo {

// The screen of a desktop, by way of Qt. It holds Qt's application object, so that there can be
// one such display at a time; another one may be made when the first has gone. It holds no
// windows: the toolkit does, and lets them go before the display.
class QtDisplay : public Display {
 public:
  // Connects to the desktop. `program` is what the program was started as, the first argument of
  // main; Qt would act on the further ones. Where there is no desktop to connect to, the process
  // says so in one line on standard error and ends with exit status 1.
  explicit QtDisplay(const char* program);
  ~QtDisplay() override;

  void Run() override;
  void Stop() override;
  std::unique_ptr<WindowView> OpenWindow(Window& window) override;
  void Beep() override;
  void Announce(std::string_view sentence) override;
  std::shared_ptr<DisplayPicture> OpenPicture(std::string_view file_name) override;
  std::unique_ptr<RunningTimer> StartTimer(std::chrono::milliseconds period,
                                           std::function<void()> fire) override;
  std::string ClipboardText() override;
  bool ClipboardMayHoldText() const override;
  void SetClipboardText(std::string_view text) override;
  bool MenuBarsLiveInWindows() const override;
  bool TabLeavesWindows() const override { return false; }

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

std::unique_ptr<Display> MakeQtDisplay(const char* program);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_DISPLAY_H_
