#ifndef VAMO_TOOLKIT_CONTROL_LABEL_H_
#define VAMO_TOOLKIT_CONTROL_LABEL_H_

#include <string>
#include <string_view>

#include "toolkit/control/control.h"

namespace vamo {

// Text that the user can read but not change. A text wider than the label extends beyond it where
// there is room and is narrowed to fit the room; it is never cut off.
class Label : public RectControl {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  const std::string& Text() const;
  void SetText(std::string_view text);

  const vamo::Font& Font() const { return Trapped(font_); }
  Colour TextColour() const { return Trapped(text_colour_); }
  TextAlignment Alignment() const { return Trapped(alignment_); }

 protected:
  AnyControl AsAny() override { return this; }

 private:
  struct Properties;

  vamo::Font font_;
  std::string text_;
  Colour text_colour_;
  TextAlignment alignment_ = TextAlignment::kDefault;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_CONTROL_LABEL_H_
