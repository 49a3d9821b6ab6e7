#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

extern "C" {
#include <xdo.h>
}

#include <array>
#include <chrono>
#include <stdexcept>

#include "child.h"
#include "desktop.h"

namespace vamo {
namespace {

class XDesktop : public Desktop {
 public:
  XDesktop() {
    if (xdo_ == nullptr) throw std::runtime_error("there is no X server");
    // A window may be closed at any time between two requests.
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    root_ = DefaultRootWindow(xdo_->xdpy);
    own_ = XCreateSimpleWindow(xdo_->xdpy, root_, 0, 0, 1, 1, 0, 0, 0);
    // A program sends its answer to a ping to the root window.
    XSelectInput(xdo_->xdpy, root_, StructureNotifyMask | SubstructureNotifyMask);
    XSelectInput(xdo_->xdpy, own_, PropertyChangeMask);
    ping_ = static_cast<long>(XInternAtom(xdo_->xdpy, "_NET_WM_PING", False));
    XkbQueryExtension(xdo_->xdpy, nullptr, &xkb_event_, nullptr, nullptr, nullptr);
    XkbSelectEvents(xdo_->xdpy, XkbUseCoreKbd, XkbBellNotifyMask, XkbBellNotifyMask);
    XSync(xdo_->xdpy, False);
  }
  ~XDesktop() override { xdo_free(xdo_); }

  std::vector<WindowOnScreen> WindowsOf(pid_t process) override {
    std::vector<WindowOnScreen> windows;
    for (const unsigned long window : Numbers(root_, "_NET_CLIENT_LIST")) {
      // Not xdo_get_pid_window, which crashes when a window has just been closed.
      const std::vector<unsigned long> id = Numbers(window, "_NET_WM_PID");
      if (id == std::vector<unsigned long>{static_cast<unsigned long>(process)})
        windows.push_back(Describe(window));
    }
    return windows;
  }
  bool RoundTrip(unsigned long window, const std::function<bool()>& runs) override {
    const auto ping_program = [&] {
      ++pings_;
      Send(window, window, "WM_PROTOCOLS", {ping_, pings_, static_cast<long>(window)}, NoEventMask);
      return Answered(runs, [this] { return pong_ == pings_; });
    };
    const auto ask_manager = [&] {
      manager_answered_ = false;
      Send(root_, own_, "_NET_REQUEST_FRAME_EXTENTS", {},
           SubstructureNotifyMask | SubstructureRedirectMask);
      return Answered(runs, [this] { return manager_answered_; });
    };
    return ping_program() && ask_manager() && ping_program();
  }
  void Activate(unsigned long window) override { xdo_activate_window(xdo_, window); }
  void SetClipboard(std::string_view text) override {
    Output({"xclip", "-selection", "clipboard", "-i"}, text);
    // xclip goes to the background before it owns the selection.
    if (!Await([&] { return Clipboard() == text; })) {
      throw std::runtime_error("xclip does not offer the text");
    }
  }
  std::string Clipboard() override {
    return Output({"xclip", "-selection", "clipboard", "-t", "UTF8_STRING", "-o"});
  }
  int Bells() override {
    ReadEvents();
    return bells_;
  }

 private:
  std::vector<unsigned long> Numbers(Window window, const char* name) const {
    unsigned char* data = nullptr;
    long count = 0;
    xdo_get_window_property(xdo_, window, name, &data, &count, nullptr, nullptr);
    if (data == nullptr) return {};
    // Xlib returns each 32-bit number as a long.
    const auto* first = reinterpret_cast<unsigned long*>(data);
    std::vector<unsigned long> numbers(first, first + count);
    XFree(data);
    return numbers;
  }
  std::string Name(Window window) const {
    unsigned char* data = nullptr;
    int length = 0;
    int type = 0;
    xdo_get_window_name(xdo_, window, &data, &length, &type);
    if (data == nullptr) return "";
    std::string name(reinterpret_cast<char*>(data), static_cast<std::size_t>(length));
    XFree(data);
    return name;
  }
  WindowOnScreen Describe(Window window) const {
    WindowOnScreen shown;
    shown.id = window;
    XWindowAttributes attributes{};
    XGetWindowAttributes(xdo_->xdpy, window, &attributes);
    Window child = 0;
    XTranslateCoordinates(xdo_->xdpy, window, root_, 0, 0, &shown.x, &shown.y, &child);
    shown.width = attributes.width;
    shown.height = attributes.height;
    XGetTransientForHint(xdo_->xdpy, window, &shown.stays_with);
    const std::vector<unsigned long> frame = Numbers(window, "_NET_FRAME_EXTENTS");
    if (frame.size() == 4) {
      shown.frame_right = static_cast<int>(frame[1]);
      shown.frame_top = static_cast<int>(frame[2]);
    }
    shown.name = Name(window);
    if (shown.frame_top > 0) shown.title = shown.name;
    shown.active = Numbers(root_, "_NET_ACTIVE_WINDOW") == std::vector<unsigned long>{window};
    return shown;
  }

  void Send(Window to, Window about, const char* type, std::array<long, 3> data, long mask) const {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = about;
    event.xclient.message_type = XInternAtom(xdo_->xdpy, type, False);
    event.xclient.format = 32;
    for (std::size_t i = 0; i < data.size(); ++i) event.xclient.data.l[i] = data[i];
    XSendEvent(xdo_->xdpy, to, False, mask, &event);
  }
  // A window that was closed meanwhile never answers; the caller then asks another one.
  bool Answered(const std::function<bool()>& runs, const std::function<bool()>& has_come) {
    const auto has_come_or_ended = [&] {
      ReadEvents();
      return has_come() || !runs();
    };
    return Await(has_come_or_ended, std::chrono::seconds(1)) && has_come();
  }
  void ReadEvents() {
    XSync(xdo_->xdpy, False);
    while (XPending(xdo_->xdpy) > 0) {
      XEvent event;
      XNextEvent(xdo_->xdpy, &event);
      if (event.type == xkb_event_) {
        if (reinterpret_cast<XkbEvent&>(event).any.xkb_type == XkbBellNotify) ++bells_;
      } else if (event.type == ClientMessage && event.xclient.data.l[0] == ping_) {
        pong_ = event.xclient.data.l[1];
      } else if (event.type == PropertyNotify && event.xproperty.window == own_) {
        manager_answered_ = true;
      }
    }
  }

  xdo_t* const xdo_ = xdo_new(nullptr);
  Window root_ = 0;
  // A window that is never shown and receives the window manager's answers.
  Window own_ = 0;
  long ping_ = 0;
  int xkb_event_ = 0;
  int bells_ = 0;
  long pings_ = 0;
  long pong_ = 0;
  bool manager_answered_ = false;
};

}  // namespace

std::unique_ptr<Desktop> OpenXDesktop() { return std::make_unique<XDesktop>(); }

}  // namespace vamo
