// The table of a class: its name, and the names, types and setters of its properties.
#ifndef VAMO_TOOLKIT_CLASS_INFO_H_
#define VAMO_TOOLKIT_CLASS_INFO_H_

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "toolkit/object.h"

namespace vamo {

// A colour. A property stream stores it in this order, with a fourth byte of 0 behind it that does
// not mean see-through.
struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Colour&) const = default;
};

// A property's value. The order of the alternatives is that of PropertyType.
using PropertyValue = std::variant<bool, std::int64_t, double, float, Colour, std::string_view>;

// The declared type of a property, which alone tells how wide its value is in a stream.
enum class PropertyType : std::size_t { kBoolean, kInteger, kDouble, kSingle, kColour, kText };

// One property of a class.
struct Property {
  std::string_view name;
  PropertyType type = PropertyType::kBoolean;
  // Sets the property on an object of the class; nil where the value is read over, since no display
  // has anything to show for it.
  void (*set)(Object& object, const PropertyValue& value) = nullptr;
};

// What a class tells about itself at run time. It makes no objects. The tables are constants from
// the start (`constinit`), so that no other constant of the program can see one that is still
// empty.
struct ClassInfo {
  std::string_view name;
  const ClassInfo* base = nullptr;
  std::span<const Property> properties;
  // The events that the class implements.
  std::span<const std::string_view> events = {};

  // The property of that name in the class or in one of its bases; nil where there is none.
  const Property* Find(std::string_view property) const;
};

namespace internal {

template <class T>
struct MemberOf;
template <class C, class T>
struct MemberOf<T C::*> {
  using Class = C;
  using Type = T;
};
template <class C, class T>
struct MemberOf<void (C::*)(T)> {
  using Class = C;
  using Type = std::remove_cvref_t<T>;
};

template <class First, class... Rest>
struct Last {
  using Member = typename Last<Rest...>::Member;
};
template <class Only>
struct Last<Only> {
  using Member = Only;
};
template <class... Members>
using LastType = typename MemberOf<typename Last<Members...>::Member>::Type;

template <class T>
using StoredAs = std::conditional_t<std::is_same_v<T, std::string>, std::string_view, T>;

template <class T>
constexpr PropertyType TypeOf() {
  return static_cast<PropertyType>(PropertyValue(StoredAs<T>{}).index());
}

// The member of an object that a path of members leads to.
template <class T, class Member, class... Path>
auto& Follow(T& object, Member member, Path... path) {
  if constexpr (sizeof...(path) == 0) {
    return object.*member;
  } else {
    return Follow(object.*member, path...);
  }
}

}  // namespace internal

// A property whose type follows from its setter, or from the member that keeps it: `kMember` is the
// one or the other, and `kPath` goes on from a member that is a struct to what lies in it.
template <auto kMember, auto... kPath>
constexpr Property Declare(std::string_view name) {
  using Class = typename internal::MemberOf<decltype(kMember)>::Class;
  using Type = internal::StoredAs<internal::LastType<decltype(kMember), decltype(kPath)...>>;
  return {name, internal::TypeOf<Type>(), [](Object& object, const PropertyValue& value) {
            auto& target = dynamic_cast<Class&>(object);
            if constexpr (std::is_member_function_pointer_v<decltype(kMember)>) {
              (target.*kMember)(std::get<Type>(value));
            } else {
              internal::Follow(target, kMember, kPath...) = std::get<Type>(value);
            }
          }};
}

// A property that streams carry and that has no meaning for any display of this toolkit.
template <class T>
constexpr Property ReadOver(std::string_view name) {
  return {name, internal::TypeOf<T>(), nullptr};
}

// Two tables as one.
template <class Row, std::size_t kFirst, std::size_t kSecond>
constexpr std::array<Row, kFirst + kSecond> Join(const std::array<Row, kFirst>& first,
                                                 const std::array<Row, kSecond>& second) {
  std::array<Row, kFirst + kSecond> joined;
  std::copy(second.begin(), second.end(), std::copy(first.begin(), first.end(), joined.begin()));
  return joined;
}

}  // namespace vamo

#endif  // VAMO_TOOLKIT_CLASS_INFO_H_
