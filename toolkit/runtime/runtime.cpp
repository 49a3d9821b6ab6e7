#include "toolkit/runtime/runtime.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

#include "toolkit/object/class_info.h"
#include "toolkit/runtime/file_type.h"

namespace vamo {

std::exception_ptr _CallFunctionWithExceptionHandling(const std::function<void()>& function) {
  try {
    function();
  } catch (const RuntimeException&) {
    return std::current_exception();
  }
  return nullptr;
}

Runtime* Runtime::current_ = nullptr;

Runtime::Runtime(std::unique_ptr<vamo::Display> display)
    : display_(std::move(display)), exception_helper_(_CallFunctionWithExceptionHandling) {}

Runtime::~Runtime() {
  PerformFinalizers();
  current_ = outer_;
}

void Runtime::PerformFinalizers() {
  active_window_ = nullptr;
  live_windows_.clear();
  module_fields_.clear();
  file_types_.clear();
  if (app_) app_->ReleaseMenuHandlers();
  app_ = nullptr;
}

Runtime& Runtime::Current() {
  if (current_ == nullptr) throw NilObjectException("The run time has not been started.");
  return *current_;
}

void Runtime::AddLiveWindow(Ref<Window> window) { live_windows_.push_back(std::move(window)); }

void Runtime::RemoveLiveWindow(const Window& window) {
  std::erase_if(live_windows_, [&](const Ref<Window>& live) { return &*live == &window; });
}

void Runtime::RegisterFileType(Ref<FileType> type) { file_types_.push_back(std::move(type)); }

void Runtime::DeregisterFileType(const FileType& type) {
  std::erase_if(file_types_, [&](const Ref<FileType>& known) { return &*known == &type; });
}

void Runtime::Dispatch(const std::function<void()>& event, Cause cause) {
  _UITrap();
  const Cause outer = std::exchange(event_cause_, cause);
  const bool outer_had = std::exchange(had_active_window_, static_cast<bool>(active_window_));
  ++events_running_;
  try {
    if (const std::exception_ptr exception = exception_helper_(event)) HandleException(exception);
  } catch (...) {
    // A display's event loop may not let an exception through, so it is kept until after the loop.
    // There is room for one: that of a nested event is reported now.
    if (raised_again_ != nullptr) _UnhandledException(raised_again_);
    raised_again_ = std::current_exception();
    End(1);
  }
  event_cause_ = outer;
  had_active_window_ = outer_had;
  if (--events_running_ > 0) return;
  for (const auto& function : std::exchange(at_end_of_event_, {})) function();
}

void Runtime::AtEndOfEvent(std::function<void()> function) {
  if (events_running_ == 0) return function();
  at_end_of_event_.push_back(std::move(function));
}

void Runtime::HandleException(const std::exception_ptr& exception) {
  try {
    std::rethrow_exception(exception);
  } catch (const EndException&) {
  } catch (const ThreadEndException&) {
  } catch (const RuntimeException& runtime_exception) {
    if (app_ && app_->Event_UnhandledException(runtime_exception)) return;
    _UnhandledException(exception);
  }
}

void Runtime::Run() {
  if (!ending_) display_->Run();
}

void Runtime::RaiseAgain() {
  if (raised_again_ != nullptr) std::rethrow_exception(std::exchange(raised_again_, nullptr));
}

void Runtime::End(std::int32_t exit_code) {
  if (ending_) return;
  ending_ = true;
  exit_code_ = exit_code;
  display_->Stop();
}

void _UITrap() {
  if (!Runtime::Exists()) return;
  const Ref<Application>& app = Runtime::Current().App();
  if (app && app->CurrentThread().has_value()) {
    throw ThreadAccessingUIException(
        "A thread has attempted to manipulate a user interface element. This can only be done from "
        "the application's main thread.");
  }
}

void _RuntimeRegisterAppObject(Ref<Application> app) {
  Runtime::Current().RegisterApp(std::move(app));
}

Ref<Application> _GetAppObject() { return Runtime::Current().App(); }

void Beep() { Runtime::Current().Display().Beep(); }

void Quit(std::int32_t exit_code) { Runtime::Current().End(exit_code); }

void _UnhandledException(const std::exception_ptr& exception) {
  std::string what = "an object of an unknown class was raised";
  try {
    std::rethrow_exception(exception);
  } catch (const RuntimeException& raised) {
    what = std::string(raised.ClassName()) + ": " + raised.Message();
  } catch (const std::exception& raised) {
    what = raised.what();
  } catch (...) {
  }
  std::fprintf(stderr, "vamo: %s\n", what.c_str());
  Quit(1);
}

bool _RuntimeIsEventHandled(const Object& object, std::string_view class_name,
                            std::string_view event, bool user) {
  const ClassInfo* info = object.Class();
  while (info != nullptr && info->name != class_name) info = info->base;
  for (; info != nullptr; info = user ? nullptr : info->base) {
    if (std::find(info->events.begin(), info->events.end(), event) != info->events.end())
      return true;
  }
  return false;
}

}  // namespace vamo
