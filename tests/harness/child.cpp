#include "child.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <thread>

namespace vamo {
namespace {

struct Close {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Close>;

std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<std::string> WithSettings(const Environment& settings) {
  std::vector<std::string> variables;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    const std::string_view text = *variable;
    if (settings.count(std::string(text.substr(0, text.find('=')))) == 0) {
      variables.emplace_back(text);
    }
  }
  for (const auto& [name, value] : settings) variables.push_back(name + '=' + value);
  return variables;
}

pid_t Start(const std::vector<std::string>& command, const Environment& settings,
            const posix_spawn_file_actions_t* files) {
  const std::vector<std::string> variables = WithSettings(settings);
  pid_t id = 0;
  const int error = posix_spawnp(&id, command.front().c_str(), files, nullptr,
                                 Pointers(command).data(), Pointers(variables).data());
  if (error != 0) throw std::runtime_error("cannot start " + command.front());
  return id;
}

int Decode(int status) { return WIFEXITED(status) ? WEXITSTATUS(status) : 256 + WTERMSIG(status); }

std::string Contents(std::FILE* file) {
  std::string text;
  char part[4096];
  std::rewind(file);
  while (const std::size_t size = std::fread(part, 1, sizeof part, file)) text.append(part, size);
  return text;
}

}  // namespace

Child::Child(const std::vector<std::string>& command, const Environment& settings)
    : id_(Start(command, settings, nullptr)) {}

Child::~Child() {
  if (!Running()) return;
  kill(id_, SIGKILL);
  waitpid(id_, nullptr, 0);
}

bool Child::Running() { return !ExitStatus().has_value(); }

std::optional<int> Child::ExitStatus() {
  int status = 0;
  if (!status_.has_value() && waitpid(id_, &status, WNOHANG) == id_) status_ = Decode(status);
  return status_;
}

// Uses files instead of pipes: a program that goes to the background, such as xclip, would keep the
// end of a pipe open and its reader waiting.
Ended RunToEnd(const std::vector<std::string>& command, std::string_view input,
               const Environment& settings) {
  const File in(std::tmpfile());
  const File out(std::tmpfile());
  const File err(std::tmpfile());
  if (!in || !out || !err) throw std::runtime_error("no room for temporary files");
  std::fwrite(input.data(), 1, input.size(), in.get());
  std::rewind(in.get());
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_adddup2(&files, fileno(in.get()), STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&files, fileno(out.get()), STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&files, fileno(err.get()), STDERR_FILENO);
  const pid_t id = Start(command, settings, &files);
  posix_spawn_file_actions_destroy(&files);
  int status = 0;
  if (!Await([&] { return waitpid(id, &status, WNOHANG) == id; }, std::chrono::minutes(1))) {
    kill(id, SIGKILL);
    waitpid(id, &status, 0);
  }
  return {Decode(status), Contents(out.get()), Contents(err.get())};
}

std::string Output(const std::vector<std::string>& command, std::string_view input,
                   const Environment& settings) {
  Ended ended = RunToEnd(command, input, settings);
  if (ended.status == 0) return std::move(ended.out);
  throw std::runtime_error(command.front() + " has failed: " + ended.err);
}

TemporaryFolder::TemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "vamo-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for " + name);
  path_ = name;
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
