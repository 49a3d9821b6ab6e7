// The few operations on UTF-8 that the toolkit needs.
#ifndef VAMO_TOOLKIT_UTF8_H_
#define VAMO_TOOLKIT_UTF8_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vamo {

// Returns the length in bytes of the character at the start of `text`, which must not be empty; 0
// if it is not well-formed: a stray or missing continuation byte, an overlong form, a surrogate, or
// a code point above U+10FFFF.
std::size_t SequenceLength(std::string_view text);

// Returns `text` with U+FFFD in place of each byte that is not part of a well-formed character.
// Text from outside, such as a paste, passes through here, so that all other code can rely on whole
// characters. Takes linear time.
std::string ValidUtf8(std::string_view text);

// The number of characters (code points) in valid UTF-8.
std::size_t CharacterCount(std::string_view text);

// The byte offset of the character before or after the one at byte offset `at` in valid UTF-8.
// Stops at the ends of the text.
std::size_t PreviousCharacter(std::string_view text, std::size_t at);
std::size_t NextCharacter(std::string_view text, std::size_t at);

// The characters of valid UTF-8, one by one. They are parts of `text`.
std::vector<std::string_view> Characters(std::string_view text);

// The last character boundary at or before byte offset `at` in valid UTF-8.
std::size_t CharacterBoundary(std::string_view text, std::size_t at);

// Convert a byte offset in valid UTF-8 to the offset in its UTF-16 form and back, for displays
// whose texts are UTF-16. An offset past the end gives the end.
std::size_t Utf16Offset(std::string_view text, std::size_t byte_offset);
std::size_t ByteOffset(std::string_view text, std::size_t utf16_offset);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_UTF8_H_
