#ifndef VAMO_TOOLKIT_RUNTIME_APPLICATION_H_
#define VAMO_TOOLKIT_RUNTIME_APPLICATION_H_

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "toolkit/object/class_info.h"
#include "toolkit/object/delegate.h"
#include "toolkit/object/object.h"

namespace vamo {

// The tree of menus. The application keeps it but calls nothing of it.
class MenuBar;

// Called when a menu item is chosen. True: the item is handled; False: it is passed on.
using MenuHandler = Delegate<bool()>;
// The menu handlers of a window or of the application, by the names of the items.
using MenuHandlers = std::map<std::string, MenuHandler, std::less<>>;

// The program as a whole: its version data, its menu bar, its menu handlers. One object of a
// derived class is registered for the life of the process. It holds no windows; the run time does.
class Application : public Object {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // The first call of start-up, before there is an application object.
  static void _SetSupportsHiDPI(bool supports);

  // Adds the handler of the menu item of that name. The first handler added for a name stays.
  virtual void _AddMenuHandler(std::string_view name, MenuHandler handler);
  const vamo::MenuHandlers& MenuHandlers() const { return menu_handlers_; }
  // Called at the end of the process, because a handler may hold this object as its receiver.
  void ReleaseMenuHandlers() { menu_handlers_.clear(); }

  // Sets the version data. `stage_code` 3 is a final version; the region code is never set.
  virtual void _x_SetVersionData(std::int64_t major, std::int64_t minor, std::int64_t bug,
                                 std::int64_t non_release, std::int64_t stage_code,
                                 std::string_view long_version, std::string_view short_version,
                                 std::string_view package_info);
  std::int64_t MajorVersion() const { return _x_mMajorVersion; }
  std::int64_t MinorVersion() const { return _x_mMinorVersion; }
  std::int64_t BugVersion() const { return _x_mBugVersion; }
  std::int64_t NonReleaseVersion() const { return _x_mNonReleaseVersion; }
  std::int64_t StageCode() const { return _x_mStageCode; }
  std::int64_t RegionCode() const { return _x_mRegionCode; }
  const std::string& LongVersion() const { return _x_mLongVersion; }
  const std::string& ShortVersion() const { return _x_mShortVersion; }
  const std::string& Version() const { return _x_mShortVersion; }
  const std::string& PackageInfo() const { return _x_mPackageInfo; }
  const std::string& Description() const { return _x_mPackageInfo; }

  // The menu bar that applies if no window is active or the active one has none.
  const Ref<class MenuBar>& MenuBar() const { return menu_bar_; }
  void SetMenuBar(Ref<class MenuBar> menu_bar);

  // The caller's thread; nothing if it is the main thread.
  std::optional<std::thread::id> CurrentThread() const;

  virtual void Event_EnableMenuItems() {}
  // Called for an exception that left an event. True: the program has handled it.
  virtual bool Event_UnhandledException(const RuntimeException& /*exception*/) { return false; }

 private:
  std::int64_t _x_mMajorVersion = 0;
  std::int64_t _x_mMinorVersion = 0;
  std::int64_t _x_mBugVersion = 0;
  std::int64_t _x_mNonReleaseVersion = 0;
  std::int64_t _x_mStageCode = 0;
  std::int64_t _x_mRegionCode = 0;
  std::string _x_mLongVersion;
  std::string _x_mShortVersion;
  std::string _x_mPackageInfo;
  Ref<class MenuBar> menu_bar_;
  vamo::MenuHandlers menu_handlers_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_RUNTIME_APPLICATION_H_
