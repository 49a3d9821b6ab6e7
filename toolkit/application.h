// The base of the application object.
#ifndef VAMO_TOOLKIT_APPLICATION_H_
#define VAMO_TOOLKIT_APPLICATION_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "toolkit/menu_item.h"
#include "toolkit/object.h"

namespace vamo {

// What the program is as a whole: its version data, its menu bar, its menu handlers. One object of
// a derived class is registered for the life of the process. It holds no windows; the run time
// does.
class Application : public Object {
 public:
  // The version data, in the order in which start-up hands them over.
  struct VersionData {
    std::int64_t major = 0;
    std::int64_t minor = 0;
    std::int64_t bug = 0;
    std::int64_t non_release = 0;
    std::int64_t stage_code = 0;
    std::string long_version;
    std::string short_version;
    std::string package_info;
  };

  // Enters the function for the menu item of that name. The first one entered for a name stands.
  void _AddMenuHandler(std::string_view name, MenuHandler handler);
  const MenuHandlers& GetMenuHandlers() const { return menu_handlers_; }
  // Called at the end of the process: a handler may hold this very object as its receiver.
  void ReleaseMenuHandlers() { menu_handlers_.clear(); }

  void _x_SetVersionData(VersionData version) { version_ = std::move(version); }
  std::int64_t MajorVersion() const { return version_.major; }
  std::int64_t MinorVersion() const { return version_.minor; }
  std::int64_t BugVersion() const { return version_.bug; }
  std::int64_t NonReleaseVersion() const { return version_.non_release; }
  std::int64_t StageCode() const { return version_.stage_code; }
  const std::string& LongVersion() const { return version_.long_version; }
  const std::string& ShortVersion() const { return version_.short_version; }
  const std::string& Version() const { return version_.short_version; }
  const std::string& PackageInfo() const { return version_.package_info; }
  const std::string& Description() const { return version_.package_info; }

  // The menu tree that is used where no window gives one.
  const Ref<class MenuBar>& MenuBar() const { return menu_bar_; }
  void SetMenuBar(Ref<class MenuBar> menu_bar);

  // The thread that the caller is on; nothing on the main thread.
  std::optional<std::thread::id> CurrentThread() const;

  virtual void Event_EnableMenuItems() {}
  // Whether the program has taken an exception that left an event.
  virtual bool Event_UnhandledException(const RuntimeException& /*exception*/) { return false; }

 private:
  VersionData version_;
  Ref<class MenuBar> menu_bar_;
  MenuHandlers menu_handlers_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_APPLICATION_H_
