// The process from its entry to the event loop and back, step by step.
#include "shell/startup.h"

#include <cstdint>
#include <exception>
#include <memory>
#include <utility>

#include "controlwnd/accessors.h"
#include "shell/file_types.h"
#include "shell/handle_about_menu.h"
#include "shell/menu.h"
#include "shell/rights.h"
#include "shell/version.h"
#include "toolkit/object/delegate.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {

struct StartupFields {
  StepObserver observer;
};

namespace {

void Tell(const StepObserver& observer, std::string_view step) {
  if (observer != nullptr) observer(step);
}

// Tells the observer about a step, then runs it.
template <class StepFunction>
void Step(std::string_view name, StepFunction&& step) {
  Tell(Runtime::Current().ModuleFields<StartupFields>().observer, name);
  step();
}

std::unique_ptr<Runtime> RuntimeInit(std::unique_ptr<Display> display) {
  return std::make_unique<Runtime>(std::move(display));
}

// The class tables are constants, so only the module-level fields need to be initialised.
void RuntimePerformInitializers() {
  Runtime& runtime = Runtime::Current();
  runtime.ModuleFields<FileTypes::Fields>() = {};
  runtime.ModuleFields<MenuFields>() = {};
}

void _InitFileTypes() { FileTypes::_Initialize(); }

// The menu bar is created before the object is registered, and App() works from the registration
// on.
void _NewAppInstance() {
  constexpr std::int64_t kFinalStage = 3;
  const Ref<HandleAboutMenu> app = New<HandleAboutMenu>();
  app->Constructor();
  app->_x_SetVersionData(VAMO_MAJOR_VERSION, VAMO_MINOR_VERSION, VAMO_BUG_VERSION, 0, kFinalStage,
                         kRightsNotice, VAMO_SHORT_VERSION, "Vamo");
  app->SetMenuBar(Menu());
  _RuntimeRegisterAppObject(app);
}

void _ApplicationAddMenuHandlers() {
  const auto bind = [](bool (HandleAboutMenu::*action)()) {
    return MenuHandler(App(), action, ReceiverFlag::kStrong);
  };
  App()->_AddMenuHandler("AboutKEL", bind(&HandleAboutMenu::_AboutKEL_Action));
  App()->_AddMenuHandler("AboutMenuItem", bind(&HandleAboutMenu::_AboutMenuItem_Action));
}

void _EarlyStartup() {
  Step("_SetSupportsHiDPI", [] { Application::_SetSupportsHiDPI(true); });
  Step("_InitFileTypes", _InitFileTypes);
  Step("_NewAppInstance", _NewAppInstance);
  Step("_ApplicationAddMenuHandlers", _ApplicationAddMenuHandlers);
}

// The accessor creates the window, which shows itself because its initial state is visible.
void _MakeDefaultView() { AboutWnd(); }

void _LateStartup() { Step("_MakeDefaultView", _MakeDefaultView); }

// The toolkit is ready as soon as the display exists, so only the program's own start remains.
void _RunFrameworkInitialization(const Delegate<void()>& late_startup) { late_startup.Invoke(); }

void _RuntimeRun() { Runtime::Current().Run(); }

// Treats an exception that leaves the steps as unhandled.
template <class Steps>
void Guarded(Steps&& steps) {
  try {
    steps();
  } catch (...) {
    Step("_UnhandledException", [] { _UnhandledException(std::current_exception()); });
  }
}

void _Main() {
  Guarded([] {
    Step("_RuntimeSetExceptionHelper",
         [] { Runtime::Current().SetExceptionHelper(_CallFunctionWithExceptionHandling); });
    Step("_EarlyStartup", _EarlyStartup);
    Step("_RunFrameworkInitialization",
         [] { _RunFrameworkInitialization(Delegate<void()>(_LateStartup)); });
    Step("_RuntimeRun", _RuntimeRun);
  });
}

void RuntimePerformFinalizers() { Runtime::Current().PerformFinalizers(); }

std::int32_t RuntimeExit() { return Runtime::Current().ExitCode(); }

}  // namespace

Process::Process(std::unique_ptr<Display> display, StepObserver observer)
    : runtime_((Tell(observer, "RuntimeInit"), RuntimeInit(std::move(display)))) {
  runtime_->ModuleFields<StartupFields>().observer = std::move(observer);
  try {
    Step("RuntimePerformInitializers", RuntimePerformInitializers);
    Step("_Main", _Main);
  } catch (...) {
    _UnhandledException(std::current_exception());
  }
}

Process::~Process() = default;

int Process::Finish() {
  try {
    Guarded([] { Runtime::Current().RaiseAgain(); });
  } catch (...) {
    _UnhandledException(std::current_exception());
  }
  // The finalisers destroy the module-level fields, and the observer with them.
  const StepObserver observer = std::move(runtime_->ModuleFields<StartupFields>().observer);
  Tell(observer, "RuntimePerformFinalizers");
  RuntimePerformFinalizers();
  Tell(observer, "RuntimeExit");
  return RuntimeExit();
}

int Main(std::unique_ptr<Display> display, StepObserver observer) {
  return Process(std::move(display), std::move(observer)).Finish();
}

}  // namespace vamo
