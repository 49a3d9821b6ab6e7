// Property streams: byte strings that hold the initial state of windows and controls.
//
// A stream is a length byte, the entries one after the other, and a zero byte. The length byte is
// the length of the entries if that is below 255, else 0xFF; nothing depends on it. An entry is the
// property's name, one blank and the value: a Boolean takes 1 byte, an integer 8, a double 8, a
// single 4, a colour 4 (red, green, blue and a 0, which does not mean transparent), and a text its
// length in 4 bytes followed by its bytes in UTF-8. Numbers are little-endian. An entry does not
// contain its type: the class of the object being set determines it.
#ifndef VAMO_TOOLKIT_OBJECT_PROPERTY_STREAM_H_
#define VAMO_TOOLKIT_OBJECT_PROPERTY_STREAM_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>
#include <type_traits>

#include "toolkit/object/class_info.h"

namespace vamo {

// A stored stream: its bytes from the length byte to the zero byte, and the length of the entries
// alone.
struct PropertyStream {
  const char* bytes;
  std::size_t length;
};

// Sets the properties on the object one by one, in the order of the stream; a name that occurs
// twice is set twice. Raises InvalidArgumentException, with the property's name and its offset
// among the entries, if the object's class does not have the property or if a name or value runs
// past the end. Properties set before that stay set.
void _SetProperties(Object& object, PropertyStream stream);

// std::bit_cast, which libc++ 13 lacks, through the compilers' built-in function.
template <class To, class From>
constexpr To BitCast(const From& from) {
  return __builtin_bit_cast(To, from);
}

// A stream that is written entry by entry at compile time, with room for `kRoom` bytes of entries.
// One byte more does not compile, or throws std::out_of_range at run time.
template <std::size_t kRoom>
class EncodedStream {
 public:
  template <class T>
  constexpr EncodedStream& Set(const PropertyName<T>& name, std::type_identity_t<T> value) {
    return Bytes(name.text).Byte(' ').Value(static_cast<internal::StoredAs<T>>(value));
  }

  // The length of the entries.
  constexpr std::size_t Length() const { return length_; }
  // Valid while this object lives.
  constexpr operator PropertyStream() const {  // NOLINT(google-explicit-constructor)
    return {bytes_.data(), length_};
  }

 private:
  constexpr EncodedStream& Value(bool value) { return Number(value ? 1 : 0, 1); }
  constexpr EncodedStream& Value(std::int64_t value) {
    return Number(static_cast<std::uint64_t>(value), 8);
  }
  constexpr EncodedStream& Value(double value) { return Number(BitCast<std::uint64_t>(value), 8); }
  constexpr EncodedStream& Value(float value) { return Number(BitCast<std::uint32_t>(value), 4); }
  constexpr EncodedStream& Value(Colour value) {
    return Number(value.red, 1).Number(value.green, 1).Number(value.blue, 1).Byte(0);
  }
  constexpr EncodedStream& Value(std::string_view value) {
    return Number(value.size(), 4).Bytes(value);
  }
  constexpr EncodedStream& Bytes(std::string_view bytes) {
    for (const char byte : bytes) Byte(byte);
    return *this;
  }
  constexpr EncodedStream& Number(std::uint64_t number, int width) {
    for (int i = 0; i < width; ++i) Byte(static_cast<char>(number >> (8 * i) & 0xFF));
    return *this;
  }
  constexpr EncodedStream& Byte(char byte) {
    // The last byte stays 0, after the entries.
    if (length_ == kRoom) throw std::out_of_range("no room in the stream");
    bytes_[++length_] = byte;
    bytes_[0] = static_cast<char>(length_ < 255 ? length_ : 255);
    return *this;
  }

  std::array<char, kRoom + 2> bytes_{};
  std::size_t length_ = 0;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_OBJECT_PROPERTY_STREAM_H_
