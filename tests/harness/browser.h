// A browser that is worked through WebDriver, the standard's interface for it.
#ifndef VAMO_TESTS_HARNESS_BROWSER_H_
#define VAMO_TESTS_HARNESS_BROWSER_H_

#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vamo {

// One window of a browser without a screen. Each function throws std::runtime_error when the
// browser refuses or has gone.
class Browser {
 public:
  virtual ~Browser() = default;

  void Open(const std::string& address);
  // The result of the body of a JavaScript function. An element comes as a JSON object that can be
  // passed on as an argument.
  nlohmann::json Run(std::string_view body,
                     const nlohmann::json& arguments = nlohmann::json::array());
  // The same for a function that calls its last argument when it is done.
  nlohmann::json RunAsync(std::string_view body,
                          const nlohmann::json& arguments = nlohmann::json::array());
  // Goes into the frame of that number in the page, for what comes then; null goes back to the
  // page.
  void EnterFrame(const nlohmann::json& number);
  // What assistive technology reads of an element.
  std::string RoleOf(const nlohmann::json& element);
  std::string NameOf(const nlohmann::json& element);

  // Keys of the standard: characters, and those of its private ones for keys without. The first
  // ones are held while the last is pressed.
  void PressKeys(const std::string& held, const std::string& last);
  void MoveMouse(int x, int y);
  // The mouse goes down, along these points and up. A browser loses a slider between two commands.
  void DragMouse(const std::vector<std::pair<int, int>>& points);
  void TurnWheel(int x, int y, int pixels);
  // A finger goes down, along these points and up.
  void Swipe(const std::vector<std::pair<int, int>>& points);

 protected:
  // A command in both forms of the standard's interface.
  struct Command {
    const char* method;
    // Behind the session and, where it is about one, the element.
    const char* path;
    const char* name;
  };
  // Does a command with its parameters, about an element where there is one.
  virtual nlohmann::json Do(const Command& command, const nlohmann::json& parameters,
                            const std::string& element = {}) = 0;

 private:
  static constexpr Command kOpen{"POST", "/url", "WebDriver:Navigate"};
  static constexpr Command kRun{"POST", "/execute/sync", "WebDriver:ExecuteScript"};
  static constexpr Command kRunAsync{"POST", "/execute/async", "WebDriver:ExecuteAsyncScript"};
  static constexpr Command kFrame{"POST", "/frame", "WebDriver:SwitchToFrame"};
  static constexpr Command kRole{"GET", "/computedrole", "WebDriver:GetComputedRole"};
  static constexpr Command kName{"GET", "/computedlabel", "WebDriver:GetComputedLabel"};
  static constexpr Command kAct{"POST", "/actions", "WebDriver:PerformActions"};

  void Act(const nlohmann::json& source);
  void Drag(const char* pointer, const std::vector<std::pair<int, int>>& points);
  std::string ReadElement(const Command& command, const nlohmann::json& element);
};

// Chromium, by way of its driver, with the size of the page in CSS pixels.
class Chromium : public Browser {
 public:
  Chromium();
  ~Chromium() override;

  // A command of the browser's own tools for developers.
  nlohmann::json DoOwn(const std::string& command, const nlohmann::json& parameters);
  // What pages have said on the console since the last call.
  std::vector<std::string> ConsoleLines();

 private:
  struct Parts;
  nlohmann::json Do(const Command& command, const nlohmann::json& parameters,
                    const std::string& element) override;

  std::unique_ptr<Parts> parts_;
};

// Firefox, which listens itself (marionette.cpp).
class Firefox : public Browser {
 public:
  Firefox();
  ~Firefox() override;

 private:
  struct Parts;
  nlohmann::json Do(const Command& command, const nlohmann::json& parameters,
                    const std::string& element) override;

  std::unique_ptr<Parts> parts_;
};

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_BROWSER_H_
