// Fixed and result texts on a window.
#ifndef VAMO_TOOLKIT_LABEL_H_
#define VAMO_TOOLKIT_LABEL_H_

#include "toolkit/control.h"

namespace vamo {

// How a text lies in its control. The numbers are those of the property TextAlignment.
enum class TextAlignment { kDefault = 0, kLeft = 1, kCentre = 2, kRight = 3 };

// A text that the user can read and not change. A text that is wider than the label is the
// display's matter: it draws it narrower, never cut off.
class Label : public RectControl {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  const std::string& Text() const;
  void SetText(std::string_view text);

  const vamo::Font& Font() const { return font_; }
  Colour TextColor() const { return text_color_; }
  TextAlignment Alignment() const { return static_cast<TextAlignment>(alignment_); }

 private:
  struct Properties;

  std::string text_;
  vamo::Font font_;
  Colour text_color_;
  std::int64_t alignment_ = 0;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_LABEL_H_
