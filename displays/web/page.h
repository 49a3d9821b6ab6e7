// The page that the program runs in, as a few primitives, which page.js implements.
#ifndef VAMO_DISPLAYS_WEB_PAGE_H_
#define VAMO_DISPLAYS_WEB_PAGE_H_

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace vamo {

// What the user does to an element. The numbers are those of page.js.
enum class PageEvent {
  kKey = 0,
  kPress = 1,
  kClick = 2,
  kFocus = 3,
  kInput = 4,
  kEdit = 5,
  kComposed = 6,
  kWheel = 7,
  kCopy = 8,
  kCut = 9,
  kPaste = 10,
  kComposing = 11,
  kSelected = 12,
  // A press of any button begins. The press itself is reported next: as kPress for the main button,
  // else as kOtherPress.
  kPressBegins = 13,
  kOtherPress = 14,
  // The page or its text size has changed.
  kRoom = 15,
  // A finger touches a slider, moves, and is lifted.
  kTouch = 16,
  kTouchMoves = 17,
  kTouchEnds = 18,
  // The fragment of the page's address has changed, or TellLink was called. The text is the
  // fragment.
  kLink = 19
};

struct PageReport {
  PageEvent event = PageEvent::kKey;
  // For the beginning of a press: `x` is 1 if it follows another press as in a double click. For a
  // press and a touch: the position, as a share of the width and height of the listening element.
  // For a wheel: the notches turned to the right and away from the user. For a click: `x` is 1 if
  // it ends where its press began, else 0. For the input of a number: `x` is its value. For an
  // edit: the range that it changes, as offsets in UTF-16 code units; -1 if that is the selection.
  double x = 0;
  double y = 0;
  bool shift = false;
  bool control = false;
  bool alt = false;
  bool meta = false;
  // For a key: whether it is an automatic repeat.
  bool repeat = false;
  // The name of a key, the type of an edit, a composed or pasted text, or the value of an input
  // that is not a number.
  std::string text = {};
  // For an edit: the text that it inserts. For a key: its name by its place on the keyboard.
  std::string data = {};
};

// What happens after a report: it goes on to the enclosing element (kPassed); or it is handled,
// with the browser's default action (kHandled) or without it (kPrevented). The numbers are those of
// page.js.
enum class PageAnswer { kPassed = 0, kHandled = 1, kPrevented = 2 };

// Receives what the user does to an element and its contents.
class PageListener {
 public:
  virtual ~PageListener() = default;
  virtual PageAnswer Handle(const PageReport& report) = 0;
};

// Receives the reports that no element's listener has handled, and runs all events.
class PageOwner : public PageListener {
 public:
  // Runs an event for any listener. Must let no exception through.
  virtual void RunEvent(const std::function<void()>& event) = 0;
};

// A listener that calls a function, which may destroy the listener.
class PageHandler : public PageListener {
 public:
  using Handler = std::function<PageAnswer(const PageReport&)>;
  explicit PageHandler(Handler handler) : handler_(std::move(handler)) {}
  PageAnswer Handle(const PageReport& report) override {
    // Runs a copy, which lives until it has returned.
    const Handler handler = handler_;
    return handler(report);
  }

 private:
  const Handler handler_;
};

// Offsets into the text of an element, in UTF-16 code units. If both are equal, there is a caret
// and no selection.
struct PageSelection {
  std::size_t anchor = 0;
  std::size_t caret = 0;
  bool operator==(const PageSelection&) const = default;
};

// An element of the page. It is removed when this object is destroyed.
class PageElement {
 public:
  // Creates an element at the end of `parent`.
  PageElement(const PageElement& parent, std::string_view tag, PageListener* listener = nullptr);
  // The element that contains the windows. It is never removed.
  PageElement();
  ~PageElement();
  PageElement(const PageElement&) = delete;
  PageElement& operator=(const PageElement&) = delete;

  // These functions do not touch the page if nothing changes.
  void SetAttribute(std::string_view name, std::string_view value);
  // Whether this object has set the attribute.
  bool HasAttribute(std::string_view name) const {
    return attributes_.find(name) != attributes_.end();
  }
  void RemoveAttribute(std::string_view name);
  // Sets an attribute, or removes it if the value is empty.
  void SetOptionalAttribute(std::string_view name, std::string_view value);
  // Sets or removes a Boolean attribute.
  void SetFlag(std::string_view name, bool on);
  void SetStyle(std::string_view name, std::string_view value);
  // Sets the element's text. Returns whether it has changed.
  bool SetText(std::string_view text);
  // Shows one of the page's pictures, in an `img`.
  void ShowPicture(std::string_view name);

  // Sets the value of an input. It is always set, because the user changes it too.
  void SetValue(std::string_view value);
  void Select(const PageSelection& selection);
  PageSelection Selection() const;

  // Does not scroll.
  void Focus();
  void ComeIntoView();
  bool HasFocus() const;
  void BringToEnd();
  // Moves the element to the end of `parent`.
  void MoveTo(const PageElement& parent);
  void Flash();

  // In CSS pixels.
  double Width() const;
  double Height() const;

  // The id by which other elements refer to it.
  std::string Id() const;

 private:
  // Values by name, as the page has them.
  using Values = std::map<std::string, std::string, std::less<>>;

  const int number_;
  Values attributes_;
  Values styles_;
  std::string text_;
  std::string picture_;
};

namespace page {

// With null, nothing is reported any more, and a pending read of the clipboard is dropped.
void SetOwner(PageOwner* owner);

// Calls `function` once, as a separate event. It belongs to the current owner and is dropped if the
// page has another owner, or none, by then. If the page has no owner now, it always runs.
void Post(std::function<void()> function);
// Calls `function` each time the period has passed, until StopTimer is called with the returned
// number.
int StartTimer(std::chrono::milliseconds period, std::function<void()> function);
void StopTimer(int number);

// The width of a text in a CSS font, in CSS pixels.
double TextWidth(std::string_view text, std::string_view css_font);

// The ratio of the actual width of texts to the requested one. It is above 1 if the browser's
// settings or a user style make texts larger or wider.
double TextEnlargement();
// The width of the page in CSS pixels.
double Width();

// Reports the fragment of the page's address.
void TellLink();

// Puts a text on the clipboard. Returns false if the browser refuses. Call this only while
// handling what the user does.
bool Copy(std::string_view text);
// Asks for the clipboard's text. Calls `take` with nothing if the browser or the user refuses.
void ReadClipboard(std::function<void(std::optional<std::string>)> take);

void Sound();
bool HasPicture(std::string_view name);
// Whether the user's main pointer is a finger.
bool HasCoarsePointer();
bool IsMac();

}  // namespace page
}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_PAGE_H_
