#include "toolkit/text/text_field.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "toolkit/control/properties.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/text/received_text.h"
#include "toolkit/utf8.h"

namespace vamo {

struct TextField::Properties {
  static constexpr std::array kRows{
      Sets<&TextField::password_>(property::kPassword),
      Sets<&TextField::hint_>(property::kHint),
      Sets<&TextField::rule_, &TypingRule::maximum_characters>(property::kMaximumCharactersAllowed),
      Sets<&TextField::rule_, &TypingRule::mask>(property::kValidationMask),
  };
};

constinit const ClassInfo TextField::kClass{
    "TextField", &TextEdit::kClass, Properties::kRows, {}, Allocate<TextField>};

namespace {

constexpr char kBlank = ' ';

// The start of the word before `at`; blanks in between belong to the word.
std::size_t WordBefore(std::string_view text, std::size_t at) {
  const std::string_view before = text.substr(0, at);
  const std::size_t last = before.find_last_not_of(kBlank);
  return last == std::string_view::npos ? 0 : before.rfind(kBlank, last) + 1;
}

// The end of the word after `at`; blanks in between belong to the word.
std::size_t WordAfter(std::string_view text, std::size_t at) {
  return std::min(text.find(kBlank, text.find_first_not_of(kBlank, at)), text.size());
}

}  // namespace

bool TextField::HandleKey(const Key& key) {
  if (Revision() != last_revision_) typist_.Forget();
  bool taken = false;
  if (key.code == KeyCode::kCharacter && !key.text.empty()) {
    taken = TakeCharacter(key);
  } else {
    typist_.Forget();
    // With Shift it is the platform's key for Cut.
    taken = key.code == KeyCode::kDelete && !key.shift;
    if (taken && !ReadOnly()) {
      const std::size_t caret = Selection().caret;
      DeleteTo(key.word ? WordAfter(Text(), caret) : NextCharacter(Text(), caret));
    }
  }
  last_revision_ = Revision();
  return taken;
}

bool TextField::TakeCharacter(const Key& key) {
  if (KeyDown && KeyDown.Invoke(Self(this), key.text)) {
    typist_.Refused(key.text);
    return true;
  }
  const auto code = static_cast<unsigned char>(key.text[0]);
  if (code >= ' ' && !ReadOnly()) {
    Type(key.text);
    return true;
  }
  typist_.Forget();
  if (code == kBackspace && !ReadOnly()) {
    const std::size_t caret = Selection().caret;
    DeleteTo(key.word ? WordBefore(Text(), caret) : PreviousCharacter(Text(), caret));
  }
  return code != kTab;
}

void TextField::Type(std::string_view character) {
  const auto [anchor, caret] = Selection();
  const std::string_view text = Text();
  const std::size_t end = std::max(anchor, caret);
  const auto typed =
      typist_.Type(text.substr(0, std::min(anchor, caret)), text.substr(end), character, rule_);
  if (typed.has_value()) {
    Replace(0, end, *typed);
  } else {
    Beep();
  }
}

void TextField::EnteredByClick() {
  if (SelectedText().empty()) EnteredByTab();
}

std::string TextField::Received(std::string_view text) const {
  std::string received = TextEdit::Received(text);
  if (HasDigits(rule_)) received = WithAsciiDigits(received);
  return HasPoint(rule_) ? WithDecimalPoint(std::move(received)) : received;
}

// An on-screen keyboard does not know the field, so its decimal key may be a comma.
std::string TextField::Typed(std::string_view text) const {
  if (HasPoint(rule_) && text == ",") return ".";
  return Received(text);
}

void TextField::RaiseTextChange() {
  if (TextChange) TextChange.Invoke(Self(this));
}

}  // namespace vamo
