#ifndef VAMO_SHELL_ABOUT_WND_H_
#define VAMO_SHELL_ABOUT_WND_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "controlwnd/accessors.h"
#include "toolkit/control/canvas.h"
#include "toolkit/control/label.h"
#include "toolkit/window/timer.h"
#include "toolkit/window/window.h"

namespace vamo {

// The splash: shows the program's name and rights until its timer fires or the user presses a key
// or the mouse; then hides itself and shows the control window. It has no other logic.
class AboutWnd : public Window {
 public:
  using _wrapper_Timer1 = vamo::_wrapper_Timer1;

  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }
  bool IsEventImplemented(std::string_view event) const;

  void Layout() override;
  void CreateControls() override;
  virtual void _CreateControls0();
  virtual Ref<Label> StaticText5();
  virtual Ref<Canvas> Canvas1();
  virtual Ref<Label> StaticText1();
  virtual Ref<Timer> Timer1();
  virtual void Timer1_Action(Ref<Timer> timer);
  std::span<const AccessibleText> AccessibleTexts() const override;
  bool Event_KeyDown(std::string key) override;
  bool Event_MouseDown(std::int64_t x, std::int64_t y) override;
};

}  // namespace vamo

#endif  // VAMO_SHELL_ABOUT_WND_H_
