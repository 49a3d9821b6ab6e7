// A user who knows only the running program: acts, and the waiting for what comes of them.
#include "outside_user.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include "hand.h"

namespace vamo {
namespace {

using std::chrono_literals::operator""s;

bool IsPrintable(char character) {
  return static_cast<unsigned char>(character) >= ' ' && character != kForwardDelete;
}

}  // namespace

OutsideUser::OutsideUser(Child& program, XScreen& screen, Ears& ears)
    : program_(program), screen_(screen), ears_(ears) {
  const bool shown =
      Await([&] { return !screen_.WindowsOf(program_.id()).empty() || !program_.Running(); }, 30s);
  now_ = std::chrono::steady_clock::now();
  if (!shown || !program_.Running()) throw std::runtime_error("the program shows no window");
  Settle();
}

void OutsideUser::PressKey(const Key& key) {
  Act([&] { hand::PressKey(key); });
}

void OutsideUser::PressNamed(const std::string& keys) {
  Act([&] { hand::PressNamed(keys); });
}

void OutsideUser::Type(std::string_view text) {
  while (!text.empty()) {
    const auto run = std::find_if_not(text.begin(), text.end(), IsPrintable) - text.begin();
    const std::size_t size = std::max<std::size_t>(static_cast<std::size_t>(run), 1);
    const std::string part(text.substr(0, size));
    if (run > 0) {
      Act([&] { hand::Type(part); });
    } else {
      PressKey(Key::Character(part));
    }
    text.remove_prefix(size);
  }
}

void OutsideUser::Paste(std::string_view text) {
  hand::SetClipboard(text);
  PressKey(Key::Command("v"));
}

void OutsideUser::PasteSelection(Role role, std::string_view name, std::string_view text) {
  Click(role, name);
  Act([&] { hand::PasteSelection(text); });
}

void OutsideUser::Click(Role role, std::string_view name) { ClickAt(Find(role, name)); }

void OutsideUser::DragSlider(std::string_view name, const std::vector<std::int64_t>& positions) {
  PressKnob(name, Sees(Role::kSlider, name).position);
  for (const std::int64_t position : positions) MoveKnob(name, position);
  ReleaseKnob();
  NudgeSlider(*this, name, positions.back());
}

void OutsideUser::PressGroove(std::string_view name, std::int64_t at, std::int64_t drag_to) {
  PressKnob(name, at);
  MoveKnob(name, drag_to);
  ReleaseKnob();
}

void OutsideUser::PressKnob(std::string_view slider, std::int64_t at) {
  MoveKnob(slider, at);
  Act(hand::Press);
}

void OutsideUser::MoveKnob(std::string_view slider, std::int64_t to) {
  const Element& element = Find(Role::kSlider, slider);
  const Element::Place place = element.Extents();
  const int x = KnobAt(to, element.InSteps(element.LeastValue()),
                       element.InSteps(element.GreatestValue()), place.width);
  Act([&] { MoveToPart(element, x, place.height / 2); });
}

void OutsideUser::ReleaseKnob() { Act(hand::Release); }

void OutsideUser::TurnWheel(std::string_view slider, std::int64_t notches) {
  const Element& element = Find(Role::kSlider, slider);
  MoveToPart(element, element.Extents().width / 2, element.Extents().height / 2);
  Act([&] { hand::TurnWheel(static_cast<int>(notches)); });
}

void OutsideUser::PressByAssistiveTechnology(std::string_view button) {
  Act([&] { Find(Role::kButton, button).Do("Press"); });
}

void OutsideUser::Choose(std::string_view path) { ClickAt(Open(path)); }

bool OutsideUser::CanChoose(std::string_view path) {
  const bool enabled = Open(path).HasState(ATSPI_STATE_ENABLED);
  // A second press on its title closes a menu.
  ClickAt(MenuTitle(path.substr(0, path.find('/'))));
  return enabled;
}

void OutsideUser::Close(std::string_view title) {
  ActivateWindow(title);
  PressNamed("alt+F4");
}

void OutsideUser::ClickCloseButton(std::string_view title) {
  const WindowOnScreen window = WindowTitled(title);
  // The window manager puts it at the right end of the title bar, as wide as the bar is high.
  const int half = window.frame_top / 2;
  hand::MoveTo(window.x + window.width + window.frame_right - half, window.y - half);
  Act([] {
    hand::Press();
    hand::Release();
  });
}

void OutsideUser::MoveWindow(std::string_view title, int x, int y) {
  Act([&] { hand::MoveWindow(WindowTitled(title).id, x, y); });
}

void OutsideUser::ActivateWindow(std::string_view title) {
  if (ActiveTitle() == title) return;
  Act([&] { hand::Activate(WindowTitled(title).id); });
  if (!Await([&] { return IsSettled() && frames_.active == title; })) {
    throw std::runtime_error("not to be activated: " + std::string(title));
  }
}

void OutsideUser::Wait(std::chrono::milliseconds time) {
  now_ += time;
  while (std::chrono::steady_clock::now() < now_ && program_.Running()) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  Settle();
}

void OutsideUser::Act(const std::function<void()>& act) {
  act();
  Settle();
  now_ = std::chrono::steady_clock::now();
}

void OutsideUser::ClickAt(const Element& element) {
  const Element::Place place = element.Extents();
  MoveToPart(element, place.width / 2, place.height / 2);
  Act(hand::Press);
  if (program_.Running()) Act(hand::Release);
}

void OutsideUser::MoveToPart(const Element& element, int x, int y) {
  const Element::Place place = element.Extents();
  const double scale = Scale();
  hand::MoveTo(static_cast<int>(scale * (place.x + x)), static_cast<int>(scale * (place.y + y)));
}

// How many pixels of the screen a logical pixel of the program has.
double OutsideUser::Scale() {
  const int width = frames_.element->Extents().width;
  return std::round(static_cast<double>(WindowTitled(frames_.active).width) / width);
}

// Whether the window manager and assistive technology agree on what is open and active.
bool OutsideUser::IsSettled() {
  const std::vector<WindowOnScreen> before = screen_.WindowsOf(program_.id());
  const auto runs = [this] { return program_.Running(); };
  if (before.empty() || !screen_.RoundTrip(before.front().id, runs)) return false;
  try {
    frames_ = ReadFrames();
  } catch (const std::runtime_error&) {
    return false;  // A window has gone between two questions about it.
  }
  std::vector<std::string> titles;
  std::string active = "(none)";
  for (const WindowOnScreen& window : screen_.WindowsOf(program_.id())) {
    titles.push_back(window.title);
    if (window.active) active = window.title;
  }
  std::sort(titles.begin(), titles.end());
  return titles == frames_.titles && active == frames_.active;
}

// What is settled twice has stayed so while the window manager had its turn.
void OutsideUser::Settle() {
  const std::vector<std::string> titles = frames_.titles;
  const std::string active = frames_.active;
  const bool settled = Await([&] { return !program_.Running() || (IsSettled() && IsSettled()); });
  if (titles != frames_.titles || active != frames_.active) elements_.clear();
  if (settled) return;
  std::string windows = "the windows do not come to rest; read out:";
  for (const std::string& title : frames_.titles) windows += " '" + title + "'";
  windows += ", active '" + frames_.active + "'; on the screen:";
  for (const WindowOnScreen& window : screen_.WindowsOf(program_.id())) {
    windows += (window.active ? " active '" : " '") + window.title + "'";
  }
  throw std::runtime_error(windows);
}

std::string ProgramPath() {
  const char* program = std::getenv("VAMO_PROGRAM");
  return program != nullptr ? program : VAMO_DEFAULT_PROGRAM;
}

int RunProgramWith(const Environment& settings, const std::function<void(OutsideUser&)>& journey,
                   const std::vector<std::string>& command) {
  static const int initialised = atspi_init();
  if (initialised > 1) throw std::runtime_error("there is no accessibility bus");
  XScreen screen;
  Ears ears;
  Child child(command, settings);
  OutsideUser user(child, screen, ears);
  journey(user);
  return child.ExitStatus().value_or(kStillRunning);
}

int RunProgram(const std::function<void(User&)>& journey) {
  return RunProgramWith({}, [&](OutsideUser& user) { journey(user); });
}

}  // namespace vamo
