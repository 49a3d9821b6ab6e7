// The few things that must be known about UTF-8.
#ifndef VAMO_TOOLKIT_UTF8_H_
#define VAMO_TOOLKIT_UTF8_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace vamo {

// The length in bytes of the character at the start of `text`, which is not empty; 0 where it is
// not well-formed: a stray or missing continuation byte, an overlong form, a surrogate, a code
// point above U+10FFFF.
std::size_t SequenceLength(std::string_view text);

// `text` with every broken sequence replaced by U+FFFD. What comes from outside, a paste say,
// passes through here, so that all other code can count on whole characters. Linear in the length.
std::string ValidUtf8(std::string_view text);

// The number of characters (code points) of valid UTF-8.
std::size_t CharacterCount(std::string_view text);

// The byte offset of the character before or after the one that stands at byte offset `at` of
// valid UTF-8. Stops at the ends of the text.
std::size_t PreviousCharacter(std::string_view text, std::size_t at);
std::size_t NextCharacter(std::string_view text, std::size_t at);

// The greatest character boundary of valid UTF-8 that is not above `at`.
std::size_t CharacterBoundary(std::string_view text, std::size_t at);

// The offset in the UTF-16 form of valid UTF-8 that belongs to a byte offset, and the other way
// round, for displays whose texts are UTF-16. An offset past the end is the end.
std::size_t Utf16Offset(std::string_view text, std::size_t byte_offset);
std::size_t ByteOffset(std::string_view text, std::size_t utf16_offset);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_UTF8_H_
