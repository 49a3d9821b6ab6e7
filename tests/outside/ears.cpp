// The ears of a user who works with a screen reader.
#include "ears.h"

#include <stdexcept>
#include <utility>

#include "at_spi.h"

namespace vamo {
namespace {

constexpr char kComingUp[] = "object:state-changed:showing";

}  // namespace

Ears::Ears() : listener_(atspi_event_listener_new(Take, this, nullptr)) {
  if (!atspi_event_listener_register(listener_, kComingUp, nullptr)) {
    throw std::runtime_error("the accessibility bus passes no news on");
  }
  // What is left over from programs before.
  Listen();
  notices_.clear();
}

Ears::~Ears() {
  atspi_event_listener_deregister(listener_, kComingUp, nullptr);
  g_object_unref(listener_);
}

std::vector<std::string> Ears::Notices() {
  Listen();
  return std::exchange(notices_, {});
}

void Ears::Listen() {
  while (g_main_context_iteration(nullptr, FALSE) != FALSE) continue;
}

void Ears::Take(AtspiEvent* event, void* ears) {
  static_cast<Ears*>(ears)->Note(*event);
  g_boxed_free(ATSPI_TYPE_EVENT, event);
}

void Ears::Note(const AtspiEvent& event) {
  const Element source(ATSPI_ACCESSIBLE(g_object_ref(event.source)));
  try {
    if (event.detail1 != 0 && source.RoleName() == "notification") {
      notices_.push_back(source.Name());
    }
  } catch (const std::runtime_error&) {
    return;  // It has gone already.
  }
}

}  // namespace vamo
