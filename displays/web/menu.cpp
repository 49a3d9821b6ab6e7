#include "displays/web/menu.h"

#include <optional>
#include <string>
#include <utility>

#include "displays/web/display.h"
#include "displays/web/keys.h"
#include "displays/web/window.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/text/edit_commands.h"
#include "toolkit/window/menu_service.h"

namespace vamo {
namespace {

// A page may read the clipboard only with the user's consent, and has to wait for it.
bool Pastes(const MenuItem& item) {
  for (const EditCommand& command : kEditCommands) {
    if (command.action == EditAction::kPaste && command.item == item.Name()) return item.Enabled();
  }
  return false;
}

}  // namespace

struct WebMenuBar::Entry {
  Entry(const PageElement& list, Ref<MenuItem> shown, PageHandler::Handler handler)
      : item(std::move(shown)), listener(std::move(handler)), element(list, "li", &listener) {}

  void Show() {
    const bool separates = IsSeparator(*item);
    shows = IsDrawn(*item);
    element.SetFlag("hidden", !shows);
    const std::optional<bool> checked = item->Checked();
    element.SetAttribute("role", separates ? "separator"
                                 : checked ? "menuitemcheckbox"
                                           : "menuitem");
    if (separates) return;
    if (checked) element.SetAttribute("aria-checked", *checked ? "true" : "false");
    element.SetAttribute("tabindex", "-1");
    element.SetAttribute("aria-disabled", item->Enabled() ? "false" : "true");
    element.SetText(item->Value());
    // Without the shortcut, which the style sheet adds to the text.
    element.SetAttribute("aria-label", item->Value());
    const std::string& shortcut = item->Shortcut();
    if (shortcut.empty()) return;
    const std::size_t plus = shortcut.find('+');
    const bool with_command = plus != std::string::npos;
    const std::string key = with_command ? shortcut.substr(plus) : shortcut;
    const auto held = [&](const char* name) { return with_command ? name + key : key; };
    element.SetAttribute("aria-keyshortcuts", held(page::IsMac() ? "Meta" : "Control"));
    element.SetAttribute("data-shortcut", held(page::IsMac() ? "Cmd" : "Ctrl"));
  }
  bool CanBeFocused() const { return shows && !IsSeparator(*item); }

  const Ref<MenuItem> item;
  PageHandler listener;
  PageElement element;
  bool shows = true;
};

struct WebMenuBar::Menu {
  Menu(const PageElement& bar, const std::string& text, PageHandler::Handler handler)
      : listener(std::move(handler)),
        holder(bar, "div"),
        title(holder, "button", &listener),
        list(holder, "ul"),
        letter(LowerCase(text[0])) {
    holder.SetAttribute("role", "none");
    title.SetAttribute("type", "button");
    title.SetAttribute("role", "menuitem");
    title.SetAttribute("aria-haspopup", "menu");
    title.SetText(text);
    list.SetAttribute("role", "menu");
    list.SetAttribute("aria-labelledby", title.Id());
  }

  PageHandler listener;
  PageElement holder;
  PageElement title;
  PageElement list;
  std::vector<std::unique_ptr<Entry>> entries;
  char letter;
};

WebMenuBar::WebMenuBar(WebWindow& window, const PageElement& parent, const MenuBar& bar)
    : window_(window), bar_(parent, "div") {
  bar_.SetAttribute("role", "menubar");
  bar_.SetAttribute("aria-label", window.Shown().ListedTitle());
  for (const DrawnMenu& drawn : DrawnMenus(bar)) {
    const std::size_t number = menus_.size();
    menus_.push_back(std::make_unique<Menu>(
        bar_, drawn.text,
        [this, number](const PageReport& report) { return HandleTitle(number, report); }));
    Menu& menu = *menus_.back();
    for (const Ref<MenuItem>& item : drawn.items) {
      const std::size_t entry = menu.entries.size();
      menu.entries.push_back(
          std::make_unique<Entry>(menu.list, item, [this, number, entry](const PageReport& report) {
            return HandleEntry(number, entry, report);
          }));
    }
  }
  Close();
  UpdateOrder(/*in_front=*/false);
}

WebMenuBar::~WebMenuBar() = default;

void WebMenuBar::UpdateOrder(bool in_front) {
  for (std::size_t i = 0; i < menus_.size(); ++i) {
    menus_[i]->title.SetAttribute("tabindex", in_front && i == 0 ? "0" : "-1");
  }
  if (!in_front) Close();
}

void WebMenuBar::Focus() { FocusTitle(0); }

void WebMenuBar::Leave() {
  if (open_ == kNone) return;
  Close();
  window_.ShowFocus();
}

void WebMenuBar::FocusTitle(std::size_t menu) { menus_[menu]->title.Focus(); }

void WebMenuBar::Open(std::size_t menu) {
  UserOpensMenu();
  Close();
  open_ = menu;
  for (const auto& entry : menus_[menu]->entries) entry->Show();
  menus_[menu]->title.SetAttribute("aria-expanded", "true");
  menus_[menu]->list.SetFlag("hidden", false);
}

void WebMenuBar::Close() {
  open_ = kNone;
  for (const auto& menu : menus_) {
    menu->title.SetAttribute("aria-expanded", "false");
    menu->list.SetFlag("hidden", true);
  }
}

PageAnswer WebMenuBar::HandleTitle(std::size_t menu, const PageReport& report) {
  if (report.event == PageEvent::kKey) return HandleKey(menu, report);
  const bool pressed = report.event == PageEvent::kPress;
  // A mouse click ends a press that was handled; any other click comes from assistive technology.
  if (!pressed && (report.event != PageEvent::kClick || report.x != 0)) return PageAnswer::kPassed;
  const bool was_open = open_ == menu;
  window_.BringToFront();
  window_.ReportSelection();
  if (!was_open) {
    Open(menu);
    FocusTitle(menu);
  }
  return PageAnswer::kPrevented;
}

PageAnswer WebMenuBar::HandleEntry(std::size_t menu, std::size_t entry, const PageReport& report) {
  if (report.event == PageEvent::kPress) return PageAnswer::kPrevented;
  const Entry& taken = *menus_[menu]->entries[entry];
  const bool chosen =
      report.event == PageEvent::kClick ||
      (report.event == PageEvent::kKey && (report.text == "Enter" || report.text == " "));
  if (chosen) {
    Choose(taken.item);
    return PageAnswer::kPrevented;
  }
  if (report.event != PageEvent::kKey) return PageAnswer::kPassed;
  if (report.text == "ArrowDown" || report.text == "ArrowUp") {
    FocusEntry(menu, Next(menu, entry, report.text == "ArrowDown" ? 1 : -1));
    return PageAnswer::kPrevented;
  }
  return HandleKey(menu, report);
}

PageAnswer WebMenuBar::HandleKey(std::size_t menu, const PageReport& report) {
  const std::string& key = report.text;
  if (key == "ArrowLeft" || key == "ArrowRight") {
    const std::size_t step = key == "ArrowLeft" ? menus_.size() - 1 : 1;
    const std::size_t next = (menu + step) % menus_.size();
    const bool was_open = open_ != kNone;
    if (was_open) Open(next);
    FocusTitle(next);
    return PageAnswer::kPrevented;
  }
  if (key == "ArrowDown" || key == "ArrowUp" || key == "Enter" || key == " ") {
    window_.ReportSelection();
    Open(menu);
    FocusEntry(menu, Next(menu, kNone, key == "ArrowUp" ? -1 : 1));
    return PageAnswer::kPrevented;
  }
  if (key == "Escape" || key == "F10" || (key == "Tab" && open_ != kNone)) {
    Close();
    window_.ShowFocus();
    return PageAnswer::kPrevented;
  }
  if (key == "Tab") return PageAnswer::kHandled;
  if (key == "Home" || key == "End") {
    const int step = key == "Home" ? 1 : -1;
    if (open_ == menu) {
      FocusEntry(menu, Next(menu, kNone, step));
    } else {
      FocusTitle(step > 0 ? 0 : menus_.size() - 1);
    }
    return PageAnswer::kPrevented;
  }
  if (report.control || report.meta || report.alt || key == "F1" || key == "F9")
    return PageAnswer::kPassed;
  // The control that had the focus before the menu must get no other key either.
  if (key.size() != 1) return PageAnswer::kHandled;
  if (open_ == menu) {
    for (std::size_t i = 0; i < menus_[menu]->entries.size(); ++i) {
      const Entry& entry = *menus_[menu]->entries[i];
      if (entry.CanBeFocused() && LowerCase(entry.item->Value()[0]) == LowerCase(key[0])) {
        FocusEntry(menu, i);
      }
    }
  } else {
    for (std::size_t i = 0; i < menus_.size(); ++i) {
      if (menus_[i]->letter == LowerCase(key[0])) FocusTitle(i);
    }
  }
  return PageAnswer::kPrevented;
}

std::size_t WebMenuBar::Next(std::size_t menu, std::size_t entry, int step) const {
  const auto& entries = menus_[menu]->entries;
  const std::size_t count = entries.size();
  const std::size_t forward = step > 0 ? 1 : count - 1;
  std::size_t next = entry == kNone ? (step > 0 ? count - 1 : 0) : entry;
  for (std::size_t i = 0; i < count; ++i) {
    next = (next + forward) % count;
    if (entries[next]->CanBeFocused()) return next;
  }
  return entry;
}

void WebMenuBar::FocusEntry(std::size_t menu, std::size_t entry) {
  if (entry != kNone) menus_[menu]->entries[entry]->element.Focus();
}

// The item may close the window, and this bar with it.
void WebMenuBar::Choose(Ref<MenuItem> item) {
  if (!item->Enabled()) return;
  Close();
  window_.ShowFocus();
  if (!Pastes(*item)) return UserChose(item);
  page::ReadClipboard([item, &display = window_.Display()](std::optional<std::string> text) {
    if (!text.has_value()) return Beep();
    display.WithPasted(std::move(*text), [&] { UserChose(item); });
  });
}

}  // namespace vamo
