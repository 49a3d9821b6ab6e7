// Which events a class implements.
#ifndef VAMO_TOOLKIT_EVENTS_H_
#define VAMO_TOOLKIT_EVENTS_H_

#include <array>
#include <string_view>
#include <type_traits>
#include <utility>

#include "toolkit/application.h"
#include "toolkit/window.h"

namespace vamo {
namespace internal {

// A member that a class has from its base has the base's type.
template <auto kOwn, auto kBase>
inline constexpr bool kOverrides = !std::is_same_v<decltype(kOwn), decltype(kBase)>;

template <std::size_t kSize>
constexpr bool Holds(const std::array<std::pair<std::string_view, bool>, kSize>& events,
                     std::string_view event) {
  for (const auto& [name, implemented] : events) {
    if (name == event) return implemented;
  }
  return false;
}

}  // namespace internal

// For a class of window: whether it implements the event of that name. Told by what it overrides.
template <class C>
bool ImplementsWindowEvent(std::string_view event) {
  using Event = std::pair<std::string_view, bool>;
  static constexpr std::array kEvents{
      Event{"Layout", internal::kOverrides<&C::Layout, &Window::Layout>},
      Event{"CreateControls", internal::kOverrides<&C::CreateControls, &Window::CreateControls>},
      Event{"Activate", internal::kOverrides<&C::Event_Activate, &Window::Event_Activate>},
      Event{"Close", internal::kOverrides<&C::Event_Close, &Window::Event_Close>},
      Event{"EnableMenuItems",
            internal::kOverrides<&C::Event_EnableMenuItems, &Window::Event_EnableMenuItems>},
      Event{"KeyDown", internal::kOverrides<&C::Event_KeyDown, &Window::Event_KeyDown>},
      Event{"MouseDown", internal::kOverrides<&C::Event_MouseDown, &Window::Event_MouseDown>},
  };
  return internal::Holds(kEvents, event);
}

// The same for a class of application.
template <class C>
bool ImplementsApplicationEvent(std::string_view event) {
  using Event = std::pair<std::string_view, bool>;
  static constexpr std::array kEvents{
      Event{"EnableMenuItems",
            internal::kOverrides<&C::Event_EnableMenuItems, &Application::Event_EnableMenuItems>},
      Event{"UnhandledException", internal::kOverrides<&C::Event_UnhandledException,
                                                       &Application::Event_UnhandledException>},
  };
  return internal::Holds(kEvents, event);
}

}  // namespace vamo

#endif  // VAMO_TOOLKIT_EVENTS_H_
