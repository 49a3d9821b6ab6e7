// What a text field accepts while the user types.
#ifndef VAMO_TOOLKIT_TEXT_TYPING_RULE_H_
#define VAMO_TOOLKIT_TEXT_TYPING_RULE_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vamo {

// The two limits on typing. They bind neither a write by the program nor a paste.
struct TypingRule {
  // "#" is one digit that may be missing at the end; any other character stands for itself. Empty:
  // any text.
  std::string mask;
  // In characters; 0: no limit.
  std::int64_t maximum_characters = 0;
};

// What stands in front of the caret when the user has typed `character` between `before` and
// `after`: the character after `before`, with the mask's literals between them where a digit is
// typed and the mask wants them there. So "5" into the empty field under ".###" gives ".5". "0.5"
// gives ".5" too: the zero has become ".0" when the point comes, and a literal that is typed after
// itself and nothing but zeros takes their place. Nothing where the whole would not fit the rule.
// All texts are valid UTF-8.
std::optional<std::string> Typed(std::string_view before, std::string_view after,
                                 std::string_view character, const TypingRule& rule);

// Types one character after the other, and knows what the last ones mean together. In a field with
// a point, who types "0,5" means ".5", although a comma is refused: once nothing but zeros stands
// before the caret, typed as whole digits, a digit after the comma goes in as if the comma had been
// the point.
class Typist {
 public:
  // As the function `Typed` above.
  std::optional<std::string> Type(std::string_view before, std::string_view after,
                                  std::string_view character, const TypingRule& rule);
  // A key filter has refused the character.
  void Refused(std::string_view character);
  // The text or the caret has changed otherwise, or another key has come.
  void Forget() { typed_ = LastTyped::kOther; }

 private:
  enum class LastTyped { kOther, kWholeZeros, kCommaAfterZeros };

  LastTyped typed_ = LastTyped::kOther;
};

// Whether the mask wants digits, and a decimal point.
bool HasDigits(const TypingRule& rule);
bool HasPoint(const TypingRule& rule);

// What a keyboard on the screen has to offer for a field: all characters, those of numbers, with
// point and sign, or digits alone.
enum class KeyboardKind { kAll, kNumber, kDigits };
KeyboardKind KeyboardFor(const TypingRule& rule);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_TEXT_TYPING_RULE_H_
