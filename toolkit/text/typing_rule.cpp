#include "toolkit/text/typing_rule.h"

#include <cstddef>

#include "toolkit/utf8.h"

namespace vamo {
namespace {

constexpr std::string_view kDigitPlace = "#";
constexpr std::string_view kPoint = ".";

bool IsDigit(std::string_view character) {
  return character.size() == 1 && character[0] >= '0' && character[0] <= '9';
}

// Removes and returns the first character of a text.
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

// The literals of the mask between the end of `before` and the place where `digit` fits.
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

// Whether `before` is the mask's `literals` and then only zeros, and the character is the last
// literal, as the point of "0." under ".###".
bool ReplacesZeros(std::string_view before, std::string_view character, std::string_view literals) {
  return !literals.empty() && !IsDigit(character) && literals.ends_with(character) &&
         before.starts_with(literals) && before.size() > literals.size() &&
         before.find_first_not_of('0', literals.size()) == std::string_view::npos;
}

}  // namespace

std::optional<std::string> Typed(std::string_view before, std::string_view after,
                                 std::string_view character, const TypingRule& rule) {
  std::string typed(before);
  const std::string_view literals =
      std::string_view(rule.mask).substr(0, rule.mask.find(kDigitPlace));
  if (ReplacesZeros(before, character, literals)) {
    typed = literals;
  } else {
    if (IsDigit(character)) typed += Literals(before, character, rule.mask);
    typed += character;
  }
  const std::string whole = typed + std::string(after);
  if (!rule.mask.empty() && !Fits(whole, rule.mask)) return std::nullopt;
  const auto maximum = static_cast<std::size_t>(rule.maximum_characters);
  if (rule.maximum_characters > 0 && CharacterCount(whole) > maximum) return std::nullopt;
  return typed;
}

std::optional<std::string> Typist::Type(std::string_view before, std::string_view after,
                                        std::string_view character, const TypingRule& rule) {
  const bool continues_zeros = before.empty() || typed_ == LastTyped::kWholeZeros;
  const bool after_comma = typed_ == LastTyped::kCommaAfterZeros && IsDigit(character);
  const auto with_point = after_comma ? Typed(before, after, kPoint, rule) : std::nullopt;
  std::optional<std::string> typed =
      Typed(with_point.value_or(std::string(before)), after, character, rule);
  if (!typed.has_value()) {
    Refused(character);
  } else {
    typed_ = continues_zeros && character == "0" ? LastTyped::kWholeZeros : LastTyped::kOther;
  }
  return typed;
}

void Typist::Refused(std::string_view character) {
  const bool is_comma = character == "," && typed_ != LastTyped::kOther;
  typed_ = is_comma ? LastTyped::kCommaAfterZeros : LastTyped::kOther;
}

bool HasDigits(const TypingRule& rule) { return rule.mask.find(kDigitPlace) != std::string::npos; }

bool HasPoint(const TypingRule& rule) { return rule.mask.find(kPoint) != std::string::npos; }

KeyboardKind KeyboardFor(const TypingRule& rule) {
  constexpr std::string_view kNumberPlaces = "#.-";
  if (rule.mask.empty()) return KeyboardKind::kAll;
  if (rule.mask.find_first_not_of(kDigitPlace) == std::string::npos) return KeyboardKind::kDigits;
  const bool number = rule.mask.find_first_not_of(kNumberPlaces) == std::string::npos;
  return number ? KeyboardKind::kNumber : KeyboardKind::kAll;
}

}  // namespace vamo
