// The common part of all users who operate a screen.
#ifndef VAMO_TESTS_HARNESS_SCREEN_USER_H_
#define VAMO_TESTS_HARNESS_SCREEN_USER_H_

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "displays/user.h"

namespace vamo {

// The position and size of an element, in logical pixels of the program's window or of the page.
struct Place {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

// The value of a slider, its limits and the distance between two positions.
struct Scale {
  double value = 0;
  double least = 0;
  double greatest = 0;
  double step = 1;
};

// The X name of a key without a printable character, or of a combination of keys, such as
// "ctrl+shift+Left". Empty for a key that only types its character.
std::string NameOf(const Key& key);
// The distance from the left of a slider's box to the middle of its knob at a position.
int KnobAt(std::int64_t position, const Scale& scale, int width);
// The role with that name; nothing if there is none.
std::optional<Role> RoleNamed(std::string_view role_name);
[[noreturn]] void FailToFind(std::string_view what);

// A user with a keyboard, a mouse and a screen reader. Everything that the user does consists of a
// few acts, after each of which the program settles, and of reading the tree of accessible
// elements. An Element has the functions of Element in at_spi.h, is cheap to copy, and throws
// std::runtime_error when its element no longer exists.
template <class Element>
class ScreenUser : public User {
 public:
  void PressKey(const Key& key) override {
    const std::string name = NameOf(key);
    if (name.empty()) return Act([&] { TypePrintable(key.text); });
    PressNamed(name);
  }
  // Presses a combination of keys, given by their X names.
  void PressNamed(const std::string& keys) {
    Act([&] { PressCombination(keys); });
  }
  void Type(std::string_view text) override {
    const auto is_printable = [](char c) { return NameOf(Key::Character({c})).empty(); };
    while (!text.empty()) {
      const auto run = std::find_if_not(text.begin(), text.end(), is_printable) - text.begin();
      const auto size = static_cast<std::size_t>(std::max<std::ptrdiff_t>(run, 1));
      PressKey(Key::Character(std::string(text.substr(0, size))));
      text.remove_prefix(size);
    }
  }
  void Click(Role role, std::string_view name) override { ClickOn(Find(role, name)); }
  void DragSlider(std::string_view name, const std::vector<std::int64_t>& positions) override {
    Drag(name, Sees(Role::kSlider, name).position, positions);
    Nudge(name, positions.back());
  }
  void PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) override {
    Drag(name, at, {drag_to});
  }
  void TurnWheel(std::string_view slider, std::int64_t notches) override {
    MoveToMiddleOf(Find(Role::kSlider, slider));
    Act([&] { Scroll(static_cast<int>(notches)); });
  }
  void PressByAssistiveTechnology(std::string_view button) override {
    Act([&] { Find(Role::kButton, button).Press(); });
  }
  bool Choose(std::string_view path) override {
    const Element item = Open(path);
    const bool enabled = item.IsEnabled();
    ClickOn(enabled ? item : MenuTitle(path));
    return enabled;
  }
  bool CanChoose(std::string_view path) override {
    const bool enabled = Open(path).IsEnabled();
    // A second press on the title of a menu closes it.
    ClickOn(MenuTitle(path));
    return enabled;
  }

  std::vector<std::string> Windows() override { return Look().titles; }
  std::string ActiveTitle() override { return Look().active_title; }
  ShownControl Sees(Role role, std::string_view name) override {
    const std::optional<Element> found = FirstOf(role, name);
    // A closed chart may have no element.
    return role == Role::kChart && !found ? ShownControl{} : Read(Found(found, name));
  }
  ShownControl SeesDescribed(std::string_view description) override {
    return Read(Found(
        FirstWith([&](const Element& element) { return element.Description() == description; }),
        description));
  }
  ShownControl Focused() override {
    const std::optional<Element> found = FirstWith([](const Element& element) {
      return RoleNamed(element.RoleName()) && element.IsFocused();
    });
    return found ? Read(*found) : ShownControl{};
  }

  // The active window.
  Element Frame() { return Look().active.value(); }
  // The element of the active window with that role and name.
  Element Find(Role role, std::string_view name) { return Found(FirstOf(role, name), name); }
  // All elements of the active window, also hidden ones, except menus.
  virtual std::vector<Element> Elements() {
    std::vector<Element> all;
    if (const std::optional<Element> window = Look().active) Collect(*window, all);
    return all;
  }

 protected:
  // The program's windows on the screen.
  struct Frames {
    std::vector<std::string> titles;
    std::string active_title;
    std::optional<Element> active;
  };

  // Each kind of user implements these. The acts do not wait for the program.
  virtual void PressCombination(const std::string& keys) = 0;
  virtual void TypePrintable(std::string_view text) = 0;
  // Moves the mouse to a point in the coordinates of the elements.
  virtual void MoveTo(int x, int y) = 0;
  virtual void PressMouse() = 0;
  virtual void ReleaseMouse() = 0;
  virtual void Scroll(int notches) = 0;
  // Nothing if the program has ended.
  virtual std::optional<Element> Application() = 0;
  virtual bool Running() = 0;
  // Waits until the program and its desktop have nothing left to do.
  virtual void Settle() = 0;
  // The windows as they are now or, if reading them is slow, as they were when they had settled.
  virtual Frames Look() { return ReadFrames(); }

  template <class Deed>
  void Act(const Deed& deed) {
    deed();
    Settle();
  }
  void ClickOn(const Element& element) {
    MoveToMiddleOf(element);
    Act([this] { PressMouse(); });
    if (Running()) Act([this] { ReleaseMouse(); });
  }
  // The splash has neither a menu bar nor a title bar.
  static std::string TitleOf(const Element& window) {
    return FindBelow(window, "menu bar", "") ? window.Name() : "";
  }
  Frames ReadFrames() {
    Frames frames;
    const std::optional<Element> application = Application();
    if (!application) return frames;
    for (const Element& window : application->Children()) {
      // The splash is a dialog.
      const bool is_window = window.RoleName() == "frame" || window.RoleName() == "dialog";
      if (!is_window || !window.IsShowing()) continue;
      frames.titles.push_back(TitleOf(window));
      if (!window.IsActive()) continue;
      frames.active_title = frames.titles.back();
      frames.active = window;
    }
    std::sort(frames.titles.begin(), frames.titles.end());
    return frames;
  }

 private:
  static ShownControl Read(const Element& element) {
    ShownControl shown;
    shown.role = RoleNamed(element.RoleName()).value_or(Role::kLabel);
    shown.name = element.Name();
    shown.description = element.Description();
    shown.labelled_by = element.LabelledBy();
    shown.visible = element.IsShowing();
    shown.enabled = element.IsEnabled();
    shown.text = element.Text();
    if (shown.role == Role::kText) shown.selected_text = element.SelectedText();
    if (shown.role == Role::kSlider) {
      const Scale scale = element.ReadScale();
      shown.value = scale.value;
      shown.position = std::llround(scale.value / scale.step);
    }
    return shown;
  }
  static Element Found(const std::optional<Element>& element, std::string_view what) {
    if (!element) FailToFind(what);
    return *element;
  }
  template <class Condition>
  std::optional<Element> FirstWith(const Condition& condition) {
    for (const Element& element : Elements()) {
      if (condition(element)) return element;
    }
    return std::nullopt;
  }
  std::optional<Element> FirstOf(Role role, std::string_view name) {
    return FirstWith([&](const Element& element) {
      return RoleNamed(element.RoleName()) == role && element.Name() == name;
    });
  }
  static void Collect(const Element& parent, std::vector<Element>& all) {
    for (const Element& child : parent.Children()) {
      if (child.RoleName() == "menu bar") continue;
      all.push_back(child);
      Collect(child, all);
    }
  }
  static std::optional<Element> FindBelow(const Element& parent, std::string_view role,
                                          std::string_view name) {
    for (const Element& child : parent.Children()) {
      if (!child.IsShowing()) continue;
      if (child.RoleName() == role && (name.empty() || child.Name() == name)) return child;
      if (const std::optional<Element> found = FindBelow(child, role, name)) return found;
    }
    return std::nullopt;
  }

  void MoveToMiddleOf(const Element& element) {
    const Place place = element.Extents();
    MoveTo(place.x + place.width / 2, place.y + place.height / 2);
  }
  void MoveKnob(const Element& slider, std::int64_t to) {
    const Place place = slider.Extents();
    MoveTo(place.x + KnobAt(to, slider.ReadScale(), place.width), place.y + place.height / 2);
  }
  void Drag(std::string_view name, std::int64_t from, const std::vector<std::int64_t>& positions) {
    const Element slider = Find(Role::kSlider, name);
    MoveKnob(slider, from);
    Act([this] { PressMouse(); });
    for (const std::int64_t position : positions) {
      Act([&] { MoveKnob(slider, position); });
    }
    Act([this] { ReleaseMouse(); });
  }
  // Ends a drag with the arrow keys, in case a position is narrower than a pixel.
  void Nudge(std::string_view name, std::int64_t position) {
    const std::int64_t reached = Sees(Role::kSlider, name).position;
    if (std::abs(position - reached) > 3) {
      throw std::runtime_error("the knob of " + std::string(name) + " did not follow the mouse");
    }
    for (std::int64_t i = reached; i != position; i += i < position ? 1 : -1) {
      PressNamed(i < position ? "Right" : "Left");
    }
  }

  Element MenuTitle(std::string_view path) {
    const std::string_view text = path.substr(0, path.find('/'));
    return Found(FindBelow(Frame(), "menu item", text), text);
  }
  // Opens the menu of a path with the mouse and returns the item.
  Element Open(std::string_view path) {
    ClickOn(MenuTitle(path));
    for (int look = 0; look < 100; ++look) {
      const auto item = FindBelow(MenuTitle(path), "menu item", path.substr(path.find('/') + 1));
      if (item) return *item;
      Settle();
    }
    FailToFind(path);
  }
};

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_SCREEN_USER_H_
