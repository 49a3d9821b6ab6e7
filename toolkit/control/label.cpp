#include "toolkit/control/label.h"

#include <array>

#include "toolkit/control/properties.h"
#include "toolkit/object/ui_trap.h"

namespace vamo {

struct Label::Properties {
  static constexpr std::array kOwn{
      Sets<&Label::SetTabStop>(property::kTabStop),
      Skipped(property::kMultiline),
      Skipped(property::kSelectable),
      Sets<&Label::alignment_>(property::kTextAlignment),
      Sets<&Label::text_colour_>(property::kTextColor),
      Sets<&Label::SetText>(property::kValue),
      Skipped(property::kDataSource),
      Skipped(property::kDataField),
  };
  static constexpr auto kRows = Joined(FontRows<&Label::font_>(), kOwn);
};

constinit const ClassInfo Label::kClass{
    "Label", &RectControl::kClass, Properties::kRows, {}, Allocate<Label>};

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
