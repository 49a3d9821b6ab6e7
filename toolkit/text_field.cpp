// The field that the user types into, and the area that shows text of several lines.
#include <algorithm>
#include <array>

#include "toolkit/runtime.h"
#include "toolkit/text_edit.h"
#include "toolkit/utf8.h"

namespace vamo {

struct TextField::Properties {
  static constexpr std::array kRows{
      Declare<&TextField::password_>("Password"),
      Declare<&TextField::hint_>("Hint"),
      Declare<&TextField::rule_, &TypingRule::maximum_characters>("MaximumCharactersAllowed"),
      Declare<&TextField::rule_, &TypingRule::mask>("ValidationMask"),
  };
};

constinit const ClassInfo TextField::kClass{"TextField", &TextEdit::kClass, Properties::kRows};

struct TextArea::Properties {
  static constexpr std::array kRows{
      Declare<&TextArea::hide_selection_>("HideSelection"),
      ReadOver<double>("LineHeight"),
      ReadOver<double>("LineSpacing"),
      ReadOver<bool>("Multiline"),
      ReadOver<bool>("HasHorizontalScrollbar"),
      ReadOver<bool>("HasVerticalScrollbar"),
      ReadOver<bool>("AllowStyledText"),
      ReadOver<std::int64_t>("MaximumCharactersAllowed"),
      ReadOver<std::string>("ValidationMask"),
  };
};

constinit const ClassInfo TextArea::kClass{"TextArea", &TextEdit::kClass, Properties::kRows};

namespace {

constexpr char kBlank = ' ';

// Where the word before a place starts; the blanks between are part of it.
std::size_t WordBefore(std::string_view text, std::size_t at) {
  const std::string_view before = text.substr(0, at);
  const std::size_t last = before.find_last_not_of(kBlank);
  return last == std::string_view::npos ? 0 : before.rfind(kBlank, last) + 1;
}

// Where the word behind a place ends; the blanks between are part of it.
std::size_t WordBehind(std::string_view text, std::size_t at) {
  return std::min(text.find(kBlank, text.find_first_not_of(kBlank, at)), text.size());
}

}  // namespace

bool TextField::TakeKey(const Key& key) {
  if (key.code != KeyCode::kCharacter || key.text.empty()) return false;
  if (KeyDown && KeyDown.Invoke(Self(this), key.text)) return true;
  const auto code = static_cast<unsigned char>(key.text[0]);
  if (code == kTab) return false;
  if (ReadOnly()) return true;
  const std::size_t caret = GetSelection().caret;
  if (code == kBackspace) {
    DeleteTo(key.word ? WordBefore(Text(), caret) : PreviousCharacter(Text(), caret));
  } else if (code == kForwardDelete) {
    DeleteTo(key.word ? WordBehind(Text(), caret) : NextCharacter(Text(), caret));
  } else if (code >= ' ') {
    Type(key.text);
  }
  return true;
}

void TextField::Type(std::string_view character) {
  const auto [anchor, caret] = GetSelection();
  const std::string_view text = Text();
  const std::size_t end = std::max(anchor, caret);
  const auto typed =
      Typed(text.substr(0, std::min(anchor, caret)), text.substr(end), character, rule_);
  if (typed.has_value()) {
    Replace(0, end, *typed);
  } else {
    Beep();
  }
}

std::string_view TextArea::TextToCopy() const {
  return SelectedText().empty() ? std::string_view(Text()) : SelectedText();
}

void TextField::RaiseTextChange() {
  if (TextChange) TextChange.Invoke(Self(this));
}

}  // namespace vamo
