// Operates Firefox through its own protocol, Marionette, because Debian 12 has no WebDriver for it.
// A command is JSON preceded by its length.
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "browser.h"
#include "child.h"

namespace vamo {

using nlohmann::json;

struct Firefox::Parts {
  TemporaryFolder profile;
  std::unique_ptr<Child> browser;
  int connection = -1;
  int commands = 0;

  ~Parts() {
    if (connection >= 0) close(connection);
  }

  // Connects to the port that the browser has written to its profile.
  bool Connects() {
    sockaddr_in address{};
    std::uint16_t port = 0;
    std::ifstream(profile.Path() / "MarionetteActivePort") >> port;
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    connection = socket(AF_INET, SOCK_STREAM, 0);
    if (connect(connection, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0)
      return true;
    close(std::exchange(connection, -1));
    return false;
  }

  void Connect() {
    std::ofstream(profile.Path() / "user.js") << "user_pref(\"marionette.port\", 0);\n";
    const std::vector<std::string> command{"firefox-esr",  "--headless",  "--marionette",
                                           "--no-remote",  "--profile",   profile.Path().string(),
                                           "--width=1280", "--height=800"};
    browser = std::make_unique<Child>(command, Environment{{"HOME", profile.Path().string()}});
    if (!Await([this] { return Connects(); }, std::chrono::seconds(60))) {
      throw std::runtime_error("Firefox does not listen");
    }
    Read();  // The browser introduces itself.
  }

  std::string Receive(std::size_t size) {
    std::string data(size, 0);
    if (recv(connection, data.data(), size, MSG_WAITALL) != static_cast<ssize_t>(size)) {
      throw std::runtime_error("Firefox has ended");
    }
    return data;
  }

  json Read() {
    std::string length;
    for (std::string c = Receive(1); c != ":"; c = Receive(1)) length += c;
    return json::parse(Receive(std::stoul(length)));
  }

  json Ask(const char* command, const json& parameters) {
    const std::string sent = json{0, ++commands, command, parameters}.dump();
    const std::string framed = std::to_string(sent.size()) + ":" + sent;
    if (send(connection, framed.data(), framed.size(), MSG_NOSIGNAL) !=
        static_cast<ssize_t>(framed.size())) {
      throw std::runtime_error("Firefox has ended");
    }
    const json answer = Read();
    if (!answer.at(2).is_null()) {
      throw std::runtime_error(std::string(command) + ": " + answer.at(2).dump());
    }
    const json& result = answer.at(3);
    return result.is_object() && result.contains("value") ? result.at("value") : result;
  }
};

Firefox::Firefox() : parts_(std::make_unique<Parts>()) {
  parts_->Connect();
  parts_->Ask("WebDriver:NewSession", json::object());
}

Firefox::~Firefox() = default;

json Firefox::Do(const Command& command, const json& parameters, const std::string& /*element*/) {
  return parts_->Ask(command.name, parameters);
}

}  // namespace vamo
