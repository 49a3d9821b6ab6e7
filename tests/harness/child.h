// Child processes, and what the harness needs around them.
#ifndef VAMO_TESTS_HARNESS_CHILD_H_
#define VAMO_TESTS_HARNESS_CHILD_H_

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vamo {

// A program and its arguments. {"env", "NAME=value", "program"} adds to its environment.
using CommandLine = std::vector<std::string>;

// A child process. The destructor kills it.
class Child {
 public:
  explicit Child(CommandLine command);
  ~Child();
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  pid_t id() const { return id_; }
  bool Running() { return !ExitStatus().has_value(); }
  // The exit status, or 256 plus the signal that ended the process; nothing while it runs.
  std::optional<int> ExitStatus();

 private:
  pid_t id_ = 0;
  std::optional<int> status_;
};

// Runs a program with `input` as its standard input and returns its standard output. Throws if the
// program fails or takes more than two minutes.
std::string Output(const CommandLine& command, std::string_view input = {});

// A temporary folder. The destructor deletes it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

// Asks until `so` returns true. Returns false if it does not within `patience`.
bool Await(const std::function<bool()>& so,
           std::chrono::milliseconds patience = std::chrono::seconds(15));

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_CHILD_H_
