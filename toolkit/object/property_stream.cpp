// The reader of property streams.
#include "toolkit/object/property_stream.h"

#include <algorithm>
#include <string>
#include <utility>

#include "toolkit/object/ui_trap.h"

namespace vamo {
namespace {

// Reads the entries of one stream. It knows no classes: the caller gives the type of each value.
class StreamReader {
 public:
  explicit StreamReader(std::string_view entries) : entries_(entries) {}

  bool AtEnd() const { return at_ == entries_.size(); }

  std::string_view ReadName() {
    start_ = at_;
    const std::size_t blank = entries_.find(' ', at_);
    name_ = entries_.substr(at_, std::min(blank, entries_.size()) - at_);
    if (blank == std::string_view::npos) Fail("the name has no end");
    at_ = blank + 1;
    return name_;
  }

  PropertyValue ReadValue(PropertyType type) {
    switch (type) {
      case PropertyType::kBoolean:
        return Take(1)[0] != 0;
      case PropertyType::kInteger:
        return static_cast<std::int64_t>(Number(8));
      case PropertyType::kDouble:
        return BitCast<double>(Number(8));
      case PropertyType::kSingle:
        return BitCast<float>(static_cast<std::uint32_t>(Number(4)));
      case PropertyType::kColour: {
        const std::string_view bytes = Take(4);
        const auto channel = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
        return Colour{channel(0), channel(1), channel(2)};
      }
      case PropertyType::kText:
        break;
    }
    return Take(static_cast<std::size_t>(Number(4)));
  }

  [[noreturn]] void Fail(const std::string& what) const {
    throw InvalidArgumentException("Property stream, \"" + std::string(name_) + "\" at offset " +
                                   std::to_string(start_) + ": " + what + ".");
  }

 private:
  std::string_view Take(std::size_t count) {
    if (count > entries_.size() - at_) Fail("the value runs past the end of the stream");
    return entries_.substr(std::exchange(at_, at_ + count), count);
  }

  std::uint64_t Number(std::size_t width) {
    std::uint64_t number = 0;
    const std::string_view bytes = Take(width);
    for (std::size_t i = width; i-- > 0;) {
      number = number << 8U | static_cast<unsigned char>(bytes[i]);
    }
    return number;
  }

  std::string_view entries_;
  std::size_t at_ = 0;
  std::size_t start_ = 0;
  std::string_view name_;
};

}  // namespace

void _SetProperties(Object& object, PropertyStream stream) {
  _UITrap();
  StreamReader reader(std::string_view(stream.bytes + 1, stream.length));
  while (!reader.AtEnd()) {
    const std::string_view name = reader.ReadName();
    const ClassInfo* info = object.Class();
    const Property* property = info == nullptr ? nullptr : info->Find(name);
    if (property == nullptr)
      reader.Fail("the class " + ClassName(object) + " has no such property");
    const PropertyValue value = reader.ReadValue(property->type);
    if (property->set != nullptr) property->set(object, value);
  }
}

}  // namespace vamo
