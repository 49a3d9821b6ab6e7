// What a text field accepts while the user types.
#ifndef VAMO_TOOLKIT_TYPING_RULE_H_
#define VAMO_TOOLKIT_TYPING_RULE_H_

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

// What to insert between `before` and `after` when the user types `character`: the character
// itself, with the mask's literals in front of it where a digit is typed and the mask wants them
// there ("5" into the empty field under ".###" gives ".5"). Nothing where the whole would not fit
// the rule. All texts are valid UTF-8.
std::optional<std::string> Insertion(std::string_view before, std::string_view after,
                                     std::string_view character, const TypingRule& rule);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_TYPING_RULE_H_
