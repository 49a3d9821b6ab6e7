#include "displays/web/page.h"

#include <cstdint>
#include <cstdlib>
#include <deque>
#include <memory>
#include <utility>

// The functions that page.js implements. A text is passed as a pointer to its first byte and its
// length, in UTF-8.
extern "C" {
int page_create(int parent, const char* tag, std::size_t tag_length, int listens);
void page_remove(int element);
void page_set_attribute(int element, const char* name, std::size_t name_length, const char* value,
                        std::size_t value_length);
void page_remove_attribute(int element, const char* name, std::size_t name_length);
void page_set_style(int element, const char* name, std::size_t name_length, const char* value,
                    std::size_t value_length);
void page_set_text(int element, const char* text, std::size_t length);
void page_set_value(int element, const char* text, std::size_t length);
void page_select(int element, std::size_t anchor, std::size_t caret);
std::size_t page_anchor(int element);
std::size_t page_caret(int element);
void page_focus(int element);
void page_come_into_view(int element);
int page_has_focus(int element);
void page_bring_to_end(int element);
void page_move(int element, int parent);
double page_element_width(int element);
double page_element_height(int element);
double page_text_enlargement();
double page_width();
void page_tell_link();
void page_flash(int element);
void page_set_owned(int owned);
void page_post();
void page_start_timer(int timer, double period);
void page_stop_timer(int timer);
double page_text_width(const char* text, std::size_t length, const char* font,
                       std::size_t font_length);
int page_copy(const char* text, std::size_t length);
void page_read_clipboard();
void page_sound();
int page_has_picture(const char* name, std::size_t length);
void page_show_picture(int element, const char* name, std::size_t length);
int page_has_coarse_pointer();
int page_is_mac();
}

namespace vamo {
namespace {

struct State {
  std::map<int, PageListener*> listeners;
  PageOwner* owner = nullptr;
  std::map<int, std::function<void()>> timers;
  int last_timer = 0;
  struct Posted {
    PageOwner* owner;
    std::function<void()> function;
  };
  std::deque<Posted> posted;
  std::function<void(std::optional<std::string>)> clipboard_reader;
};

State& Page() {
  static State state;
  return state;
}

// Takes ownership of a text that page.js has allocated.
std::string Taken(char* text, std::size_t length) {
  const std::unique_ptr<char, decltype(&std::free)> owned(text, std::free);
  return length == 0 ? std::string() : std::string(text, length);
}

// Events are dropped while the page has no owner.
void RunEvent(const std::function<void()>& event) {
  if (Page().owner != nullptr) Page().owner->RunEvent(event);
}

// Notes that `name` now has that value. Returns whether it is new.
bool Note(std::map<std::string, std::string, std::less<>>& values, std::string_view name,
          std::string_view value) {
  const auto known = values.find(name);
  if (known != values.end() && known->second == value) return false;
  values[std::string(name)] = value;
  return true;
}

constexpr unsigned kShift = 1;
constexpr unsigned kControl = 2;
constexpr unsigned kAlt = 4;
constexpr unsigned kMeta = 8;
constexpr unsigned kRepeat = 16;

}  // namespace

PageElement::PageElement(const PageElement& parent, std::string_view tag, PageListener* listener)
    : number_(page_create(parent.number_, tag.data(), tag.size(), listener != nullptr ? 1 : 0)) {
  if (listener != nullptr) Page().listeners[number_] = listener;
}

PageElement::PageElement() : number_(0) {}

PageElement::~PageElement() {
  if (number_ == 0) return;
  Page().listeners.erase(number_);
  page_remove(number_);
}

void PageElement::SetAttribute(std::string_view name, std::string_view value) {
  if (Note(attributes_, name, value))
    page_set_attribute(number_, name.data(), name.size(), value.data(), value.size());
}

void PageElement::RemoveAttribute(std::string_view name) {
  if (attributes_.erase(std::string(name)) > 0)
    page_remove_attribute(number_, name.data(), name.size());
}

void PageElement::SetOptionalAttribute(std::string_view name, std::string_view value) {
  if (value.empty()) return RemoveAttribute(name);
  SetAttribute(name, value);
}

void PageElement::SetFlag(std::string_view name, bool on) {
  if (!on) return RemoveAttribute(name);
  SetAttribute(name, "");
}

void PageElement::SetStyle(std::string_view name, std::string_view value) {
  if (Note(styles_, name, value))
    page_set_style(number_, name.data(), name.size(), value.data(), value.size());
}

bool PageElement::SetText(std::string_view text) {
  if (text == text_) return false;
  text_ = text;
  page_set_text(number_, text.data(), text.size());
  return true;
}

void PageElement::SetValue(std::string_view value) {
  page_set_value(number_, value.data(), value.size());
}

void PageElement::Select(const PageSelection& selection) {
  page_select(number_, selection.anchor, selection.caret);
}

PageSelection PageElement::Selection() const { return {page_anchor(number_), page_caret(number_)}; }

void PageElement::Focus() { page_focus(number_); }

void PageElement::ComeIntoView() { page_come_into_view(number_); }

bool PageElement::HasFocus() const { return page_has_focus(number_) != 0; }

void PageElement::BringToEnd() { page_bring_to_end(number_); }

void PageElement::MoveTo(const PageElement& parent) { page_move(number_, parent.number_); }

void PageElement::Flash() { page_flash(number_); }

void PageElement::ShowPicture(std::string_view name) {
  if (name == picture_) return;
  picture_ = name;
  page_show_picture(number_, name.data(), name.size());
}

double PageElement::Width() const { return page_element_width(number_); }

double PageElement::Height() const { return page_element_height(number_); }

std::string PageElement::Id() const { return "vamo" + std::to_string(number_); }

namespace page {

void SetOwner(PageOwner* owner) {
  for (State::Posted& posted : Page().posted) {
    if (posted.owner != nullptr && posted.owner != owner) posted.function = nullptr;
  }
  Page().owner = owner;
  page_set_owned(owner != nullptr ? 1 : 0);
  if (owner == nullptr) Page().clipboard_reader = nullptr;
}

void Post(std::function<void()> function) {
  Page().posted.push_back({Page().owner, std::move(function)});
  page_post();
}

int StartTimer(std::chrono::milliseconds period, std::function<void()> function) {
  const int number = ++Page().last_timer;
  Page().timers.emplace(number, std::move(function));
  page_start_timer(number, static_cast<double>(period.count()));
  return number;
}

void StopTimer(int number) {
  Page().timers.erase(number);
  page_stop_timer(number);
}

double TextWidth(std::string_view text, std::string_view css_font) {
  return page_text_width(text.data(), text.size(), css_font.data(), css_font.size());
}

double TextEnlargement() { return page_text_enlargement(); }

double Width() { return page_width(); }

void TellLink() { page_tell_link(); }

bool Copy(std::string_view text) { return page_copy(text.data(), text.size()) != 0; }

void ReadClipboard(std::function<void(std::optional<std::string>)> take) {
  Page().clipboard_reader = std::move(take);
  page_read_clipboard();
}

void Sound() { page_sound(); }

bool HasPicture(std::string_view name) { return page_has_picture(name.data(), name.size()) != 0; }

bool HasCoarsePointer() { return page_has_coarse_pointer() != 0; }

bool IsMac() { return page_is_mac() != 0; }

}  // namespace page
}  // namespace vamo

// The functions that page.js calls. The build exports them from the page's program.
extern "C" {

// For an element, or with -1 for the owner of the page.
int page_report(int element, int event, double x, double y, unsigned held, char* text,
                std::size_t text_length, char* data, std::size_t data_length) {
  // The answer if an exception ends the event.
  vamo::PageAnswer answer = vamo::PageAnswer::kPrevented;
  // Done even if nobody receives the report, because it takes ownership of the texts.
  const vamo::PageReport report{.event = static_cast<vamo::PageEvent>(event),
                                .x = x,
                                .y = y,
                                .shift = (held & vamo::kShift) != 0,
                                .control = (held & vamo::kControl) != 0,
                                .alt = (held & vamo::kAlt) != 0,
                                .meta = (held & vamo::kMeta) != 0,
                                .repeat = (held & vamo::kRepeat) != 0,
                                .text = vamo::Taken(text, text_length),
                                .data = vamo::Taken(data, data_length)};
  vamo::RunEvent([&] {
    const auto found = vamo::Page().listeners.find(element);
    if (element < 0) {
      answer = vamo::Page().owner->Handle(report);
    } else if (found != vamo::Page().listeners.end()) {
      answer = found->second->Handle(report);
    } else {
      answer = vamo::PageAnswer::kPassed;
    }
  });
  return static_cast<int>(answer);
}

void page_fire(int timer) {
  const auto found = vamo::Page().timers.find(timer);
  if (found == vamo::Page().timers.end()) return;
  // Runs a copy, because the function may stop the timer.
  const std::function<void()> fire = found->second;
  vamo::RunEvent(fire);
}

void page_run_posted() {
  const auto [owner, function] = std::move(vamo::Page().posted.front());
  vamo::Page().posted.pop_front();
  if (function == nullptr) return;
  if (owner == nullptr) {
    function();
  } else {
    owner->RunEvent(function);
  }
}

void page_give_clipboard(int allowed, char* text, std::size_t length) {
  std::string given = vamo::Taken(text, length);
  const auto take = std::exchange(vamo::Page().clipboard_reader, nullptr);
  if (take == nullptr) return;
  vamo::RunEvent([&] { take(allowed != 0 ? std::optional(std::move(given)) : std::nullopt); });
}

}  // extern "C"
