// Property streams: the byte strings that hold the initial state of windows and controls.
//
// A stream is a length byte, the entries one behind the other, and a zero byte. The length byte is
// the entries' length where that is below 255, else 0xFF; nothing depends on it. An entry is the
// property's name, one blank and the value: a Boolean in 1 byte, an integer in 8, a double in 8, a
// single in 4, a colour in 4, a text as its length in 4 bytes and then its bytes of UTF-8; numbers
// little-endian. An entry has no type of its own: the class of the object that is set tells it.
#ifndef VAMO_TOOLKIT_PROPERTY_STREAM_H_
#define VAMO_TOOLKIT_PROPERTY_STREAM_H_

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "toolkit/class_info.h"

namespace vamo {

// A stream as it is stored: the bytes from the length byte to the zero byte, and beside them the
// length of the entries alone.
struct PropertyStream {
  const char* bytes;
  std::size_t length;
};

// Sets the stream's properties on the object, each at once and in the order of the stream; a name
// that comes twice is set twice. Raises InvalidArgumentException, with the property's name and its
// offset in the stream, for a name that the object's class lacks and for a value or text that runs
// past the end; what was set before stays set.
void _SetProperties(Object& object, PropertyStream stream);

// One row of the table that a stream is made from.
struct PropertyEntry {
  std::string_view name;
  PropertyValue value;
};

namespace internal {

constexpr std::size_t EncodedSize(const PropertyValue& value) {
  constexpr std::size_t kWidths[] = {1, 8, 8, 4, 4};
  if (!std::holds_alternative<std::string_view>(value)) return kWidths[value.index()];
  return 4 + std::get<std::string_view>(value).size();
}

constexpr std::size_t EncodedSize(std::span<const PropertyEntry> entries) {
  std::size_t size = 0;
  for (const PropertyEntry& entry : entries)
    size += entry.name.size() + 1 + EncodedSize(entry.value);
  return size;
}

// Writes entries into a buffer that is large enough.
class StreamWriter {
 public:
  constexpr explicit StreamWriter(char* out) : out_(out) {}

  constexpr void Write(const PropertyEntry& entry) {
    Bytes(entry.name);
    *out_++ = ' ';
    std::visit([this](const auto& value) { Value(value); }, entry.value);
  }

 private:
  constexpr void Value(bool boolean) { Number(boolean ? 1 : 0, 1); }
  constexpr void Value(std::int64_t integer) { Number(static_cast<std::uint64_t>(integer), 8); }
  constexpr void Value(double real) { Number(std::bit_cast<std::uint64_t>(real), 8); }
  constexpr void Value(float single) { Number(std::bit_cast<std::uint32_t>(single), 4); }
  constexpr void Value(Colour colour) {
    Number(colour.red, 1);
    Number(colour.green, 1);
    Number(colour.blue, 1);
    Number(0, 1);
  }
  constexpr void Value(std::string_view text) {
    Number(text.size(), 4);
    Bytes(text);
  }

  constexpr void Bytes(std::string_view bytes) {
    for (const char byte : bytes) *out_++ = byte;
  }
  constexpr void Number(std::uint64_t number, int width) {
    for (int i = 0; i < width; ++i) *out_++ = static_cast<char>(number >> (8 * i) & 0xFF);
  }

  char* out_;
};

// The bytes of one stream. `Table` is a stateless callable that gives an array of PropertyEntry.
template <class Table>
struct EncodedStream {
  static constexpr auto kEntries = Table{}();
  static constexpr std::size_t kLength = EncodedSize(std::span<const PropertyEntry>(kEntries));
  static constexpr std::array<char, kLength + 2> kBytes = [] {
    std::array<char, kLength + 2> bytes{};
    bytes[0] = static_cast<char>(kLength < 255 ? kLength : 255);
    StreamWriter writer(bytes.data() + 1);
    for (const PropertyEntry& entry : kEntries) writer.Write(entry);
    return bytes;
  }();
};

}  // namespace internal

// The stream of a table of entries, encoded when the program is compiled.
template <class Table>
constexpr PropertyStream EncodeStream(Table /*table*/) {
  using Encoded = internal::EncodedStream<Table>;
  return {Encoded::kBytes.data(), Encoded::kLength};
}

}  // namespace vamo

#endif  // VAMO_TOOLKIT_PROPERTY_STREAM_H_
