// Programs that this one starts.
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

// A program that runs beside this one. It is killed when the object goes.
class Child {
 public:
  // `settings` are added to the environment of this program.
  Child(const std::vector<std::string>& command, const Environment& settings);
  ~Child();
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  pid_t id() const { return id_; }
  bool Running();
  // The exit status, or 256 and the signal that has ended it; nothing while it runs.
  std::optional<int> ExitStatus();

 private:
  pid_t id_;
  std::optional<int> status_;
};

// What has come of a program that has run to its end.
struct Ended {
  // As Child::ExitStatus gives it.
  int status = -1;
  std::string out;
  std::string err;
};
// Runs a program whose standard input is `input`, and kills it if it takes more than a minute.
Ended RunToEnd(const std::vector<std::string>& command, std::string_view input = {},
               const Environment& settings = {});
// What a program says on its standard output. Throws where it fails.
std::string Output(const std::vector<std::string>& command, std::string_view input = {},
                   const Environment& settings = {});

// A folder for the files of a program, which goes with the object.
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

// Asks again until it is so; false when `patience` is over.
bool Await(const std::function<bool()>& so,
           std::chrono::milliseconds patience = std::chrono::seconds(15));

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_CHILD_H_
