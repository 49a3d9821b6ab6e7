// A user who knows only the running program: what it shows.
#include <algorithm>
#include <stdexcept>

#include "hand.h"
#include "outside_user.h"

namespace vamo {
namespace {

std::optional<Role> RoleOf(const Element& element) {
  const std::string name = element.RoleName();
  if (name == "text") return Role::kText;
  if (name == "slider") return Role::kSlider;
  if (name == "push button") return Role::kButton;
  if (name == "label") return Role::kLabel;
  return std::nullopt;
}

ShownControl Read(const Element& element) {
  ShownControl shown;
  shown.role = RoleOf(element).value_or(Role::kLabel);
  shown.name = element.Name();
  shown.description = element.Description();
  shown.labelled_by = element.LabelledBy();
  shown.visible = element.HasState(ATSPI_STATE_SHOWING);
  shown.enabled = element.HasState(ATSPI_STATE_ENABLED);
  shown.text = element.Text();
  if (shown.role == Role::kText) shown.selected_text = element.SelectedText();
  if (shown.role == Role::kSlider) {
    shown.value = element.Value();
    shown.position = element.InSteps(shown.value);
  }
  return shown;
}

[[noreturn]] void FailToFind(std::string_view what) {
  throw std::runtime_error("not on the screen: " + std::string(what));
}

std::optional<Element> FindBelow(const Element& parent, std::string_view role,
                                 std::string_view name) {
  for (Element& child : parent.Children()) {
    if (!child.HasState(ATSPI_STATE_SHOWING)) continue;
    if (child.RoleName() == role && (name.empty() || child.Name() == name)) return std::move(child);
    if (std::optional<Element> found = FindBelow(child, role, name)) return found;
  }
  return std::nullopt;
}

}  // namespace

OutsideUser::Frames OutsideUser::ReadFrames() {
  Frames frames;
  frames.active = "(none)";
  if (!application_.has_value()) {
    application_ = FindApplication([&](const Element& candidate) {
      return candidate.Process() == static_cast<unsigned>(program_.id());
    });
    if (!application_.has_value()) return frames;
  }
  for (Element& frame : application_->Children()) {
    if (frame.RoleName() != "frame" || !frame.HasState(ATSPI_STATE_SHOWING)) continue;
    // The splash has neither a menu bar nor a title bar.
    const std::string title = FindBelow(frame, "menu bar", "").has_value() ? frame.Name() : "";
    frames.titles.push_back(title);
    if (!frame.HasState(ATSPI_STATE_ACTIVE)) continue;
    frames.active = title;
    frames.element = std::move(frame);
  }
  std::sort(frames.titles.begin(), frames.titles.end());
  return frames;
}

std::vector<std::string> OutsideUser::Windows() { return frames_.titles; }

std::string OutsideUser::ActiveTitle() { return frames_.active; }

WindowOnScreen OutsideUser::WindowTitled(std::string_view title) {
  for (const WindowOnScreen& window : screen_.WindowsOf(program_.id())) {
    if (window.title == title) return window;
  }
  FailToFind(title);
}

const std::vector<Element>& OutsideUser::Elements() {
  if (!elements_.empty() || !frames_.element.has_value()) return elements_;
  std::vector<Element> waiting = frames_.element->Children();
  while (!waiting.empty()) {
    Element element = std::move(waiting.back());
    waiting.pop_back();
    if (element.RoleName() == "menu bar") continue;
    for (Element& child : element.Children()) waiting.push_back(std::move(child));
    elements_.push_back(std::move(element));
  }
  return elements_;
}

const Element& OutsideUser::Find(Role role, std::string_view name) {
  for (const Element& element : Elements()) {
    if (RoleOf(element) == role && element.Name() == name) return element;
  }
  FailToFind(name);
}

const Element& OutsideUser::FindDescribed(std::string_view description) {
  for (const Element& element : Elements()) {
    if (element.Description() == description) return element;
  }
  FailToFind(description);
}

ShownControl OutsideUser::Sees(Role role, std::string_view name) { return Read(Find(role, name)); }

ShownControl OutsideUser::SeesDescribed(std::string_view description) {
  return Read(FindDescribed(description));
}

ShownControl OutsideUser::Focused() {
  for (const Element& element : Elements()) {
    if (element.HasState(ATSPI_STATE_FOCUSED)) return Read(element);
  }
  return {};
}

std::string OutsideUser::Clipboard() { return hand::Clipboard(); }

int OutsideUser::Beeps() { return screen_.Bells(); }

Element OutsideUser::MenuTitle(std::string_view text) {
  std::optional<Element> bar = FindBelow(*frames_.element, "menu bar", "");
  if (!bar.has_value()) FailToFind("menu bar");
  for (Element& title : bar->Children()) {
    if (title.Name() == text) return std::move(title);
  }
  FailToFind(text);
}

Element OutsideUser::Open(std::string_view path) {
  const std::size_t slash = path.find('/');
  Element title = MenuTitle(path.substr(0, slash));
  ClickAt(title);
  std::optional<Element> item;
  Await([&] {
    item = FindBelow(title, "menu item", path.substr(slash + 1));
    return item.has_value();
  });
  if (!item.has_value()) FailToFind(path);
  return std::move(*item);
}

}  // namespace vamo
