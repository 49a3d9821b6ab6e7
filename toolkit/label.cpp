// Fixed and result texts on a window.
#include "toolkit/label.h"

#include <array>

#include "toolkit/font_properties.h"
#include "toolkit/runtime.h"

namespace vamo {

struct Label::Properties {
  static constexpr auto kRows =
      Join(kFontProperties<&Label::font_>, std::array{
                                               ReadOver<bool>("Multiline"),
                                               ReadOver<bool>("Selectable"),
                                               Declare<&Label::alignment_>("TextAlignment"),
                                               Declare<&Label::text_color_>("TextColor"),
                                               Declare<&Label::SetText>("Value"),
                                               ReadOver<std::string>("DataSource"),
                                               ReadOver<std::string>("DataField"),
                                           });
};

constinit const ClassInfo Label::kClass{"Label", &RectControl::kClass, Properties::kRows};

const std::string& Label::Text() const {
  _UITrap();
  return text_;
}

void Label::SetText(std::string_view text) {
  _UITrap();
  if (text_ == text) return;
  text_ = text;
  Changed();
}

}  // namespace vamo
