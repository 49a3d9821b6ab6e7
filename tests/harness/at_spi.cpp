// Reads what assistive technology sees of a program, through libatspi.
#include "at_spi.h"

#include <cmath>
#include <sstream>
#include <stdexcept>

namespace vamo {
namespace {

struct UnrefAny {
  void operator()(gpointer object) const { g_object_unref(object); }
};
struct Free {
  void operator()(gpointer memory) const { g_free(memory); }
};
struct FreeArray {
  void operator()(GArray* array) const { g_array_free(array, TRUE); }
};
template <typename T>
using Held = std::unique_ptr<T, UnrefAny>;
template <typename T>
using Memory = std::unique_ptr<T, Free>;

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

std::string NumberText(double number) {
  std::ostringstream text;
  text << number;
  return text.str();
}

template <typename Function>
double Number(AtspiAccessible* accessible, Function function) {
  const Held<AtspiValue> value(atspi_accessible_get_value_iface(accessible));
  if (!value) throw std::runtime_error("it has no value");
  return Call(function, value.get());
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
  if (const Held<AtspiText> text{atspi_accessible_get_text_iface(Get())}) {
    return CallForText(atspi_text_get_text, text.get(), 0, -1);
  }
  const bool has_value = Held<AtspiValue>(atspi_accessible_get_value_iface(Get())) != nullptr;
  return has_value ? NumberText(Value()) : Name();
}

std::string Element::SelectedText() const {
  const Held<AtspiText> text{atspi_accessible_get_text_iface(Get())};
  if (!text || Call(atspi_text_get_n_selections, text.get()) == 0) return "";
  const Memory<AtspiRange> range(Call(atspi_text_get_selection, text.get(), 0));
  return CallForText(atspi_text_get_text, text.get(), range->start_offset, range->end_offset);
}

std::string Element::LabelledBy() const {
  const std::unique_ptr<GArray, FreeArray> relations(
      Call(atspi_accessible_get_relation_set, Get()));
  std::string name;
  for (guint i = 0; relations && i < relations->len; ++i) {
    const Held<AtspiRelation> relation(g_array_index(relations.get(), AtspiRelation*, i));
    if (atspi_relation_get_relation_type(relation.get()) != ATSPI_RELATION_LABELLED_BY) continue;
    name = Element(atspi_relation_get_target(relation.get(), 0)).Name();
  }
  return name;
}

double Element::Value() const { return Number(Get(), atspi_value_get_current_value); }
double Element::LeastValue() const { return Number(Get(), atspi_value_get_minimum_value); }
double Element::GreatestValue() const { return Number(Get(), atspi_value_get_maximum_value); }

std::int64_t Element::InSteps(double value) const {
  return std::llround(value / Number(Get(), atspi_value_get_minimum_increment));
}

Place Element::Extents() const {
  const Held<AtspiComponent> component(atspi_accessible_get_component_iface(Get()));
  if (!component) throw std::runtime_error("it has no place on the screen");
  const Memory<AtspiRect> rect(
      Call(atspi_component_get_extents, component.get(), ATSPI_COORD_TYPE_SCREEN));
  return {rect->x, rect->y, rect->width, rect->height};
}

void Element::Do(std::string_view wanted) const {
  const Held<AtspiAction> action(atspi_accessible_get_action_iface(Get()));
  const int count = action ? Call(atspi_action_get_n_actions, action.get()) : 0;
  for (int i = 0; i < count; ++i) {
    if (CallForText(atspi_action_get_action_name, action.get(), i) != wanted) continue;
    if (Call(atspi_action_do_action, action.get(), i)) return;
    throw std::runtime_error("it refuses the action");
  }
  throw std::runtime_error("it has no such action");
}

unsigned Element::Process() const { return Call(atspi_accessible_get_process_id, Get()); }

std::optional<Element> FindApplication(const std::function<bool(const Element&)>& wanted) {
  AtspiAccessible* desktop = atspi_get_desktop(0);
  if (desktop == nullptr) throw std::runtime_error("there is no accessibility bus");
  // The library caches what it reads until its main loop delivers changes, and no test runs that
  // loop.
  atspi_accessible_clear_cache(desktop);
  for (const Element& application : Element(desktop).Children()) {
    try {
      if (wanted(application)) return application;
    } catch (const std::runtime_error&) {
      continue;
    }
  }
  return std::nullopt;
}

}  // namespace vamo
