#include "browser.h"

#include <curl/curl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>
#include <vector>

#include "child.h"
#include "toolkit/utf8.h"

namespace vamo {
namespace {

using nlohmann::json;

// How the standard marks an element.
constexpr char kElement[] = "element-6066-11e4-a52e-4f735466cecf";

// A port of this machine that nobody listens to.
int FreePort() {
  const int probe = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  const bool bound = bind(probe, reinterpret_cast<sockaddr*>(&address), size) == 0 &&
                     getsockname(probe, reinterpret_cast<sockaddr*>(&address), &size) == 0;
  close(probe);
  if (!bound) throw std::runtime_error("no port is free");
  return ntohs(address.sin_port);
}

std::size_t Collect(char* data, std::size_t size, std::size_t count, void* text) {
  static_cast<std::string*>(text)->append(data, size * count);
  return size * count;
}

// A folder that goes with the object.
class Folder {
 public:
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "browser-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for " + name);
    path_ = name;
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// A command in both forms of the standard's interface.
struct Row {
  const char* method;
  // Behind the session and, where it is about one, the element.
  const char* path;
  const char* name;
};

// In the order of Browser::Command.
const Row& RowOf(std::size_t command) {
  static constexpr Row kRows[] = {
      {"POST", "/url", "WebDriver:Navigate"},
      {"POST", "/execute/sync", "WebDriver:ExecuteScript"},
      {"POST", "/execute/async", "WebDriver:ExecuteAsyncScript"},
      {"POST", "/frame", "WebDriver:SwitchToFrame"},
      {"GET", "/computedrole", "WebDriver:GetComputedRole"},
      {"GET", "/computedlabel", "WebDriver:GetComputedLabel"},
      {"POST", "/actions", "WebDriver:PerformActions"},
  };
  return kRows[command];
}

json Key(const char* type, const std::string& value) { return {{"type", type}, {"value", value}}; }

std::vector<std::string> Characters(const std::string& text) {
  std::vector<std::string> characters;
  for (std::size_t at = 0; at < text.size(); at = NextCharacter(text, at)) {
    characters.push_back(text.substr(at, NextCharacter(text, at) - at));
  }
  return characters;
}

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

void Browser::Open(const std::string& address) { Do(Command::kOpen, {{"url", address}}); }

json Browser::Run(std::string_view body, const json& arguments) {
  return Do(Command::kRun, {{"script", body}, {"args", arguments}});
}

json Browser::RunAsync(std::string_view body, const json& arguments) {
  return Do(Command::kRunAsync, {{"script", body}, {"args", arguments}});
}

void Browser::EnterFrame(const json& number) { Do(Command::kFrame, {{"id", number}}); }

std::string Browser::ReadElement(Command command, const json& element) {
  const std::string id = element.at(kElement);
  return Do(command, {{"id", id}}, id).get<std::string>();
}

std::string Browser::RoleOf(const json& element) { return ReadElement(Command::kRole, element); }

std::string Browser::NameOf(const json& element) { return ReadElement(Command::kName, element); }

void Browser::Act(const json& source) { Do(Command::kAct, {{"actions", json::array({source})}}); }

void Browser::PressKeys(const std::string& held, const std::string& last) {
  json actions = json::array();
  const std::vector<std::string> modifiers = Characters(held);
  for (const std::string& key : modifiers) actions.push_back(Key("keyDown", key));
  for (const std::string& key : Characters(last)) {
    actions.push_back(Key("keyDown", key));
    actions.push_back(Key("keyUp", key));
  }
  for (auto key = modifiers.rbegin(); key != modifiers.rend(); ++key) {
    actions.push_back(Key("keyUp", *key));
  }
  Act({{"type", "key"}, {"id", "keyboard"}, {"actions", actions}});
}

void Browser::MoveMouse(int x, int y) { Act(Pointer("mouse", json::array({MoveTo(x, y)}))); }

void Browser::DragMouse(const std::vector<std::pair<int, int>>& points) { Drag("mouse", points); }

void Browser::TurnWheel(int x, int y, int pixels) {
  const json scroll = {{"type", "scroll"}, {"x", x},           {"y", y},
                       {"deltaX", 0},      {"deltaY", pixels}, {"origin", "viewport"}};
  Act({{"type", "wheel"}, {"id", "wheel"}, {"actions", json::array({scroll})}});
}

void Browser::Swipe(const std::vector<std::pair<int, int>>& points) { Drag("touch", points); }

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
  Folder profile;
  Child driver{{"chromedriver", "--port=" + std::to_string(port), "--log-level=OFF"}, {}};
  CURL* connection = curl_easy_init();
  std::string session;

  ~Parts() { curl_easy_cleanup(connection); }

  json Ask(const std::string& method, const std::string& path, const json& parameters) {
    const std::string address = "http://127.0.0.1:" + std::to_string(port) + path;
    const std::string sent = parameters.dump();
    std::string answer;
    curl_easy_reset(connection);
    curl_easy_setopt(connection, CURLOPT_URL, address.c_str());
    curl_easy_setopt(connection, CURLOPT_NOPROXY, "*");
    curl_easy_setopt(connection, CURLOPT_WRITEFUNCTION, Collect);
    curl_easy_setopt(connection, CURLOPT_WRITEDATA, &answer);
    curl_easy_setopt(connection, CURLOPT_CUSTOMREQUEST, method.c_str());
    if (method == "POST") curl_easy_setopt(connection, CURLOPT_POSTFIELDS, sent.c_str());
    const CURLcode code = curl_easy_perform(connection);
    if (code != CURLE_OK) throw std::runtime_error(curl_easy_strerror(code));
    const json value = json::parse(answer).at("value");
    if (value.is_object() && value.contains("error")) {
      throw std::runtime_error(path + ": " + value.at("message").get<std::string>());
    }
    return value;
  }
};

Chromium::Chromium() : parts_(std::make_unique<Parts>()) {
  const auto listens = [this] {
    try {
      return parts_->Ask("GET", "/status", {}).at("ready").get<bool>();
    } catch (const std::runtime_error&) {
      return false;  // Not yet.
    }
  };
  if (!Await(listens)) throw std::runtime_error("the driver of Chromium does not start");
  const json arguments = {
      "--headless=new",    "--no-sandbox",
      "--disable-gpu",     "--window-size=1280,800",
      "--hide-scrollbars", "--user-data-dir=" + parts_->profile.Path().string()};
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
    // It has gone already.
  }
}

json Chromium::Do(Command command, const json& parameters, const std::string& element) {
  const Row& row = RowOf(static_cast<std::size_t>(command));
  const std::string about = element.empty() ? "" : "/element/" + element;
  return parts_->Ask(row.method, "/session/" + parts_->session + about + row.path, parameters);
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

// Its commands are those of the standard, each with its length before it.
struct Firefox::Parts {
  int port = FreePort();
  Folder profile;
  std::unique_ptr<Child> browser;
  int connection = -1;
  int commands = 0;

  ~Parts() {
    if (connection >= 0) close(connection);
  }

  void Connect() {
    std::ofstream(profile.Path() / "user.js")
        << "user_pref(\"marionette.port\", " << port << ");\n";
    browser = std::make_unique<Child>(
        std::vector<std::string>{"firefox-esr", "--headless", "--marionette", "--no-remote",
                                 "--profile", profile.Path().string(), "--width=1280",
                                 "--height=800"},
        Environment{{"HOME", profile.Path().string()}});
    const auto connects = [this] {
      sockaddr_in address{};
      address.sin_family = AF_INET;
      address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
      address.sin_port = htons(static_cast<std::uint16_t>(port));
      connection = socket(AF_INET, SOCK_STREAM, 0);
      if (connect(connection, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0)
        return true;
      close(std::exchange(connection, -1));
      return false;
    };
    if (!Await(connects, std::chrono::seconds(60)))
      throw std::runtime_error("Firefox does not listen");
    Read();  // It says who it is.
  }

  json Read() {
    std::string length;
    for (char c = 0; c != ':';) {
      if (read(connection, &c, 1) != 1) throw std::runtime_error("Firefox has gone");
      if (c != ':') length += c;
    }
    std::string answer(std::stoul(length), 0);
    for (std::size_t got = 0; got < answer.size();) {
      const ssize_t more = read(connection, answer.data() + got, answer.size() - got);
      if (more <= 0) throw std::runtime_error("Firefox has gone");
      got += static_cast<std::size_t>(more);
    }
    return json::parse(answer);
  }

  json Ask(const char* command, const json& parameters) {
    const std::string sent = json{0, ++commands, command, parameters}.dump();
    const std::string framed = std::to_string(sent.size()) + ":" + sent;
    for (std::size_t put = 0; put < framed.size();) {
      const ssize_t more = write(connection, framed.data() + put, framed.size() - put);
      if (more <= 0) throw std::runtime_error("Firefox has gone");
      put += static_cast<std::size_t>(more);
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

json Firefox::Do(Command command, const json& parameters, const std::string& /*element*/) {
  return parts_->Ask(RowOf(static_cast<std::size_t>(command)).name, parameters);
}

}  // namespace vamo
