// Typing of any character into any text under any rule, against a rule of whole code points.
#include <optional>
#include <string>
#include <string_view>

#include "target.h"
#include "toolkit/typing_rule.h"
#include "toolkit/utf8.h"

namespace vamo {
namespace {

// The characters of valid UTF-8.
std::u32string CodePoints(std::string_view text) {
  std::u32string points;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0U) == 0x80U) {
      points.back() = points.back() << 6U | (byte & 0x3FU);
    } else {
      points += byte < 0x80 ? byte : byte < 0xE0 ? byte & 0x1FU : byte & 0x0FU;
    }
  }
  return points;
}

bool IsDigit(char32_t c) { return c >= U'0' && c <= U'9'; }

bool Fits(const std::u32string& text, const std::u32string& mask) {
  if (text.size() > mask.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (mask[i] == U'#' ? !IsDigit(text[i]) : text[i] != mask[i]) return false;
  }
  return true;
}

// Whether zeros behind the literals that the mask begins with make way for the last one of them.
bool MakeWay(const std::u32string& before, char32_t character, const std::u32string& literals) {
  return !literals.empty() && !IsDigit(character) && literals.back() == character &&
         before.size() > literals.size() &&
         before == literals + std::u32string(before.size() - literals.size(), U'0');
}

// What may stand before the caret then: the character or, for a digit, the character behind the
// fewest literals of the mask with which it fits.
std::optional<std::u32string> Expected(const std::u32string& before, const std::u32string& after,
                                       char32_t character, const std::u32string& mask,
                                       std::int64_t maximum) {
  std::u32string inserted(1, character);
  const std::u32string literals = mask.substr(0, mask.find(U'#'));
  if (MakeWay(before, character, literals)) {
    const std::u32string whole = literals + after;
    return Fits(whole, mask) ? std::optional(literals) : std::nullopt;
  }
  if (!mask.empty()) {
    for (std::size_t at = before.size(); !Fits(before + inserted, mask); ++at) {
      if (!IsDigit(character) || at >= mask.size() || mask[at] == U'#') return std::nullopt;
      inserted.insert(inserted.size() - 1, 1, mask[at]);
    }
  }
  const std::u32string whole = before + inserted + after;
  if (!mask.empty() && !Fits(whole, mask)) return std::nullopt;
  if (maximum > 0 && whole.size() > static_cast<std::size_t>(maximum)) return std::nullopt;
  return before + inserted;
}

}  // namespace

void TryInput(Input input) {
  TypingRule rule;
  rule.maximum_characters = (input.Byte() ^ 0x80) - 0x80;  // Below zero as well.
  rule.mask = ValidUtf8(input.ShortText());
  const std::string before = ValidUtf8(input.ShortText());
  const std::string after = ValidUtf8(input.ShortText());
  std::string character = ValidUtf8(input.Rest());
  character.resize(NextCharacter(character, 0));
  if (character.empty()) return;

  const auto typed = Typed(before, after, character, rule);
  const auto expected = Expected(CodePoints(before), CodePoints(after), CodePoints(character)[0],
                                 CodePoints(rule.mask), rule.maximum_characters);
  Require(typed.has_value() == expected.has_value(), "typed where it fits, and only there");
  if (typed) Require(CodePoints(*typed) == *expected, "what stands before the caret");
}

}  // namespace vamo
