// A user of the program in a page.
#ifndef VAMO_TESTS_WEB_PAGE_USER_H_
#define VAMO_TESTS_WEB_PAGE_USER_H_

#include <chrono>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "browser.h"
#include "screen_user.h"

namespace vamo {

class PageUser;

// An element of the page as it was when the user looked. Roles have the names that AT-SPI uses.
class SeenElement {
 public:
  SeenElement(PageUser& user, std::shared_ptr<const nlohmann::json> look)
      : user_(&user), look_(std::move(look)) {}

  std::string RoleName() const;
  std::string Name() const;
  std::string Description() const { return look_->at("description"); }
  std::vector<SeenElement> Children() const;
  bool IsShowing() const { return look_->at("showing"); }
  bool IsEnabled() const { return look_->at("enabled"); }
  bool IsFocused() const { return look_->at("focused"); }
  bool IsActive() const { return look_->at("active"); }
  std::string Text() const { return look_->at("text"); }
  std::string SelectedText() const { return look_->at("selected"); }
  std::string LabelledBy() const { return look_->at("caption"); }
  Scale ReadScale() const;
  Place Extents() const;
  // Presses as assistive technology does.
  void Press() const { Do("click"); }
  // Calls a method of the element.
  void Do(const char* method) const;

 private:
  PageUser* user_;
  std::shared_ptr<const nlohmann::json> look_;
};

// Operates a page with keys and pointer and reads it as assistive technology does.
class PageUser : public ScreenUser<SeenElement> {
 public:
  // Opens the page. The browser outlives this object.
  PageUser(Browser& browser, const std::string& address);

  void PressKey(const Key& key) override;
  void SetClipboard(std::string_view text) override;
  // Focuses the slider first, because a wheel over an unfocused slider scrolls the page.
  void TurnWheel(std::string_view slider, std::int64_t notches) override;
  void Close(std::string_view title) override;
  void ActivateWindow(std::string_view title) override;
  void LetTimePass(std::chrono::milliseconds time) override;
  std::string Clipboard() override;
  int Beeps() override;
  std::vector<std::string> Hears() override;
  bool Running() override;
  // 0 or 1, from the sentence that the page shows at its end; kStillRunning before.
  int ExitStatus();
  Browser& TheBrowser() { return browser_; }

  // The role and name of an element that looks like `look`, for assistive technology. The browser
  // is asked once for each look.
  std::pair<std::string, std::string> RoleAndName(const nlohmann::json& look);

 private:
  void PressCombination(const std::string& keys) override;
  void TypePrintable(std::string_view text) override;
  void MoveTo(int x, int y) override;
  void PressMouse() override { pressed_at_ = {pointer_}; }
  void ReleaseMouse() override;
  void Scroll(int notches) override;
  std::optional<SeenElement> Application() override;
  void Settle() override;
  void ClickOnTitle(std::string_view title, std::string_view part);

  Browser& browser_;
  std::map<std::string, std::pair<std::string, std::string>> read_;
  std::pair<int, int> pointer_;
  // The points of the mouse since it was pressed. The drag is sent when it is released.
  std::vector<std::pair<int, int>> pressed_at_;
};

// The address of the page: VAMO_PAGE in the environment, or the page of the build for the browser.
std::string PageAddress();

}  // namespace vamo

#endif  // VAMO_TESTS_WEB_PAGE_USER_H_
