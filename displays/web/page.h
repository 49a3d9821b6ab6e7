// The page that the program runs in, as a few primitives. What they do in the browser is in
// page.js.
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
  // A press of any button begins, before it is reported itself: by kPress where the button is the
  // main one, else by kOtherPress.
  kPressBegins = 13,
  kOtherPress = 14,
  // The page, or its texts, have another size.
  kRoom = 15,
  // A finger touches a slider, moves on to another place, and goes.
  kTouch = 16,
  kTouchMoves = 17,
  kTouchEnds = 18,
  // The page's address has another fragment, which is the text; or it is asked for.
  kLink = 19
};

struct PageReport {
  PageEvent event = PageEvent::kKey;
  // Of a press that begins, in `x`, whether it follows another one as in a double click. Of a
  // press, its place as a share of the width and the height of the element that hears of it.
  // Of a wheel, what it has turned, in notches to the right and away from the user. Of a click, in
  // `x`, how often the mouse has been clicked; 0 where it was something else that clicked. Of an
  // input, in `x`, its value where that is a number. Of an edit, what it is about, as offsets in
  // UTF-16 code units; -1 where that is what is selected.
  double x = 0;
  double y = 0;
  bool shift = false;
  bool control = false;
  bool alt = false;
  bool meta = false;
  // Of a key, whether it is held down and repeats by itself.
  bool repeat = false;
  // The name of a key, the kind of an edit, what has been composed or pasted, the value of an input
  // that is no number.
  std::string text = {};
  // The text that an edit brings. Of a key, its name by its place on the keyboard.
  std::string data = {};
};

// What becomes of a report: it goes on to the element around; or it has arrived, and the browser
// does what it would do by itself; or it has arrived, and the browser is to do nothing more. The
// numbers are those of page.js.
enum class PageAnswer { kPassed = 0, kTaken = 1, kTakenWhole = 2 };

// Hears what the user does to an element and to what is in it.
class PageListener {
 public:
  virtual ~PageListener() = default;
  virtual PageAnswer Take(const PageReport& report) = 0;
};

// Hears what no element's listener has taken, and answers for all.
class PageOwner : public PageListener {
 public:
  // Runs an event, whoever hears of it. Must let no exception through.
  virtual void RunEvent(const std::function<void()>& event) = 0;
};

// A listener that is a function. What it calls may destroy it.
class PageHandler : public PageListener {
 public:
  using Handler = std::function<PageAnswer(const PageReport&)>;
  explicit PageHandler(Handler handler) : handler_(std::move(handler)) {}
  PageAnswer Take(const PageReport& report) override {
    // A copy runs, which stays until it has returned.
    const Handler handler = handler_;
    return handler(report);
  }

 private:
  const Handler handler_;
};

// Offsets into the text of an element, in UTF-16 code units. Equal: a caret and no selection.
struct PageSelection {
  std::size_t anchor = 0;
  std::size_t caret = 0;
  bool operator==(const PageSelection&) const = default;
};

// An element of the page, which goes when this object does.
class PageElement {
 public:
  // At the end of `parent`.
  PageElement(const PageElement& parent, std::string_view tag, PageListener* listener = nullptr);
  // What the windows lie in. It stays.
  PageElement();
  ~PageElement();
  PageElement(const PageElement&) = delete;
  PageElement& operator=(const PageElement&) = delete;

  // Each of these leaves the page alone where nothing changes.
  void SetAttribute(std::string_view name, std::string_view value);
  // Whether it has been set here.
  bool HasAttribute(std::string_view name) const {
    return attributes_.find(name) != attributes_.end();
  }
  void RemoveAttribute(std::string_view name);
  // An attribute that says something where it has a text, and is not there where it has none.
  void SetOptionalAttribute(std::string_view name, std::string_view value);
  // An attribute that says yes by being there.
  void SetFlag(std::string_view name, bool on);
  void SetStyle(std::string_view name, std::string_view value);
  // The text in it. Whether it was another one before.
  bool SetText(std::string_view text);
  // Shows one of the page's pictures, in an `img`.
  void ShowPicture(std::string_view name);

  // The value of an input, which the user changes too: always set.
  void SetValue(std::string_view value);
  void Select(const PageSelection& selection);
  PageSelection Selection() const;

  // Scrolls nothing.
  void Focus();
  void ComeIntoView();
  bool HasFocus() const;
  void BringToEnd();
  // To the end of another element.
  void MoveTo(const PageElement& parent);
  void Flash();

  // In CSS pixels.
  double Width() const;
  double Height() const;

  // What other elements refer to it by.
  std::string Id() const;

 private:
  // By name, as the page has them.
  using Values = std::map<std::string, std::string, std::less<>>;

  const int number_;
  Values attributes_;
  Values styles_;
  std::string text_;
  std::string picture_;
};

namespace page {

// Null: nobody hears anything any more, nor is the clipboard waited for.
void SetOwner(PageOwner* owner);

// Calls `function` once, as an event of its own. It belongs to the present owner and is dropped if
// the page has another one by then. If the page has no owner, it always runs.
void Post(std::function<void()> function);
// Calls `function` each time that the period has passed, until it is stopped by the number.
int StartTimer(std::chrono::milliseconds period, std::function<void()> function);
void StopTimer(int number);

// The width of a text in a CSS font, in CSS pixels.
double TextWidth(std::string_view text, std::string_view css_font);

// How much wider texts are than asked for, because somebody has set the browser, or a style of his
// own, to larger or wider ones.
double TextEnlargement();
// The width of the page in CSS pixels.
double Width();

// Reports the fragment of the page's address.
void TellLink();

// Puts a text on the clipboard, unless the browser refuses; only while the user does something.
bool Copy(std::string_view text);
// Asks for the clipboard's text; nothing where the browser or the user refuses.
void ReadClipboard(std::function<void(std::optional<std::string>)> take);

void Sound();
bool HasPicture(std::string_view name);
// Whether the user's main pointer is a finger.
bool IsWorkedByFingers();
bool IsMac();

}  // namespace page
}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_PAGE_H_
