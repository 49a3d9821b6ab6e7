// The field that the user types into, and the area that shows text of several lines.
#include <array>

#include "toolkit/runtime.h"
#include "toolkit/text_edit.h"
#include "toolkit/utf8.h"

namespace vamo {

const ClassInfo TextField::kClass{"TextField", &TextEdit::kClass, Properties()};
const ClassInfo TextArea::kClass{"TextArea", &TextEdit::kClass, Properties()};

std::span<const Property> TextField::Properties() {
  static constexpr std::array kProperties{
      Declare<&TextField::password_>("Password"),
      Declare<&TextField::hint_>("Hint"),
      Declare<&TextField::rule_, &TypingRule::maximum_characters>("MaximumCharactersAllowed"),
      Declare<&TextField::rule_, &TypingRule::mask>("ValidationMask"),
  };
  return kProperties;
}

std::span<const Property> TextArea::Properties() {
  static constexpr std::array kProperties{
      ReadOver<bool>("HideSelection"),          ReadOver<double>("LineHeight"),
      ReadOver<double>("LineSpacing"),          ReadOver<bool>("Multiline"),
      ReadOver<bool>("HasHorizontalScrollbar"), ReadOver<bool>("HasVerticalScrollbar"),
      ReadOver<bool>("AllowStyledText"),        ReadOver<std::int64_t>("MaximumCharactersAllowed"),
      ReadOver<std::string>("ValidationMask"),
  };
  return kProperties;
}

bool TextField::TakeKey(const Key& key) {
  if (key.code != KeyCode::kCharacter || key.text.empty()) return false;
  if (KeyDown && KeyDown.Invoke(Self(this), key.text)) return true;
  const auto code = static_cast<unsigned char>(key.text[0]);
  if (code == kTab) return false;
  if (ReadOnly()) return true;
  if (code == kBackspace) {
    DeleteTo(PreviousCharacter(Text(), GetSelection().caret));
  } else if (code == kForwardDelete) {
    DeleteTo(NextCharacter(Text(), GetSelection().caret));
  } else if (code >= ' ') {
    Type(key.text);
  }
  return true;
}

void TextField::Type(std::string_view character) {
  const auto [anchor, caret] = GetSelection();
  const std::string_view text = Text();
  const auto inserted = Insertion(text.substr(0, std::min(anchor, caret)),
                                  text.substr(std::max(anchor, caret)), character, rule_);
  if (inserted.has_value()) {
    ReplaceSelection(*inserted);
  } else {
    Beep();
  }
}

void TextField::RaiseTextChange() {
  if (TextChange) TextChange.Invoke(Self(this));
}

}  // namespace vamo
