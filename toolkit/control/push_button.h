#ifndef VAMO_TOOLKIT_CONTROL_PUSH_BUTTON_H_
#define VAMO_TOOLKIT_CONTROL_PUSH_BUTTON_H_

#include <cstdint>
#include <string>

#include "toolkit/control/control.h"
#include "toolkit/object/delegate.h"

namespace vamo {

// A button for the mouse and for assistive technology. It never has the focus: Space and Return do
// nothing to it.
class PushButton : public RectControl {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  const std::string& Caption() const { return Trapped(caption_); }
  const vamo::Font& Font() const { return Trapped(font_); }
  bool Default() const { return Trapped(default_); }

  // Raised when the mouse is pressed on the button, with the position in the button's own
  // coordinates. True: the handler has handled the press. False: the button reacts as buttons do.
  Delegate<bool(Ref<PushButton>, std::int64_t, std::int64_t)> MouseDown;

  // The mouse has been pressed at that position in the button. Returns the result of MouseDown. A
  // disabled button raises nothing and returns False.
  bool UserPressed(std::int64_t x, std::int64_t y);
  // Assistive technology has pressed the button. This is handled as a press of the mouse at its
  // centre.
  bool UserPressedByAssistiveTechnology();

 protected:
  AnyControl AsAny() override { return this; }

 private:
  struct Properties;

  vamo::Font font_;
  std::string caption_;
  bool default_ = false;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_CONTROL_PUSH_BUTTON_H_
