// What a text field accepts while the user types.
#ifndef VAMO_TOOLKIT_TEXT_TYPING_RULE_H_
#define VAMO_TOOLKIT_TEXT_TYPING_RULE_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vamo {

// The two limits on typing. They apply neither to writes by the program nor to pastes.
struct TypingRule {
  // "#" is a digit; any other character stands for itself. The text may end before the mask. Empty:
  // any text.
  std::string mask;
  // In characters; 0: no limit.
  std::int64_t maximum_characters = 0;
};

// Returns the text in front of the caret after the user has typed `character` between `before` and
// `after`: `before`, then the literals that the mask has in front of a typed digit, then
// `character`. So "5" in the empty field under ".###" gives ".5". "0.5" gives ".5" too: the zero
// has become ".0", and a literal typed after itself and only zeros replaces them. Returns nothing
// if the whole text would not fit the rule. All texts are valid UTF-8.
std::optional<std::string> Typed(std::string_view before, std::string_view after,
                                 std::string_view character, const TypingRule& rule);

// Types one character after the other and remembers the last ones. In a field with a point, "0,5"
// means ".5": the comma is refused, but after zeros typed as whole digits the next digit is
// inserted as if the comma were a point.
class Typist {
 public:
  // Does what the function `Typed` above does.
  std::optional<std::string> Type(std::string_view before, std::string_view after,
                                  std::string_view character, const TypingRule& rule);
  // A key filter has refused the character.
  void Refused(std::string_view character);
  // The text or the caret has changed in another way, or another key was pressed.
  void Forget() { typed_ = LastTyped::kOther; }

 private:
  enum class LastTyped { kOther, kWholeZeros, kCommaAfterZeros };

  LastTyped typed_ = LastTyped::kOther;
};

// Whether the mask has digits; whether it has a decimal point.
bool HasDigits(const TypingRule& rule);
bool HasPoint(const TypingRule& rule);

// What an on-screen keyboard must offer for a field: all characters, those of numbers (with point
// and sign), or only digits.
enum class KeyboardKind { kAll, kNumber, kDigits };
KeyboardKind KeyboardFor(const TypingRule& rule);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_TEXT_TYPING_RULE_H_
