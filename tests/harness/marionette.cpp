// Operates Firefox through its own protocol, Marionette, because Debian 12 has no WebDriver for it.
// A command is JSON preceded by its length.
#include <gio/gio.h>

#include <chrono>
#include <fstream>
#include <stdexcept>

#include "browser.h"
#include "child.h"

namespace vamo {
namespace {

using nlohmann::json;

class Firefox : public Browser {
 public:
  Firefox() {
    if (!Await([this] { return Connects(); }, std::chrono::seconds(60))) {
      throw std::runtime_error("Firefox does not listen");
    }
    Read();  // The browser introduces itself.
    Ask("WebDriver:NewSession", json::object());
  }
  ~Firefox() override { g_clear_object(&connection_); }

 private:
  // Without a port in its settings, the browser chooses one.
  static CommandLine CommandIn(const std::string& profile) {
    std::ofstream(profile + "/user.js") << "user_pref(\"marionette.port\", 0);\n";
    return {"env",         "HOME=" + profile, "firefox-esr", "--headless",   "--marionette",
            "--no-remote", "--profile",       profile,       "--width=1280", "--height=800"};
  }
  // Connects to the port that the browser has written to its profile.
  bool Connects() {
    guint16 port = 0;
    std::ifstream(profile_.Path() + "/MarionetteActivePort") >> port;
    GSocketClient* client = g_socket_client_new();
    connection_ = g_socket_client_connect_to_host(client, "127.0.0.1", port, nullptr, nullptr);
    g_object_unref(client);
    return connection_ != nullptr;
  }

  std::string Receive(std::size_t size) {
    std::string data(size, 0);
    gsize received = 0;
    g_input_stream_read_all(g_io_stream_get_input_stream(G_IO_STREAM(connection_)), data.data(),
                            size, &received, nullptr, nullptr);
    if (received != size) throw std::runtime_error("Firefox has ended");
    return data;
  }
  json Read() {
    std::string length;
    for (std::string c = Receive(1); c != ":"; c = Receive(1)) length += c;
    return json::parse(Receive(std::stoul(length)));
  }
  json Ask(const char* command, const json& parameters) {
    const std::string sent = json{0, ++commands_, command, parameters}.dump();
    const std::string framed = std::to_string(sent.size()) + ":" + sent;
    g_output_stream_write_all(g_io_stream_get_output_stream(G_IO_STREAM(connection_)),
                              framed.data(), framed.size(), nullptr, nullptr, nullptr);
    const json answer = Read();
    if (!answer.at(2).is_null()) {
      throw std::runtime_error(std::string(command) + ": " + answer.at(2).dump());
    }
    const json& result = answer.at(3);
    return result.is_object() && result.contains("value") ? result.at("value") : result;
  }
  json Do(const Command& command, const json& parameters, const std::string&) override {
    return Ask(command.name, parameters);
  }

  const TemporaryFolder profile_;
  Child browser_{CommandIn(profile_.Path())};
  GSocketConnection* connection_ = nullptr;
  int commands_ = 0;
};

}  // namespace

std::unique_ptr<Browser> OpenFirefox() { return std::make_unique<Firefox>(); }

}  // namespace vamo
