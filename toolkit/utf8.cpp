#include "toolkit/utf8.h"

#include <algorithm>

namespace vamo {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

unsigned char Byte(char c) { return static_cast<unsigned char>(c); }

bool IsContinuation(char c) { return (Byte(c) & 0xC0) == 0x80; }

// The number of UTF-16 code units of the character that begins with this byte; 0 for a byte inside
// a character.
std::size_t Utf16Units(char c) {
  if (IsContinuation(c)) return 0;
  return Byte(c) >= 0xF0 ? 2 : 1;
}

}  // namespace

std::size_t SequenceLength(std::string_view text) {
  const unsigned char lead = Byte(text[0]);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(text[i])) return 0;
  }
  const unsigned char second = Byte(text[1]);
  const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool outside = (lead == 0xED && second >= 0xA0) || (lead == 0xF4 && second >= 0x90);
  return overlong || outside ? 0 : length;
}

std::string ValidUtf8(std::string_view text) {
  std::string valid;
  valid.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = SequenceLength(text);
    valid += length == 0 ? kReplacement : text.substr(0, length);
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return valid;
}

std::size_t CharacterCount(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return !IsContinuation(c); }));
}

std::size_t PreviousCharacter(std::string_view text, std::size_t at) {
  return at == 0 ? 0 : CharacterBoundary(text, at - 1);
}

std::size_t NextCharacter(std::string_view text, std::size_t at) {
  if (at >= text.size()) return text.size();
  do ++at;
  while (at < text.size() && IsContinuation(text[at]));
  return at;
}

std::vector<std::string_view> Characters(std::string_view text) {
  std::vector<std::string_view> characters;
  characters.reserve(CharacterCount(text));
  while (!text.empty()) {
    characters.push_back(text.substr(0, NextCharacter(text, 0)));
    text.remove_prefix(characters.back().size());
  }
  return characters;
}

std::size_t CharacterBoundary(std::string_view text, std::size_t at) {
  at = std::min(at, text.size());
  while (at > 0 && at < text.size() && IsContinuation(text[at])) --at;
  return at;
}

std::size_t Utf16Offset(std::string_view text, std::size_t byte_offset) {
  std::size_t offset = 0;
  for (const char c : text.substr(0, byte_offset)) offset += Utf16Units(c);
  return offset;
}

std::size_t ByteOffset(std::string_view text, std::size_t utf16_offset) {
  std::size_t offset = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t units = Utf16Units(text[i]);
    if (units > 0 && offset >= utf16_offset) return i;
    offset += units;
  }
  return text.size();
}

}  // namespace vamo
