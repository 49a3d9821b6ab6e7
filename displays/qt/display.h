#ifndef VAMO_DISPLAYS_QT_DISPLAY_H_
#define VAMO_DISPLAYS_QT_DISPLAY_H_

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "toolkit/runtime/display.h"

namespace vamo {

// A desktop, through Qt. It holds Qt's application object, so there can be only one such display at
// a time; another one may be created after the first is destroyed. It holds no windows: the toolkit
// does, and releases them before the display.
class QtDisplay : public Display {
 public:
  // Connects to the desktop. `program` is the name that the program was started by, the first
  // argument of main; Qt would act on further ones. If there is no desktop to connect to, prints
  // one line on standard error and ends the process with exit status 1.
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
