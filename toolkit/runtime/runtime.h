// The run time: the one object that holds all process-wide state, and the operations that reach it.
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
// The run time keeps the windows and takes them off the display at the end; it asks nothing else of
// them.
class Window;

// Calls a function and gives back the RuntimeException that it raised, or null; anything else that
// it raises propagates to the caller.
using ExceptionHelper = std::function<std::exception_ptr(const std::function<void()>&)>;

// The helper that the run time has from the start, and that start-up hands to it.
std::exception_ptr _CallFunctionWithExceptionHandling(const std::function<void()>& function);

// All process-wide state: the display, the application object, the live windows, the module-level
// fields, the exit code. One object with one owner; while it lives, `Current` finds it, or the
// innermost of nested ones. It knows nothing of what the program does.
class Runtime {
 public:
  explicit Runtime(std::unique_ptr<vamo::Display> display);
  ~Runtime();
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;

  // Raises NilObjectException where no run time lives.
  static Runtime& Current();
  static bool Exists() { return current_ != nullptr; }

  vamo::Display& Display() { return *display_; }

  // Whether pictures are drawn in the screen's own pixels, where these are finer than logical ones.
  bool SupportsHiDPI() const { return supports_hidpi_; }
  void SetSupportsHiDPI(bool supports) { supports_hidpi_ = supports; }

  std::thread::id MainThread() const { return main_thread_; }

  const Ref<Application>& App() const { return app_; }
  void RegisterApp(Ref<Application> app) { app_ = std::move(app); }

  // The windows that have been constructed and not closed, in the order of their construction.
  const std::vector<Ref<Window>>& LiveWindows() const { return live_windows_; }
  void AddLiveWindow(Ref<Window> window);
  void RemoveLiveWindow(const Window& window);

  // The window that has the user's keys, or nil.
  const Ref<Window>& ActiveWindow() const { return active_window_; }
  void SetActiveWindow(Ref<Window> window) { active_window_ = std::move(window); }

  // The module-level fields that the struct `Fields` declares, default-constructed at their first
  // use and gone with the run time. They are told apart by the struct's name, which must be the
  // only one of its kind in the program, and so not local to a file.
  template <class Fields>
  Fields& ModuleFields() {
    std::any& fields = module_fields_[typeid(Fields)];
    if (!fields.has_value()) fields.emplace<Fields>();
    return *std::any_cast<Fields>(&fields);
  }
  // Takes the windows off the display and lets go of them, of the module-level fields and of the
  // application object, in this order.
  void PerformFinalizers();

  // The file types of the program, in the order of their registration.
  const std::vector<Ref<FileType>>& RegisteredFileTypes() const { return file_types_; }
  void RegisterFileType(Ref<FileType> type);
  void DeregisterFileType(const FileType& type);

  void SetExceptionHelper(ExceptionHelper helper) { exception_helper_ = std::move(helper); }

  // Who has caused an event.
  enum class Cause { kUser, kTimer };

  // Runs one event. A RuntimeException that leaves it ends here: EndException and
  // ThreadEndException silently, any other in the application's UnhandledException event or else in
  // the default action. What is no RuntimeException ends the event loop and is kept for RaiseAgain.
  void Dispatch(const std::function<void()>& event, Cause cause = Cause::kUser);
  // The cause of the event that runs; the user where none does.
  Cause EventCause() const { return event_cause_; }
  // Whether the event that runs may give a window the keyboard focus. One that a timer has caused
  // may not take the focus from another program, which the user is typing into.
  bool MayActivate() const { return event_cause_ == Cause::kUser || had_active_window_; }

  // Takes the user's events until End, as the display has it; returns at once where End has been
  // called already.
  void Run();
  // Raises again what has ended the event loop, if an exception has. To be called after the loop.
  void RaiseAgain();

  // Ends the event loop. The first exit code stands.
  void End(std::int32_t exit_code);
  // The process-wide word that becomes the exit status.
  std::int32_t ExitCode() const { return exit_code_; }

 private:
  void TakeException(const std::exception_ptr& exception);

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
  // Whether a window of this program was the active one when the event began.
  bool had_active_window_ = false;
  bool supports_hidpi_ = false;
  bool ending_ = false;
  std::int32_t exit_code_ = 0;
};

// Destroys a window's view. It is defined where windows are.
void TakeOffDisplay(Window& window);

// The one application object: registers it for the rest of the process, and returns it; nil before.
void _RuntimeRegisterAppObject(Ref<Application> app);
Ref<Application> _GetAppObject();

// Sounds the system alert; no other effect.
void Beep();

// Ends the event loop and with it the program. `exit_code` becomes the exit status of the process.
void Quit(std::int32_t exit_code);

// The default action for an exception that nothing has taken: says its class and message in one
// line on standard error and ends the event loop with exit code 1.
void _UnhandledException(const std::exception_ptr& exception);

// Whether the class of that name, which is the object's or one of its bases, implements the event.
// `user` asks for the class itself; else an event that a base of it implements counts too.
bool _RuntimeIsEventHandled(const Object& object, std::string_view class_name,
                            std::string_view event, bool user);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_RUNTIME_RUNTIME_H_
