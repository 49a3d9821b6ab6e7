// What a text field accepts while the user types.
#include "toolkit/typing_rule.h"

#include <cstddef>

#include "toolkit/utf8.h"

namespace vamo {
namespace {

constexpr std::string_view kDigitPlace = "#";

bool IsDigit(std::string_view character) {
  return character.size() == 1 && character[0] >= '0' && character[0] <= '9';
}

// Takes the first character off a text.
std::string_view TakeCharacter(std::string_view& text) {
  const std::size_t end = NextCharacter(text, 0);
  const std::string_view character = text.substr(0, end);
  text.remove_prefix(end);
  return character;
}

bool Fits(std::string_view text, std::string_view mask) {
  while (!text.empty()) {
    if (mask.empty()) return false;
    const std::string_view wanted = TakeCharacter(mask);
    const std::string_view character = TakeCharacter(text);
    if (wanted == kDigitPlace ? !IsDigit(character) : character != wanted) return false;
  }
  return true;
}

// The mask's literals between the end of `before` and the place where `digit` can stand.
std::string Literals(std::string_view before, std::string_view digit, std::string_view mask) {
  for (std::size_t i = CharacterCount(before); i > 0 && !mask.empty(); --i) TakeCharacter(mask);
  std::string literals;
  while (!mask.empty()) {
    const std::string_view wanted = TakeCharacter(mask);
    if (wanted == kDigitPlace || wanted == digit) break;
    literals += wanted;
  }
  return literals;
}

}  // namespace

std::optional<std::string> Insertion(std::string_view before, std::string_view after,
                                     std::string_view character, const TypingRule& rule) {
  std::string inserted(character);
  if (IsDigit(character)) inserted.insert(0, Literals(before, character, rule.mask));
  std::string whole(before);
  (whole += inserted) += after;
  if (!rule.mask.empty() && !Fits(whole, rule.mask)) return std::nullopt;
  const auto maximum = static_cast<std::size_t>(rule.maximum_characters);
  if (rule.maximum_characters > 0 && CharacterCount(whole) > maximum) return std::nullopt;
  return inserted;
}

}  // namespace vamo
