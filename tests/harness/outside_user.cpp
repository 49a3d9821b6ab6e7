// A user who knows only the running program.
#include "outside_user.h"

extern "C" {
#include <xdo.h>
}

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <thread>

namespace vamo {
namespace {

// In microseconds.
constexpr useconds_t kBetweenKeys = 12'000;
constexpr useconds_t kBetweenLetters = 1000;
constexpr useconds_t kBetweenClicks = 100'000;

}  // namespace

OutsideUser::OutsideUser(Child& program, Desktop& desktop, Ears& ears)
    : program_(program), desktop_(desktop), xdo_(xdo_new(nullptr), xdo_free), ears_(ears) {
  const bool shown =
      Await([&] { return !desktop_.WindowsOf(program_.id()).empty() || !program_.Running(); },
            std::chrono::seconds(30));
  now_ = std::chrono::steady_clock::now();
  if (!shown || !program_.Running()) throw std::runtime_error("the program shows no window");
  AwaitRest();
}

void OutsideUser::PressCombination(const std::string& keys) {
  xdo_send_keysequence_window(xdo_.get(), CURRENTWINDOW, keys.c_str(), kBetweenKeys);
}

void OutsideUser::TypePrintable(std::string_view text) {
  xdo_enter_text_window(xdo_.get(), CURRENTWINDOW, std::string(text).c_str(), kBetweenLetters);
}

void OutsideUser::PressMouse() { xdo_mouse_down(xdo_.get(), CURRENTWINDOW, 1); }
void OutsideUser::ReleaseMouse() { xdo_mouse_up(xdo_.get(), CURRENTWINDOW, 1); }
void OutsideUser::Scroll(int notches) { ClickButton(notches > 0 ? 4 : 5, std::abs(notches)); }

void OutsideUser::ClickButton(int button, int times) {
  xdo_click_window_multiple(xdo_.get(), CURRENTWINDOW, button, times, kBetweenClicks);
}

// Converts between the program's logical pixels and the screen's pixels, relative to the window: on
// Wayland a program does not know the positions of its windows.
void OutsideUser::MoveTo(int x, int y) {
  const Place content = Frame().Extents();
  const WindowOnScreen window = WindowTitled(ActiveTitle());
  const double scale = std::round(window.width / static_cast<double>(content.width));
  xdo_move_mouse(xdo_.get(), window.x + static_cast<int>(scale * (x - content.x)),
                 window.y + static_cast<int>(scale * (y - content.y)), 0);
}

void OutsideUser::PasteSelection(Role role, std::string_view name, std::string_view text) {
  Click(role, name);
  Output({"xclip", "-i"}, text);
  // xclip goes to the background before it owns the selection.
  Await([&] { return Output({"xclip", "-o"}) == text; });
  Act([this] { ClickButton(2); });
}

void OutsideUser::Close(std::string_view title) {
  ActivateWindow(title);
  PressNamed("alt+F4");
}

void OutsideUser::ClickCloseButton(std::string_view title) {
  const WindowOnScreen window = WindowTitled(title);
  // The button is at the right end of the title bar and as wide as the bar is high.
  const int half = window.frame_top / 2;
  xdo_move_mouse(xdo_.get(), window.x + window.width + window.frame_right - half, window.y - half,
                 0);
  Act([this] { ClickButton(1); });
}

void OutsideUser::MoveWindow(std::string_view title, int x, int y) {
  Act([&] { xdo_move_window(xdo_.get(), WindowTitled(title).id, x, y); });
}

void OutsideUser::ActivateWindow(std::string_view title) {
  if (ActiveTitle() == title) return;
  Act([&] { desktop_.Activate(WindowTitled(title).id); });
  if (!Await([&] { return IsSettled() && ActiveTitle() == title; })) {
    throw std::runtime_error("cannot be activated: " + std::string(title));
  }
}

void OutsideUser::LetTimePass(std::chrono::milliseconds time) {
  now_ += time;
  while (std::chrono::steady_clock::now() < now_ && program_.Running()) {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  AwaitRest();
}

WindowOnScreen OutsideUser::WindowTitled(std::string_view title) {
  for (const WindowOnScreen& window : desktop_.WindowsOf(program_.id())) {
    if (window.title == title) return window;
  }
  FailToFind(title);
}

int OutsideUser::ScreenWidth() const { return XDisplayWidth(xdo_->xdpy, 0); }
int OutsideUser::ScreenHeight() const { return XDisplayHeight(xdo_->xdpy, 0); }

std::optional<Element> OutsideUser::Application() {
  if (!application_.has_value()) application_ = FindApplication(program_.id());
  return application_;
}

// Reading the elements takes a while, so they are kept as long as the windows stay the same.
std::vector<Element> OutsideUser::Elements() {
  if (elements_.empty()) elements_ = ScreenUser::Elements();
  return elements_;
}

// Whether the window manager and assistive technology agree on what is open and active.
bool OutsideUser::IsSettled() {
  const std::vector<WindowOnScreen> before = desktop_.WindowsOf(program_.id());
  const auto runs = [this] { return program_.Running(); };
  if (before.empty() || !desktop_.RoundTrip(before.front().id, runs)) return false;
  try {
    frames_ = ReadFrames();
  } catch (const std::runtime_error&) {
    return false;  // A window was closed between two requests.
  }
  std::vector<std::string> titles;
  std::optional<std::string> active;
  width_ = 0;
  for (const WindowOnScreen& window : desktop_.WindowsOf(program_.id())) {
    titles.push_back(window.title);
    width_ += window.width;
    if (window.active) active = window.title;
  }
  std::sort(titles.begin(), titles.end());
  return titles == frames_.titles && active.has_value() == frames_.active.has_value() &&
         active.value_or("") == frames_.active_title;
}

// Waits until two checks in a row find the program settled, with a turn of the window manager
// between them.
void OutsideUser::AwaitRest() {
  const std::vector<std::string> titles = frames_.titles;
  const std::string active = frames_.active_title;
  const int width = width_;
  const bool settled = Await([&] { return !program_.Running() || (IsSettled() && IsSettled()); });
  if (titles != frames_.titles || active != frames_.active_title || width != width_) {
    elements_.clear();
  }
  if (!settled) throw std::runtime_error("the windows do not settle: " + TellWindows());
}

void OutsideUser::Settle() {
  // The server has then received the act; the desktop finds out when the program has handled it.
  XSync(xdo_->xdpy, False);
  AwaitRest();
  now_ = std::chrono::steady_clock::now();
}

std::string OutsideUser::TellWindows() {
  std::string told = "read out:";
  for (const std::string& title : frames_.titles) told += " '" + title + "'";
  told += ", active '" + frames_.active_title + "'; on the screen:";
  for (const WindowOnScreen& window : desktop_.WindowsOf(program_.id())) {
    told += (window.active ? " active '" : " '") + window.title + "'";
  }
  return told;
}

int RunProgramWith(const std::function<void(OutsideUser&)>& journey, const CommandLine& command) {
  static const int initialised = atspi_init();
  if (initialised > 1) throw std::runtime_error("there is no accessibility bus");
  const bool on_wayland = std::getenv("WAYLAND_DISPLAY") != nullptr;
  const std::unique_ptr<Desktop> desktop = on_wayland ? OpenWaylandDesktop() : OpenXDesktop();
  Ears ears;
  Child child(command);
  OutsideUser user(child, *desktop, ears);
  journey(user);
  return child.ExitStatus().value_or(kStillRunning);
}

}  // namespace vamo
