// The few things that the text controls must know about UTF-8.
#ifndef VAMO_TOOLKIT_UTF8_H_
#define VAMO_TOOLKIT_UTF8_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace vamo {

// `text` with every broken sequence replaced by U+FFFD. What comes from outside, a paste say,
// passes through here, so that all other code can count on whole characters. Linear in the length.
std::string ValidUtf8(std::string_view text);

// The number of characters (code points) of valid UTF-8.
std::size_t CharacterCount(std::string_view text);

// The byte offset of the character before or behind the one that stands at byte offset `at` of
// valid UTF-8. Stops at the ends of the text.
std::size_t PreviousCharacter(std::string_view text, std::size_t at);
std::size_t NextCharacter(std::string_view text, std::size_t at);

// The greatest character boundary of valid UTF-8 that is not above `at`.
std::size_t CharacterBoundary(std::string_view text, std::size_t at);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_UTF8_H_
