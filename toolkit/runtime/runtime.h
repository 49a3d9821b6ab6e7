// The run time: the one object that holds the toolkit's process-wide state, and the operations on
// it.
#ifndef VAMO_TOOLKIT_RUNTIME_RUNTIME_H_
#define VAMO_TOOLKIT_RUNTIME_RUNTIME_H_

#include <any>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string_view>
#include <thread>
#include <typeindex>
#include <unordered_map>
#include <utility>
#include <vector>

#include "toolkit/object/delegate.h"
#include "toolkit/object/object.h"
#include "toolkit/object/ui_trap.h"
#include "toolkit/runtime/application.h"
#include "toolkit/runtime/display.h"

namespace vamo {

class FileType;
// The run time holds the windows and calls nothing of them.
class Window;

// Calls a function and returns the RuntimeException that it raised, or null. Any other exception
// passes on to the caller.
using ExceptionHelper = std::function<std::exception_ptr(const std::function<void()>&)>;

// The helper that the run time has from the start; start-up sets it again.
std::exception_ptr _CallFunctionWithExceptionHandling(const std::function<void()>& function);

// All process-wide state of the toolkit: the display, the application object, the live windows, the
// module-level fields, the exit code. It has one owner. While it lives, `Current` returns it, or
// the innermost of nested ones. It does not know what the program does.
class Runtime {
 public:
  explicit Runtime(std::unique_ptr<vamo::Display> display);
  ~Runtime();
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;

  // Raises NilObjectException if there is no run time.
  static Runtime& Current();
  static bool Exists() { return current_ != nullptr; }

  vamo::Display& Display() { return *display_; }

  // Whether pictures are drawn in physical pixels where these are smaller than logical ones.
  bool SupportsHiDPI() const { return supports_hidpi_; }
  void SetSupportsHiDPI(bool supports) { supports_hidpi_ = supports; }

  std::thread::id MainThread() const { return main_thread_; }

  const Ref<Application>& App() const { return app_; }
  void RegisterApp(Ref<Application> app) { app_ = std::move(app); }

  // The windows that are constructed and not closed, in the order of their construction.
  const std::vector<Ref<Window>>& LiveWindows() const { return live_windows_; }
  void AddLiveWindow(Ref<Window> window);
  void RemoveLiveWindow(const Window& window);

  // The window that has the keyboard focus, or nil.
  const Ref<Window>& ActiveWindow() const { return active_window_; }
  void SetActiveWindow(Ref<Window> window) { active_window_ = std::move(window); }

  // The module-level fields that the struct `Fields` declares, default-constructed at their first
  // use and destroyed by the finalisers. They are identified by the type, so the struct's name must
  // be unique in the program, and the struct must not be local to a file.
  template <class Fields>
  Fields& ModuleFields() {
    std::any& fields = module_fields_[typeid(Fields)];
    if (!fields.has_value()) fields.emplace<Fields>();
    return *std::any_cast<Fields>(&fields);
  }
  // Releases the windows, the module-level fields, the file types and the application object, in
  // this order.
  void PerformFinalizers();

  // The program's file types, in the order of their registration.
  const std::vector<Ref<FileType>>& RegisteredFileTypes() const { return file_types_; }
  void RegisterFileType(Ref<FileType> type);
  void DeregisterFileType(const FileType& type);

  void SetExceptionHelper(ExceptionHelper helper) { exception_helper_ = std::move(helper); }

  // What caused an event.
  enum class Cause { kUser, kTimer };

  // Runs one event. A RuntimeException that leaves the event stops here: EndException and
  // ThreadEndException silently; any other goes to the application's UnhandledException event, and
  // from there to the default action unless it is handled. An exception of another class ends the
  // event loop and is kept for RaiseAgain.
  void Dispatch(const std::function<void()>& event, Cause cause = Cause::kUser);
  // Calls the function at the end of the current outermost event, even if an exception ends it; at
  // once if there is no event. The function must not throw.
  void AtEndOfEvent(std::function<void()> function);
  // The cause of the current event; the user if there is none.
  Cause EventCause() const { return event_cause_; }
  // Whether the current event may give a window the keyboard focus. A timer may not take the focus
  // from another program, because the user may be typing into it.
  bool MayActivate() const { return event_cause_ == Cause::kUser || had_active_window_; }

  // Runs the display's event loop until End; returns at once if End has been called already.
  void Run();
  // Raises again the exception that ended the event loop, if one did. Call this after the loop.
  void RaiseAgain();

  // Ends the event loop. The exit code of the first call counts.
  void End(std::int32_t exit_code);
  // The exit status of the process, once it ends.
  std::int32_t ExitCode() const { return exit_code_; }

 private:
  void HandleException(const std::exception_ptr& exception);

  static Runtime* current_;

  Runtime* const outer_ = std::exchange(current_, this);
  const std::unique_ptr<vamo::Display> display_;
  const std::thread::id main_thread_ = std::this_thread::get_id();
  std::unordered_map<std::type_index, std::any> module_fields_;
  Ref<Application> app_;
  std::vector<Ref<Window>> live_windows_;
  Ref<Window> active_window_;
  std::vector<Ref<FileType>> file_types_;
  ExceptionHelper exception_helper_;
  std::exception_ptr raised_again_;
  Cause event_cause_ = Cause::kUser;
  // Whether a window of this program was active when the event began.
  bool had_active_window_ = false;
  int events_running_ = 0;
  std::vector<std::function<void()>> at_end_of_event_;
  bool supports_hidpi_ = false;
  bool ending_ = false;
  std::int32_t exit_code_ = 0;
};

// Register the one application object for the rest of the process, and return it; nil before its
// registration.
void _RuntimeRegisterAppObject(Ref<Application> app);
Ref<Application> _GetAppObject();

// Sounds the system alert; has no other effect.
void Beep();

// Ends the event loop and so the program. `exit_code` becomes the exit status of the process.
void Quit(std::int32_t exit_code);

// The default action for an exception that nothing has handled: prints its class and message in one
// line on standard error and ends the event loop with exit code 1.
void _UnhandledException(const std::exception_ptr& exception);

// Whether the named class, the object's own or one of its bases, implements the event. With `user`,
// an implementation in a base of the named class does not count.
bool _RuntimeIsEventHandled(const Object& object, std::string_view class_name,
                            std::string_view event, bool user);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_RUNTIME_RUNTIME_H_
