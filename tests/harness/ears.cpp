#include "ears.h"

#include <array>
#include <stdexcept>
#include <utility>

#include "at_spi.h"

namespace vamo {
namespace {

constexpr std::array kNews{"object:state-changed:showing", "object:announcement",
                           "object:text-changed"};

}  // namespace

Ears::Ears()
    : listener_(atspi_event_listener_new(
          [](AtspiEvent* event, void* ears) {
            static_cast<Ears*>(ears)->Note(*event);
            g_boxed_free(ATSPI_TYPE_EVENT, event);
          },
          this, nullptr)) {
  for (const char* news : kNews) {
    if (!atspi_event_listener_register(listener_, news, nullptr)) {
      throw std::runtime_error("the accessibility bus delivers no events");
    }
  }
  // Drops events of earlier programs.
  Notices();
  Edits("");
}

Ears::~Ears() {
  for (const char* news : kNews) atspi_event_listener_deregister(listener_, news, nullptr);
  g_object_unref(listener_);
}

std::vector<std::string> Ears::Notices() {
  Listen();
  return std::exchange(notices_, {});
}

std::vector<std::string> Ears::Edits(std::string_view text) {
  Listen();
  std::vector<std::string> edits;
  for (const auto& [name, edit] : std::exchange(edits_, {})) {
    if (name == text) edits.push_back(edit);
  }
  return edits;
}

void Ears::Listen() {
  while (g_main_context_iteration(nullptr, FALSE) != FALSE) continue;
}

void Ears::Note(const AtspiEvent& event) {
  const Element source(ATSPI_ACCESSIBLE(g_object_ref(event.source)));
  const std::string_view type = event.type;
  try {
    if (type.rfind("object:text-changed", 0) == 0) {
      const std::string sign = type.find("delete") == std::string_view::npos ? "+" : "-";
      edits_.emplace_back(source.Name(), sign + g_value_get_string(&event.any_data));
    } else if (type.rfind("object:announcement", 0) == 0) {
      notices_.emplace_back(g_value_get_string(&event.any_data));
    } else if (event.detail1 != 0 && source.RoleName() == "notification") {
      notices_.push_back(source.Name());
    }
  } catch (const std::runtime_error&) {
    return;  // The element no longer exists.
  }
}

}  // namespace vamo
