// The table of a class: its name, and the names, types and setters of its properties.
#ifndef VAMO_TOOLKIT_OBJECT_CLASS_INFO_H_
#define VAMO_TOOLKIT_OBJECT_CLASS_INFO_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "toolkit/object/object.h"
#include "toolkit/style.h"

namespace vamo {

// A property's name and the type of its values: what the table of a class and the writer of a
// stream have in common. An enumeration is an integer in a stream.
template <class T>
struct PropertyName {
  std::string_view text;
};

// A property's value. The order of the alternatives is that of PropertyType.
using PropertyValue = std::variant<bool, std::int64_t, double, float, Colour, std::string_view>;

// The declared type of a property, which alone tells how wide its value is in a stream.
enum class PropertyType : std::size_t { kBoolean, kInteger, kDouble, kSingle, kColour, kText };

// One property of a class.
struct Property {
  std::string_view name;
  PropertyType type = PropertyType::kBoolean;
  // Sets the property on an object of the class; null where the value is skipped, since no display
  // has anything to show for it.
  void (*set)(Object& object, const PropertyValue& value) = nullptr;
};

// What a class tells about itself at run time. The tables are constants from
// the start (`constinit`), so that no other constant of the program can see one that is still
// empty.
struct ClassInfo {
  std::string_view name;
  const ClassInfo* base = nullptr;
  std::span<const Property> properties = {};
  // The events that the class implements.
  std::span<const std::string_view> events = {};
  // Allocates an object; null for a class of which a window holds none.
  Ref<Object> (*allocate)() = nullptr;

  // The property of that name in the class or in one of its bases; null where there is none.
  const Property* Find(std::string_view property) const;
};

// For the table of the class T.
template <class T>
Ref<Object> Allocate() {
  return New<T>();
}

namespace internal {

template <class T>
struct MemberOf;
template <class C, class T>
struct MemberOf<T C::*> {
  using Class = C;
  using Type = std::conditional_t<std::is_same_v<T, std::string>, std::string_view, T>;
};
template <class C, class T>
struct MemberOf<void (C::*)(T)> {
  using Class = C;
  using Type = T;
};
template <auto kMember>
using ClassOf = typename MemberOf<decltype(kMember)>::Class;
template <auto kMember>
using TypeOf = typename MemberOf<decltype(kMember)>::Type;

template <class T>
using StoredAs = std::conditional_t<std::is_enum_v<T>, std::int64_t, T>;

template <class T>
constexpr Property MakeProperty(const PropertyName<T>& name,
                                void (*set)(Object&, const PropertyValue&)) {
  return {name.text, static_cast<PropertyType>(PropertyValue(StoredAs<T>{}).index()), set};
}

template <class T>
T Get(const PropertyValue& value) {
  return static_cast<T>(std::get<StoredAs<T>>(value));
}

}  // namespace internal

// A property that is written by a setter, or to the member that keeps it.
template <auto kMember, class T>
constexpr Property Sets(const PropertyName<T>& name) {
  static_assert(std::is_same_v<T, internal::TypeOf<kMember>>);
  return internal::MakeProperty(name, [](Object& object, const PropertyValue& value) {
    auto& target = dynamic_cast<internal::ClassOf<kMember>&>(object);
    if constexpr (std::is_member_function_pointer_v<decltype(kMember)>) {
      (target.*kMember)(internal::Get<T>(value));
    } else {
      target.*kMember = internal::Get<T>(value);
    }
  });
}

// A property kept in a field of a struct member.
template <auto kStruct, auto kMember, class T>
constexpr Property Sets(const PropertyName<T>& name) {
  static_assert(std::is_same_v<T, internal::TypeOf<kMember>>);
  return internal::MakeProperty(name, [](Object& object, const PropertyValue& value) {
    auto& target = dynamic_cast<internal::ClassOf<kStruct>&>(object);
    (target.*kStruct).*kMember = internal::Get<T>(value);
  });
}

// A property that streams carry and that has no meaning for any display of this toolkit.
template <class T>
constexpr Property Skipped(const PropertyName<T>& name) {
  return internal::MakeProperty(name, nullptr);
}

// Several tables in one.
template <std::size_t... kSizes>
constexpr auto Joined(const std::array<Property, kSizes>&... tables) {
  std::array<Property, (kSizes + ...)> joined;
  auto* out = joined.data();
  ((out = std::copy(tables.begin(), tables.end(), out)), ...);
  return joined;
}

}  // namespace vamo

#endif  // VAMO_TOOLKIT_OBJECT_CLASS_INFO_H_
