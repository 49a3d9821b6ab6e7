// The road of the process: from its entry to the event loop and back, in the order of its steps.
#include "shell/startup.h"

#include <exception>
#include <utility>

#include "controlwnd/accessors.h"
#include "shell/file_types.h"
#include "shell/handle_about_menu.h"
#include "shell/rights.h"
#include "toolkit/delegate.h"
#include "toolkit/runtime.h"

namespace vamo {

struct StartupFields {
  StepObserver observer;
};

namespace {

// Announces a step and takes it.
template <class StepFunction>
void Step(std::string_view name, StepFunction&& step) {
  const StepObserver& observer = Runtime::Current().ModuleFields<StartupFields>().observer;
  if (observer != nullptr) observer(name);
  step();
}

// The menu bar is there before the object is registered, and App works from the registration on.
void _NewAppInstance() {
  const Ref<HandleAboutMenu> app = New<HandleAboutMenu>();
  app->_x_SetVersionData({.major = 3,
                          .minor = 0,
                          .bug = 0,
                          .non_release = 0,
                          .stage_code = 3,
                          .long_version = std::string(kRightsNotice),
                          .short_version = "3.0",
                          .package_info = "Vamo"});
  app->SetMenuBar(Menu());
  Runtime::Current().RegisterApp(app);
}

void _ApplicationAddMenuHandlers() {
  const auto bind = [](bool (HandleAboutMenu::*action)()) {
    return MenuHandler(App(), action, ReceiverFlag::kStrong);
  };
  App()->_AddMenuHandler("AboutKEL", bind(&HandleAboutMenu::_AboutKEL_Action));
  App()->_AddMenuHandler("AboutMenuItem", bind(&HandleAboutMenu::_AboutMenuItem_Action));
}

void _EarlyStartup() {
  Step("_InitFileTypes", FileTypes::_Initialize);
  Step("_NewAppInstance", _NewAppInstance);
  Step("_ApplicationAddMenuHandlers", _ApplicationAddMenuHandlers);
}

// Naming the window makes it, and its own state brings it on the screen.
void _MakeDefaultView() { AboutWnd(); }

void _LateStartup() { Step("_MakeDefaultView", _MakeDefaultView); }

// The toolkit's own start is over once the display is there, so all that is left is the program's
// part.
void _RunFrameworkInitialization(const Delegate<void()>& late_startup) { late_startup.Invoke(); }

void _RuntimeRun() { Runtime::Current().Run(); }

void _Main() {
  try {
    Step("_RuntimeSetExceptionHelper",
         [] { Runtime::Current().SetExceptionHelper(_CallFunctionWithExceptionHandling); });
    Step("_EarlyStartup", _EarlyStartup);
    Step("_RunFrameworkInitialization",
         [] { _RunFrameworkInitialization(Delegate<void()>(_LateStartup)); });
    Step("_RuntimeRun", _RuntimeRun);
  } catch (...) {
    Step("_UnhandledException", [] { _UnhandledException(std::current_exception()); });
  }
}

}  // namespace

int Main(std::unique_ptr<Display> display, StepObserver observer) {
  Runtime runtime(std::move(display));
  runtime.ModuleFields<StartupFields>().observer = observer;
  try {
    Step("_Main", _Main);
  } catch (...) {
    _UnhandledException(std::current_exception());
  }
  if (observer != nullptr) observer("RuntimePerformFinalizers");
  runtime.PerformFinalizers();
  if (observer != nullptr) observer("RuntimeExit");
  return runtime.ExitCode();
}

}  // namespace vamo
