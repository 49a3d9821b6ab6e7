#include "web/page_user.h"

#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "child.h"

namespace vamo {
namespace {

using nlohmann::json;

// Records beeps, flashes and announcements from the time when the page has just opened.
constexpr std::string_view kListen = R"(
  window.heard = {beeps: 0, flashes: 0, sentences: []};
  const count = (name, kind, method) => {
    const original = kind.prototype[method];
    kind.prototype[method] = function(...given) {
      ++heard[name];
      return original.apply(this, given);
    };
  };
  count('beeps', AudioContext, 'createOscillator');
  count('flashes', Element, 'animate');
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
  const all = (element, selector, children) =>
    [...element.querySelectorAll(selector)].map(part => look(part, children && children(part)));
  const look = (element, children = []) => {
    const box = element.getBoundingClientRect();
    const text = element.matches('input, textarea') ? element.value : element.textContent;
    const caption = element.labels && element.labels[0] ||
        document.getElementById(element.getAttribute('aria-describedby'));
    return {
      element, children, text,
      key: [element.id, element.role, element.ariaLabel, element.textContent].join('|'),
      description: element.ariaDescription || '',
      caption: caption ? caption.textContent : '',
      showing: element.checkVisibility(),
      enabled: !element.disabled && element.ariaDisabled !== 'true',
      focused: document.activeElement === element,
      active: element.hasAttribute('data-active'),
      selected: text.substring(element.selectionStart, element.selectionEnd),
      scale: [element.value, element.min, element.max, element.step].map(Number),
      place: [box.left, box.top, box.width, box.height].map(Math.round)
    };
  };
  return all(document, '.window', frame => [
    ...all(frame, '[role=menubar]', bar => all(bar, 'button', title =>
        all(title.parentNode, 'li'))),
    ...all(frame, '.control, .pane svg')]);
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

}  // namespace

std::string SeenElement::RoleName() const {
  static const std::map<std::string, std::string> kNames{
      {"textbox", "text"},       {"slider", "slider"},
      {"button", "button"},      {"region", "frame"},
      {"dialog", "dialog"},      {"menubar", "menu bar"},
      {"menuitem", "menu item"}, {"status", "label"},
      {"LabelText", "label"},    {"StaticText", "label"},
      {"generic", "label"},      {"label", "label"},
      {"text leaf", "label"},    {"menuitemcheckbox", "menu item"},
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

Scale SeenElement::ReadScale() const {
  const json& scale = look_->at("scale");
  return {scale.at(0), scale.at(1), scale.at(2), scale.at(3)};
}

Place SeenElement::Extents() const {
  const json& place = look_->at("place");
  return {place.at(0), place.at(1), place.at(2), place.at(3)};
}

void SeenElement::Do(const char* method) const {
  user_->TheBrowser().Run("arguments[0][arguments[1]]();",
                          json::array({look_->at("element"), method}));
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
  return read_[key] = browser_.RoleAndNameOf(look.at("element"));
}

// Tab also visits the browser and the menus before it returns to the controls; this skips them.
void PageUser::PressKey(const Key& key) {
  ScreenUser::PressKey(key);
  if (key.text != std::string(1, kTab)) return;
  for (int stops = 0; stops < 3 && Focused().name.empty(); ++stops) ScreenUser::PressKey(key);
}

void PageUser::PressCombination(const std::string& keys) {
  std::istringstream names(keys);
  std::string held;
  std::string last;
  for (std::string name; std::getline(names, name, '+'); last = KeyNamed(name)) held += last;
  browser_.PressKeys(held, last);
}

void PageUser::TypePrintable(std::string_view text) { browser_.PressKeys("", std::string(text)); }

void PageUser::MoveTo(int x, int y) {
  pointer_ = {x, y};
  if (pressed_at_.empty()) return browser_.MoveMouse(x, y);
  pressed_at_.push_back(pointer_);
}

void PageUser::ReleaseMouse() { browser_.DragMouse(std::exchange(pressed_at_, {})); }

void PageUser::Scroll(int notches) {
  // One event per notch, of any number of pixels.
  for (int i = 0; i < std::abs(notches); ++i) {
    browser_.TurnWheel(pointer_.first, pointer_.second, notches > 0 ? -40 : 40);
  }
}

void PageUser::TurnWheel(std::string_view slider, std::int64_t notches) {
  Find(Role::kSlider, slider).Do("focus");
  ScreenUser::TurnWheel(slider, notches);
}

void PageUser::SetClipboard(std::string_view text) {
  browser_.Run("return navigator.clipboard.writeText(arguments[0]);", json::array({text}));
}

std::string PageUser::Clipboard() { return browser_.Run("return navigator.clipboard.readText();"); }

void PageUser::ClickOnTitle(std::string_view title, std::string_view part) {
  const json middle = browser_.Run(
      "const [title, part] = arguments;"
      "const box = [...document.querySelectorAll('.window:not([hidden])')]"
      "  .find(frame => frame.querySelector('h1').textContent === title)"
      "  .querySelector(part).getBoundingClientRect();"
      "return [box.left + box.width / 2, box.top + box.height / 2].map(Math.round);",
      json::array({title, part}));
  MoveTo(middle.at(0), middle.at(1));
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
  if (Running()) return kStillRunning;
  const json sentence = browser_.Run("return document.querySelector('.end p').textContent;");
  return sentence == "Vamo has ended." ? 0 : 1;
}

std::optional<SeenElement> PageUser::Application() {
  const json page = {{"children", browser_.Run(kLook)}};
  return SeenElement(*this, std::make_shared<const json>(page));
}

// Lets posted events run, and the events that these post.
void PageUser::Settle() {
  browser_.Run(
      "return new Promise(done => setTimeout(() => setTimeout(() => setTimeout(done, 0), 0), 0));");
}

std::string PageAddress() {
  const char* page = std::getenv("VAMO_PAGE");
  return std::string("file://") + (page != nullptr ? page : VAMO_DEFAULT_PAGE);
}

}  // namespace vamo
