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

constinit const ClassInfo TextArea::kClass{
    "TextArea", &TextEdit::kClass, Properties::kRows, {}, Allocate<TextArea>};

std::string_view TextArea::TextToCopy() const {
  return SelectedText().empty() ? std::string_view(Text()) : SelectedText();
}

std::string TextArea::TextInLines() const {
  constexpr std::string_view kNoWidth = "\u200B";
  const std::string& text = Text();
  std::string lines;
  lines.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\r') {
      lines += text[i];
    } else if (text.compare(i + 1, 1, "\n") == 0) {
      lines += kNoWidth;
    } else {
      lines += '\n';
    }
  }
  return lines;
}

}  // namespace vamo
