#include "toolkit/text/text_area.h"

#include <array>

#include "toolkit/control/properties.h"

namespace vamo {

struct TextArea::Properties {
  static constexpr std::array kRows{
      Sets<&TextArea::hide_selection_>(property::kHideSelection),
      Skipped(property::kLineHeight),
      Skipped(property::kLineSpacing),
      Skipped(property::kMultiline),
      Skipped(property::kHasHorizontalScrollbar),
      Skipped(property::kHasVerticalScrollbar),
      Skipped(property::kAllowStyledText),
      Skipped(property::kMaximumCharactersAllowed),
      Skipped(property::kValidationMask),
  };
};

constinit const ClassInfo TextArea::kClass{"TextArea", &TextEdit::kClass, Properties::kRows};

std::string_view TextArea::TextToCopy() const {
  return SelectedText().empty() ? std::string_view(Text()) : SelectedText();
}

std::unique_ptr<ControlView> TextArea::MakeView(WindowView& window_view) {
  return window_view.CreateControl(*this);
}

}  // namespace vamo
