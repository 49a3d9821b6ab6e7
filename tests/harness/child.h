// Child processes, and what the harness needs around them.
#ifndef VAMO_TESTS_HARNESS_CHILD_H_
#define VAMO_TESTS_HARNESS_CHILD_H_

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vamo {

using Environment = std::map<std::string, std::string>;

// A child process. The destructor kills it.
class Child {
 public:
  // `settings` are added to the environment of this process.
  Child(const std::vector<std::string>& command, const Environment& settings);
  ~Child();
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  pid_t id() const { return id_; }
  bool Running();
  // The exit status, or 256 plus the signal that ended the process; nothing while it runs.
  std::optional<int> ExitStatus();

 private:
  pid_t id_;
  std::optional<int> status_;
};

// The result of a program that has ended.
struct Ended {
  // As from Child::ExitStatus.
  int status = -1;
  std::string out;
  std::string err;
};
// Runs a program with `input` as its standard input; kills it if it takes more than a minute.
Ended RunToEnd(const std::vector<std::string>& command, std::string_view input = {},
               const Environment& settings = {});
// Runs a program and returns its standard output. Throws if it fails.
std::string Output(const std::vector<std::string>& command, std::string_view input = {},
                   const Environment& settings = {});

// A temporary folder. The destructor deletes it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// Asks until `so` returns true. Returns false if it does not within `patience`.
bool Await(const std::function<bool()>& so,
           std::chrono::milliseconds patience = std::chrono::seconds(15));

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_CHILD_H_
