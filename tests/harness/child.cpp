#include "child.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace vamo {

Child::Child(CommandLine command) {
  std::vector<char*> arguments;
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  if (posix_spawnp(&id_, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) {
    throw std::runtime_error("cannot start " + command.front());
  }
}

Child::~Child() {
  if (!Running()) return;
  kill(id_, SIGKILL);
  waitpid(id_, nullptr, 0);
}

std::optional<int> Child::ExitStatus() {
  int status = 0;
  if (!status_.has_value() && waitpid(id_, &status, WNOHANG) == id_) {
    status_ = WIFEXITED(status) ? WEXITSTATUS(status) : 256 + WTERMSIG(status);
  }
  return status_;
}

// Uses files instead of pipes: a program that goes to the background, such as xclip, would keep the
// end of a pipe open and its reader waiting.
std::string Output(const CommandLine& command, std::string_view input) {
  const TemporaryFolder folder;
  std::ofstream(folder.Path() + "/in") << input;
  CommandLine redirected{"sh", "-c", R"(exec "$@" <"$0/in" >"$0/out" 2>"$0/err")", folder.Path()};
  redirected.insert(redirected.end(), command.begin(), command.end());
  Child child(redirected);
  Await([&] { return !child.Running(); }, std::chrono::minutes(2));
  const auto printed = [&](const char* name) {
    std::ifstream file(folder.Path() + name);
    return std::string(std::istreambuf_iterator<char>(file), {});
  };
  if (child.ExitStatus() == 0) return printed("/out");
  throw std::runtime_error(command.front() + " has failed: " + printed("/err"));
}

TemporaryFolder::TemporaryFolder() : path_(std::filesystem::temp_directory_path() / "vamo-XXXXXX") {
  if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no folder for " + path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

bool Await(const std::function<bool()>& so, std::chrono::milliseconds patience) {
  const auto end = std::chrono::steady_clock::now() + patience;
  while (!so()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  return true;
}

}  // namespace vamo
