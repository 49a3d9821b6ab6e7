// Reads what assistive technology sees of a program, through libatspi.
#include "at_spi.h"

#include <stdexcept>

namespace vamo {
namespace {

template <auto function>
struct FreeWith {
  void operator()(auto* owned) const { function(owned); }
};
template <typename T>
using Held = std::unique_ptr<T, FreeWith<g_object_unref>>;
template <typename T>
using Memory = std::unique_ptr<T, FreeWith<g_free>>;

// Calls an AT-SPI function whose last argument receives the error. Throws the message of the error:
// usually the element no longer exists, or the program does not answer.
template <typename Function, typename... Args>
auto Call(Function function, Args... args) {
  GError* error = nullptr;
  auto result = function(args..., &error);
  if (error != nullptr) {
    const std::string message = error->message;
    g_error_free(error);
    throw std::runtime_error(message);
  }
  return result;
}

template <typename Function, typename... Args>
std::string CallForText(Function function, Args... args) {
  const Memory<gchar> text(Call(function, args...));
  return text ? text.get() : "";
}

}  // namespace

// Before at-spi2 2.53 the role "button" was named "push button".
std::string Element::RoleName() const {
  const std::string name = CallForText(atspi_accessible_get_role_name, Get());
  return name == "push button" ? "button" : name;
}
std::string Element::Name() const { return CallForText(atspi_accessible_get_name, Get()); }
std::string Element::Description() const {
  return CallForText(atspi_accessible_get_description, Get());
}

std::vector<Element> Element::Children() const {
  std::vector<Element> children;
  const int count = Call(atspi_accessible_get_child_count, Get());
  for (int i = 0; i < count; ++i) {
    if (AtspiAccessible* child = Call(atspi_accessible_get_child_at_index, Get(), i)) {
      children.emplace_back(child);
    }
  }
  return children;
}

bool Element::HasState(AtspiStateType state) const {
  const Held<AtspiStateSet> states(atspi_accessible_get_state_set(Get()));
  return states && atspi_state_set_contains(states.get(), state);
}

std::string Element::Text() const {
  const Held<AtspiText> text(atspi_accessible_get_text_iface(Get()));
  return text ? CallForText(atspi_text_get_text, text.get(), 0, -1) : Name();
}

std::string Element::SelectedText() const {
  const Held<AtspiText> text{atspi_accessible_get_text_iface(Get())};
  if (!text || Call(atspi_text_get_n_selections, text.get()) == 0) return "";
  const Memory<AtspiRange> range(Call(atspi_text_get_selection, text.get(), 0));
  return CallForText(atspi_text_get_text, text.get(), range->start_offset, range->end_offset);
}

std::string Element::LabelledBy() const {
  const std::unique_ptr<GArray, FreeWith<g_array_unref>> relations(
      Call(atspi_accessible_get_relation_set, Get()));
  std::string name;
  for (guint i = 0; relations && i < relations->len; ++i) {
    const Held<AtspiRelation> relation(g_array_index(relations.get(), AtspiRelation*, i));
    if (atspi_relation_get_relation_type(relation.get()) != ATSPI_RELATION_LABELLED_BY) continue;
    name = Element(atspi_relation_get_target(relation.get(), 0)).Name();
  }
  return name;
}

Scale Element::ReadScale() const {
  const Held<AtspiValue> value(atspi_accessible_get_value_iface(Get()));
  if (!value) throw std::runtime_error("it has no value");
  return {Call(atspi_value_get_current_value, value.get()),
          Call(atspi_value_get_minimum_value, value.get()),
          Call(atspi_value_get_maximum_value, value.get()),
          Call(atspi_value_get_minimum_increment, value.get())};
}

Place Element::Extents() const {
  const Held<AtspiComponent> component(atspi_accessible_get_component_iface(Get()));
  if (!component) throw std::runtime_error("it has no place on the screen");
  const Memory<AtspiRect> rect(
      Call(atspi_component_get_extents, component.get(), ATSPI_COORD_TYPE_SCREEN));
  return {rect->x, rect->y, rect->width, rect->height};
}

void Element::Press() const {
  const Held<AtspiAction> action(atspi_accessible_get_action_iface(Get()));
  if (!action || CallForText(atspi_action_get_action_name, action.get(), 0) != "Press" ||
      !Call(atspi_action_do_action, action.get(), 0)) {
    throw std::runtime_error("it cannot be pressed");
  }
}

pid_t Element::Process() const {
  return static_cast<pid_t>(atspi_accessible_get_process_id(Get(), nullptr));
}

std::optional<Element> FindApplication(pid_t process) {
  AtspiAccessible* desktop = atspi_get_desktop(0);
  if (desktop == nullptr) throw std::runtime_error("there is no accessibility bus");
  // The library caches what it reads until its main loop delivers changes, and no test runs that
  // loop.
  atspi_accessible_clear_cache(desktop);
  for (const Element& application : Element(desktop).Children()) {
    if (application.Process() == process) return application;
  }
  return std::nullopt;
}

}  // namespace vamo
