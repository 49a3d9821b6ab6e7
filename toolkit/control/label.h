#ifndef VAMO_TOOLKIT_CONTROL_LABEL_H_
#define VAMO_TOOLKIT_CONTROL_LABEL_H_

#include <string>
#include <string_view>

#include "toolkit/control/control.h"

namespace vamo {

// A text that the user can read and not change. A text that is wider than the label is left to
// the display, which draws it narrower, never cut off.
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
