#ifndef VAMO_DISPLAYS_WEB_MENU_H_
#define VAMO_DISPLAYS_WEB_MENU_H_

#include <cstddef>
#include <memory>
#include <vector>

#include "displays/web/page.h"
#include "toolkit/object/object.h"
#include "toolkit/window/menu_item.h"

namespace vamo {

class WebWindow;

// The menu bar of a window, with the keys that users and screen readers expect in a page: one tab
// stop, arrow keys between and in the menus, first letters, and Escape.
class WebMenuBar {
 public:
  WebMenuBar(WebWindow& window, const PageElement& parent, const MenuBar& bar);
  ~WebMenuBar();

  // Moves the focus to the first menu.
  void Focus();
  // Closes an open menu and returns the focus to the control that had it.
  void Leave();
  // Makes the bar a tab stop if its window is in front.
  void UpdateOrder(bool in_front);

 private:
  struct Entry;
  struct Menu;

  PageAnswer HandleTitle(std::size_t menu, const PageReport& report);
  PageAnswer HandleEntry(std::size_t menu, std::size_t entry, const PageReport& report);
  PageAnswer HandleKey(std::size_t menu, const PageReport& report);
  void FocusTitle(std::size_t menu);
  void Open(std::size_t menu);
  void Close();
  // The next visible entry after `entry`, wrapping around; after kNone, the first or the last one.
  std::size_t Next(std::size_t menu, std::size_t entry, int step) const;
  void FocusEntry(std::size_t menu, std::size_t entry);
  void Choose(Ref<MenuItem> item);

  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  WebWindow& window_;
  PageElement bar_;
  std::vector<std::unique_ptr<Menu>> menus_;
  std::size_t open_ = kNone;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_MENU_H_
