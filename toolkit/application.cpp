// The base of the application object.
#include "toolkit/application.h"

#include <utility>

#include "toolkit/runtime.h"

namespace vamo {

void Application::_AddMenuHandler(std::string_view name, MenuHandler handler) {
  _UITrap();
  menu_handlers_.emplace(name, std::move(handler));
}

void Application::SetMenuBar(Ref<class MenuBar> menu_bar) {
  _UITrap();
  menu_bar_ = std::move(menu_bar);
}

std::optional<std::thread::id> Application::CurrentThread() const {
  const std::thread::id caller = std::this_thread::get_id();
  if (caller == Runtime::Current().MainThread()) return std::nullopt;
  return caller;
}

}  // namespace vamo
