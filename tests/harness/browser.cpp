#include "browser.h"

#include <gio/gio.h>
#include <httplib.h>

#include <stdexcept>
#include <utility>
#include <vector>

#include "child.h"
#include "toolkit/utf8.h"

namespace vamo {
namespace {

using nlohmann::json;

// The key by which WebDriver marks an element.
constexpr char kElement[] = "element-6066-11e4-a52e-4f735466cecf";

// A free port of this machine.
int FreePort() {
  GSocketListener* listener = g_socket_listener_new();
  const int port = g_socket_listener_add_any_inet_port(listener, nullptr, nullptr);
  g_object_unref(listener);
  return port;
}

json Key(const char* type, std::string_view value) { return {{"type", type}, {"value", value}}; }

json Pointer(const char* kind, const json& actions) {
  return {{"type", "pointer"},
          {"id", kind},
          {"parameters", {{"pointerType", kind}}},
          {"actions", actions}};
}

json MoveTo(int x, int y) {
  return {{"type", "pointerMove"}, {"duration", 0}, {"x", x}, {"y", y}, {"origin", "viewport"}};
}

json Button(const char* type) { return {{"type", type}, {"button", 0}}; }

}  // namespace

void Browser::Open(const std::string& address) { Do(kOpen, {{"url", address}}); }

json Browser::Run(std::string_view body, const json& arguments) {
  return Do(kRun, {{"script", body}, {"args", arguments}});
}

void Browser::Wait(int milliseconds) {
  Run("return new Promise(done => setTimeout(done, arguments[0]));", json::array({milliseconds}));
}

void Browser::EnterFrame(const json& number) { Do(kFrame, {{"id", number}}); }

std::pair<std::string, std::string> Browser::RoleAndNameOf(const json& element) {
  const std::string id = element.at(kElement);
  return {Do(kRole, {{"id", id}}, id), Do(kName, {{"id", id}}, id)};
}

void Browser::Act(const json& source) { Do(kAct, {{"actions", json::array({source})}}); }

void Browser::PressKeys(const std::string& held, const std::string& last) {
  json actions = json::array();
  const std::vector<std::string_view> modifiers = Characters(held);
  for (const std::string_view key : modifiers) actions.push_back(Key("keyDown", key));
  for (const std::string_view key : Characters(last)) {
    actions.push_back(Key("keyDown", key));
    actions.push_back(Key("keyUp", key));
  }
  for (const std::string_view key : modifiers) actions.push_back(Key("keyUp", key));
  Act({{"type", "key"}, {"id", "keyboard"}, {"actions", actions}});
}

void Browser::MoveMouse(int x, int y) { Act(Pointer("mouse", json::array({MoveTo(x, y)}))); }

void Browser::TurnWheel(int x, int y, int pixels) {
  const json scroll = {{"type", "scroll"}, {"x", x},           {"y", y},
                       {"deltaX", 0},      {"deltaY", pixels}, {"origin", "viewport"}};
  Act({{"type", "wheel"}, {"id", "wheel"}, {"actions", json::array({scroll})}});
}

void Browser::Drag(const char* pointer, const std::vector<std::pair<int, int>>& points) {
  json actions = json::array();
  for (const auto& [x, y] : points) {
    actions.push_back(MoveTo(x, y));
    if (actions.size() == 1) actions.push_back(Button("pointerDown"));
  }
  actions.push_back(Button("pointerUp"));
  Act(Pointer(pointer, actions));
}

struct Chromium::Parts {
  int port = FreePort();
  TemporaryFolder profile;
  Child driver{{"chromedriver", "--port=" + std::to_string(port), "--log-level=OFF"}};
  httplib::Client connection{"127.0.0.1", port};
  std::string session;

  json Ask(const std::string& method, const std::string& path, const json& parameters) {
    httplib::Request request;
    request.method = method;
    request.path = path;
    if (method == "POST") request.body = parameters.dump();
    const httplib::Result answer = connection.send(request);
    if (!answer) throw std::runtime_error(httplib::to_string(answer.error()));
    const json value = json::parse(answer->body).at("value");
    if (value.is_object() && value.contains("error")) {
      throw std::runtime_error(path + ": " + value.at("message").get<std::string>());
    }
    return value;
  }
};

Chromium::Chromium() : parts_(std::make_unique<Parts>()) {
  // A script may run for as long as WebDriver lets it.
  parts_->connection.set_read_timeout(std::chrono::minutes(1));
  const auto listens = [this] {
    try {
      return parts_->Ask("GET", "/status", {}).at("ready").get<bool>();
    } catch (const std::runtime_error&) {
      return false;  // Not yet.
    }
  };
  if (!Await(listens)) throw std::runtime_error("the driver of Chromium does not start");
  const json arguments = {"--headless=new",    "--no-sandbox",
                          "--disable-gpu",     "--window-size=1280,800",
                          "--hide-scrollbars", "--user-data-dir=" + parts_->profile.Path()};
  const json wanted = {
      {"browserName", "chrome"},
      {"goog:loggingPrefs", {{"browser", "ALL"}}},
      {"goog:chromeOptions", {{"binary", "/usr/bin/chromium"}, {"args", arguments}}}};
  parts_->session = parts_->Ask("POST", "/session", {{"capabilities", {{"alwaysMatch", wanted}}}})
                        .at("sessionId");
  DoOwn("Browser.grantPermissions",
        {{"permissions", {"clipboardReadWrite", "clipboardSanitizedWrite"}}});
}

Chromium::~Chromium() {
  try {
    parts_->Ask("DELETE", "/session/" + parts_->session, {});
  } catch (const std::exception&) {
    // The browser has already ended.
  }
}

json Chromium::Do(const Command& command, const json& parameters, const std::string& element) {
  const std::string about = element.empty() ? "" : "/element/" + element;
  return parts_->Ask(command.method, "/session/" + parts_->session + about + command.path,
                     parameters);
}

json Chromium::DoOwn(const std::string& command, const json& parameters) {
  return parts_->Ask("POST", "/session/" + parts_->session + "/goog/cdp/execute",
                     {{"cmd", command}, {"params", parameters}});
}

std::vector<std::string> Chromium::ConsoleLines() {
  std::vector<std::string> lines;
  const std::string path = "/session/" + parts_->session + "/se/log";
  for (const json& entry : parts_->Ask("POST", path, {{"type", "browser"}})) {
    lines.push_back(entry.at("message"));
  }
  return lines;
}

}  // namespace vamo
