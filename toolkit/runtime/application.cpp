#include "toolkit/runtime/application.h"

#include <utility>

#include "toolkit/runtime/runtime.h"

namespace vamo {

constinit const ClassInfo Application::kClass{"Application"};

void Application::_SetSupportsHiDPI(bool supports) {
  Runtime::Current().SetSupportsHiDPI(supports);
}

void Application::_x_SetVersionData(std::int64_t major, std::int64_t minor, std::int64_t bug,
                                    std::int64_t non_release, std::int64_t stage_code,
                                    std::string_view long_version, std::string_view short_version,
                                    std::string_view package_info) {
  _x_mMajorVersion = major;
  _x_mMinorVersion = minor;
  _x_mBugVersion = bug;
  _x_mNonReleaseVersion = non_release;
  _x_mStageCode = stage_code;
  _x_mLongVersion = long_version;
  _x_mShortVersion = short_version;
  _x_mPackageInfo = package_info;
}

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
