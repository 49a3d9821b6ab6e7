// The table of a class: its name, its events, and the names, types and setters of its properties.
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

// A property's name and the type of its values, shared by the class tables and the writer of
// streams. In a stream an enumeration is an integer.
template <class T>
struct PropertyName {
  std::string_view text;
};

// A property's value. The alternatives are in the order of PropertyType.
using PropertyValue = std::variant<bool, std::int64_t, double, float, Colour, std::string_view>;

// The declared type of a property. It determines how a stream stores the value.
enum class PropertyType : std::size_t { kBoolean, kInteger, kDouble, kSingle, kColour, kText };

// One property of a class.
struct Property {
  std::string_view name;
  PropertyType type = PropertyType::kBoolean;
  // Sets the property on an object of the class; null if the value is skipped, because no display
  // has a use for it.
  void (*set)(Object& object, const PropertyValue& value) = nullptr;
};

// What is known about a class at run time. The tables are `constinit`, so that no other static
// object can see an empty one.
struct ClassInfo {
  std::string_view name;
  const ClassInfo* base = nullptr;
  std::span<const Property> properties = {};
  // The events that the class implements.
  std::span<const std::string_view> events = {};
  // Allocates an object; null if windows hold no objects of this class.
  Ref<Object> (*allocate)() = nullptr;

  // Finds the property of that name in the class or its bases; null if there is none.
  const Property* Find(std::string_view property) const;
};

// The function for `allocate` in the table of the class T.
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

// A property that is set by a setter or directly in a member.
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

// A property that is kept in a field of a struct member.
template <auto kStruct, auto kMember, class T>
constexpr Property Sets(const PropertyName<T>& name) {
  static_assert(std::is_same_v<T, internal::TypeOf<kMember>>);
  return internal::MakeProperty(name, [](Object& object, const PropertyValue& value) {
    auto& target = dynamic_cast<internal::ClassOf<kStruct>&>(object);
    (target.*kStruct).*kMember = internal::Get<T>(value);
  });
}

// A property that streams carry but no display has a use for.
template <class T>
constexpr Property Skipped(const PropertyName<T>& name) {
  return internal::MakeProperty(name, nullptr);
}

// Joins several tables.
template <std::size_t... kSizes>
constexpr auto Joined(const std::array<Property, kSizes>&... tables) {
  std::array<Property, (kSizes + ...)> joined;
  auto* out = joined.data();
  ((out = std::copy(tables.begin(), tables.end(), out)), ...);
  return joined;
}

}  // namespace vamo

#endif  // VAMO_TOOLKIT_OBJECT_CLASS_INFO_H_
