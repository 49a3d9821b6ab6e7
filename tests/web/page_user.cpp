#include "web/page_user.h"

#include <cmath>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include "child.h"

namespace vamo {
namespace {

using nlohmann::json;

// Records beeps, flashes and announcements from the time when the page has just opened.
constexpr std::string_view kListen = R"(
  window.heard = {beeps: 0, flashes: 0, sentences: []};
  const make = AudioContext.prototype.createOscillator;
  AudioContext.prototype.createOscillator = function() {
    ++heard.beeps;
    return make.call(this);
  };
  const flash = Element.prototype.animate;
  Element.prototype.animate = function(...how) {
    ++heard.flashes;
    return flash.apply(this, how);
  };
  new MutationObserver(changes => {
    for (const change of changes) {
      const spoken = change.target.closest && change.target.closest('[role=status]');
      if (spoken && spoken.textContent && change.addedNodes.length)
        heard.sentences.push(spoken.textContent);
    }
  }).observe(document.getElementById('vamo'), {childList: true, subtree: true});
)";

// Reads the windows with their menus and controls.
constexpr std::string_view kLook = R"(
  const look = (element, children) => {
    const box = element.getBoundingClientRect();
    const selects = element.selectionStart !== undefined && element.selectionStart !== null;
    const described = document.getElementById(element.getAttribute('aria-describedby'));
    const caption = element.labels && element.labels.length ? element.labels[0] : described;
    const range = element.type === 'range';
    const text = range ? element.value : 'value' in element && element.tagName !== 'BUTTON' &&
        element.tagName !== 'OUTPUT' && element.tagName !== 'LI' ? element.value : element.textContent;
    return {
      element: element, tag: element.tagName, children: children,
      key: [element.id, element.getAttribute('role'), element.getAttribute('aria-label'),
            range || selects ? '' : element.textContent].join('|'),
      description: element.getAttribute('aria-description') || '',
      caption: caption ? caption.textContent : '',
      showing: Boolean(element.offsetParent) || (box.width > 0 && box.height > 0),
      enabled: !element.disabled && element.getAttribute('aria-disabled') !== 'true',
      focused: document.activeElement === element,
      active: element.hasAttribute('data-active'),
      text: text,
      selected: selects ? text.substring(element.selectionStart, element.selectionEnd) : '',
      value: range ? Number(element.value) : 0, least: range ? Number(element.min) : 0,
      greatest: range ? Number(element.max) : 0, step: range ? Number(element.step) : 1,
      x: box.left, y: box.top, width: box.width, height: box.height
    };
  };
  return [...document.querySelectorAll('.window')].map(frame => {
    const parts = [...frame.querySelectorAll('.control, .pane svg')].map(control => look(control, []));
    const bar = frame.querySelector('[role=menubar]');
    if (bar) {
      parts.unshift(look(bar, [...bar.children].map(menu => look(menu.querySelector('button'),
        [...menu.querySelectorAll('li')].map(item => look(item, []))))));
    }
    return look(frame, parts);
  });
)";

// The code that WebDriver uses for a key without a character, by the key's X name.
std::string KeyNamed(const std::string& name) {
  static const std::map<std::string, std::string> kKeys{
      {"BackSpace", "\uE003"}, {"Tab", "\uE004"},   {"Return", "\uE006"}, {"shift", "\uE008"},
      {"ctrl", "\uE009"},      {"alt", "\uE00A"},   {"Escape", "\uE00C"}, {"Page_Up", "\uE00E"},
      {"Page_Down", "\uE00F"}, {"End", "\uE010"},   {"Home", "\uE011"},   {"Left", "\uE012"},
      {"Up", "\uE013"},        {"Right", "\uE014"}, {"Down", "\uE015"},   {"Delete", "\uE017"},
      {"F1", "\uE031"},        {"F5", "\uE035"},    {"F9", "\uE039"},     {"F10", "\uE03A"},
      {"plus", "+"},           {"minus", "-"},
  };
  const auto found = kKeys.find(name);
  return found == kKeys.end() ? name : found->second;
}

int Rounded(const json& number) { return static_cast<int>(std::lround(number.get<double>())); }

}  // namespace

std::string SeenElement::RoleName() const {
  static const std::map<std::string, std::string> kNames{
      {"textbox", "text"},       {"slider", "slider"},    {"button", "button"},
      {"region", "frame"},       {"dialog", "dialog"},    {"menubar", "menu bar"},
      {"menuitem", "menu item"}, {"dialog", "frame"},     {"status", "label"},
      {"LabelText", "label"},    {"StaticText", "label"}, {"generic", "label"},
      {"label", "label"},        {"text leaf", "label"},  {"menuitemcheckbox", "menu item"},
      {"image", "chart"},        {"img", "chart"},
  };
  const auto found = kNames.find(user_->RoleAndName(*look_).first);
  return found == kNames.end() ? "" : found->second;
}

// The name of a label is its text, as on the other displays.
std::string SeenElement::Name() const {
  return RoleName() == "label" ? Text() : user_->RoleAndName(*look_).second;
}

std::vector<SeenElement> SeenElement::Children() const {
  std::vector<SeenElement> children;
  for (const json& child : look_->at("children")) {
    children.emplace_back(*user_, std::make_shared<const json>(child));
  }
  return children;
}

std::int64_t SeenElement::InSteps(double value) const {
  return std::llround(value / look_->at("step").get<double>());
}

Place SeenElement::Extents() const {
  return {Rounded(look_->at("x")), Rounded(look_->at("y")), Rounded(look_->at("width")),
          Rounded(look_->at("height"))};
}

void SeenElement::Do(std::string_view action) const {
  user_->TheBrowser().Run(action == "Focus" ? "arguments[0].focus();" : "arguments[0].click();",
                          json::array({look_->at("element")}));
}

PageUser::PageUser(Browser& browser, const std::string& address) : browser_(browser) {
  browser_.Open(address);
  const bool runs = Await([this] {
    return browser_.Run("return document.querySelector('.window') !== null;").get<bool>();
  });
  if (!runs) throw std::runtime_error("the page shows no window");
  browser_.Run(kListen);
  Settle();
}

std::pair<std::string, std::string> PageUser::RoleAndName(const json& look) {
  const std::string key = look.at("key");
  const auto known = read_.find(key);
  if (known != read_.end()) return known->second;
  // Assistive technology does not read hidden elements.
  if (!look.at("showing").get<bool>()) return {"label", ""};
  const json& element = look.at("element");
  return read_[key] = {browser_.RoleOf(element), browser_.NameOf(element)};
}

// Tab also visits the browser and the menus before it returns to the controls; this skips them.
void PageUser::PressKey(const Key& key) {
  ScreenUser::PressKey(key);
  if (key.text != std::string(1, kTab)) return;
  for (int stops = 0; stops < 3 && Focused().name.empty(); ++stops) ScreenUser::PressKey(key);
}

void PageUser::PressCombination(const std::string& keys) {
  std::string held;
  std::string rest = keys;
  for (std::size_t at = rest.find('+'); at != std::string::npos; at = rest.find('+')) {
    held += KeyNamed(rest.substr(0, at));
    rest.erase(0, at + 1);
  }
  browser_.PressKeys(held, KeyNamed(rest));
}

void PageUser::TypePrintable(std::string_view text) { browser_.PressKeys("", std::string(text)); }

void PageUser::MoveTo(int x, int y) {
  pointer_ = {x, y};
  if (pressed_at_.empty()) return browser_.MoveMouse(x, y);
  pressed_at_.push_back(pointer_);
}

void PageUser::ReleaseMouse() { browser_.DragMouse(std::exchange(pressed_at_, {})); }

void PageUser::Scroll(int notches) {
  constexpr int kPixelsPerNotch = 40;
  for (int i = 0; i < std::abs(notches); ++i) {
    browser_.TurnWheel(pointer_.first, pointer_.second,
                       notches > 0 ? -kPixelsPerNotch : kPixelsPerNotch);
  }
}

void PageUser::TurnWheel(std::string_view slider, std::int64_t notches) {
  if (Focused().name != slider || Focused().role != Role::kSlider) {
    Find(Role::kSlider, slider).Do("Focus");
  }
  ScreenUser::TurnWheel(slider, notches);
}

void PageUser::SetClipboard(std::string_view text) {
  const json failed = browser_.RunAsync(
      "navigator.clipboard.writeText(arguments[0])"
      ".then(() => arguments[1](null), error => arguments[1](String(error)));",
      json::array({text}));
  if (!failed.is_null()) throw std::runtime_error(failed.get<std::string>());
}

std::string PageUser::Clipboard() {
  return browser_.RunAsync(
      "navigator.clipboard.readText()"
      ".then(text => arguments[0](text), error => arguments[0](String(error)));");
}

void PageUser::ClickOnTitle(std::string_view title, std::string_view part) {
  const json place = browser_.Run(
      "for (const frame of document.querySelectorAll('.window')) {"
      "  const part = frame.querySelector(arguments[1]);"
      "  if (frame.hidden || !part || frame.querySelector('h1').textContent !== arguments[0]) "
      "continue;"
      "  const box = part.getBoundingClientRect();"
      "  return [box.left + box.width / 2, box.top + box.height / 2];"
      "}",
      json::array({title, part}));
  if (place.is_null()) FailToFind(title);
  MoveTo(Rounded(place.at(0)), Rounded(place.at(1)));
  Act([this] { PressMouse(); });
  Act([this] { ReleaseMouse(); });
}

void PageUser::Close(std::string_view title) { ClickOnTitle(title, "header button"); }

void PageUser::ActivateWindow(std::string_view title) {
  if (ActiveTitle() != title) ClickOnTitle(title, "h1");
}

void PageUser::LetTimePass(std::chrono::milliseconds time) {
  std::this_thread::sleep_for(time);
  Settle();
}

int PageUser::Beeps() { return browser_.Run("return heard.beeps;"); }

std::vector<std::string> PageUser::Hears() {
  return browser_.Run("return heard.sentences.splice(0);");
}

bool PageUser::Running() { return browser_.Run("return !document.querySelector('.end');"); }

int PageUser::ExitStatus() {
  const json end = browser_.Run(
      "const end = document.querySelector('.end p'); return end ? end.textContent : null;");
  if (end.is_null()) return -1;
  return end == "Vamo has ended." ? 0 : 1;
}

std::optional<SeenElement> PageUser::Application() {
  json windows = browser_.Run(kLook);
  json look = {{"children", std::move(windows)}};
  return SeenElement(*this, std::make_shared<const json>(std::move(look)));
}

// Lets posted events run, and the events that these post.
void PageUser::Settle() {
  browser_.RunAsync(
      "const done = arguments[0]; setTimeout(() => setTimeout(() => setTimeout(done, 0), 0), 0);");
}

std::string PageAddress() {
  const char* page = std::getenv("VAMO_PAGE");
  return std::string("file://") + (page != nullptr ? page : VAMO_DEFAULT_PAGE);
}

}  // namespace vamo
