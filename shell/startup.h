// The process from its entry to the event loop and back.
#ifndef VAMO_SHELL_STARTUP_H_
#define VAMO_SHELL_STARTUP_H_

#include <functional>
#include <memory>
#include <string_view>

#include "toolkit/runtime/display.h"

namespace vamo {

// Told the name of each step before the step runs. An exception that it throws makes the step fail.
using StepObserver = std::function<void(std::string_view step)>;

class Runtime;

// The program on a display, from the start of the run time to its end.
class Process {
 public:
  // Takes the steps up to the event loop and the loop itself, as far as the display runs one.
  explicit Process(std::unique_ptr<Display> display, StepObserver observer = nullptr);
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  // To be called once, when the event loop has ended. The result is the exit status of the process:
  // the argument of Quit, or 1 after an unhandled exception.
  int Finish();

 private:
  const std::unique_ptr<Runtime> runtime_;
};

// Runs the program on a display whose event loop is its own, and gives the exit status.
int Main(std::unique_ptr<Display> display, StepObserver observer = nullptr);

}  // namespace vamo

#endif  // VAMO_SHELL_STARTUP_H_
