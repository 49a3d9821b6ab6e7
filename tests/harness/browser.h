// A browser that is operated through WebDriver.
#ifndef VAMO_TESTS_HARNESS_BROWSER_H_
#define VAMO_TESTS_HARNESS_BROWSER_H_

#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vamo {

// One window of a headless browser. Each function throws std::runtime_error if the browser refuses
// the command or has ended.
class Browser {
 public:
  virtual ~Browser() = default;

  void Open(const std::string& address);
  // Runs the body of a JavaScript function and returns its result or, if that is a promise, what it
  // promises. An element is a JSON object, which can be passed as an argument.
  nlohmann::json Run(std::string_view body,
                     const nlohmann::json& arguments = nlohmann::json::array());
  // Waits in the page.
  void Wait(int milliseconds);
  // Directs the next commands to the frame of that number in the page; null directs them to the
  // page.
  void EnterFrame(const nlohmann::json& number);
  // The role and the name of an element for assistive technology.
  std::pair<std::string, std::string> RoleAndNameOf(const nlohmann::json& element);

  // Presses the keys of `last` while those of `held` are down. A key is its character or, for a key
  // without one, WebDriver's private character.
  void PressKeys(const std::string& held, const std::string& last);
  void MoveMouse(int x, int y);
  // Presses the mouse button, moves through these points and releases it, in one command: between
  // two commands a browser ends the drag of a slider.
  void DragMouse(const std::vector<std::pair<int, int>>& points) { Drag("mouse", points); }
  // Touches with a finger, moves it through these points and lifts it.
  void Swipe(const std::vector<std::pair<int, int>>& points) { Drag("touch", points); }
  void TurnWheel(int x, int y, int pixels);

 protected:
  // A command in both protocols: WebDriver over HTTP, and Marionette.
  struct Command {
    const char* method;
    // The path after that of the session and, for a command about an element, of the element.
    const char* path;
    const char* name;
  };
  // Sends a command with its parameters, for an element if one is given.
  virtual nlohmann::json Do(const Command& command, const nlohmann::json& parameters,
                            const std::string& element = {}) = 0;

 private:
  static constexpr Command kOpen{"POST", "/url", "WebDriver:Navigate"};
  static constexpr Command kRun{"POST", "/execute/sync", "WebDriver:ExecuteScript"};
  static constexpr Command kFrame{"POST", "/frame", "WebDriver:SwitchToFrame"};
  static constexpr Command kRole{"GET", "/computedrole", "WebDriver:GetComputedRole"};
  static constexpr Command kName{"GET", "/computedlabel", "WebDriver:GetComputedLabel"};
  static constexpr Command kAct{"POST", "/actions", "WebDriver:PerformActions"};

  void Act(const nlohmann::json& source);
  void Drag(const char* pointer, const std::vector<std::pair<int, int>>& points);
};

// Chromium, through its driver.
class Chromium : public Browser {
 public:
  Chromium();
  ~Chromium() override;

  // Sends a command of the browser's DevTools protocol.
  nlohmann::json DoOwn(const std::string& command, const nlohmann::json& parameters);
  // The lines that pages have written to the console since the last call.
  std::vector<std::string> ConsoleLines();

 private:
  struct Parts;
  nlohmann::json Do(const Command& command, const nlohmann::json& parameters,
                    const std::string& element) override;

  std::unique_ptr<Parts> parts_;
};

// Starts Firefox, which is operated through its own protocol, Marionette.
std::unique_ptr<Browser> OpenFirefox();

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_BROWSER_H_
