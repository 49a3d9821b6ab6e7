#include "x_desktop.h"

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

extern "C" {
#include <xdo.h>
}

#include <array>
#include <chrono>
#include <stdexcept>

#include "child.h"

namespace vamo {
namespace {

// A window may be closed at any time between two requests.
int IgnoreError(Display* /*display*/, XErrorEvent* /*error*/) { return 0; }

std::vector<std::string> Xclip(const std::string& selection, const std::string& direction) {
  return {"xclip", "-selection", selection, "-t", "UTF8_STRING", direction};
}

}  // namespace

struct XDesktop::Parts {
  xdo_t* xdo = xdo_new(nullptr);
  Display* display = xdo == nullptr ? nullptr : xdo->xdpy;
  Window root = 0;
  // A window that is never shown and receives the window manager's answers.
  Window own = 0;
  int xkb_event = 0;
  int bells = 0;
  long pings = 0;
  long pong = 0;
  bool manager_answered = false;

  Atom AtomOf(const char* name) const { return XInternAtom(display, name, False); }

  std::vector<unsigned long> Numbers(Window window, const char* name) const {
    unsigned char* data = nullptr;
    long count = 0;
    if (xdo_get_window_property(xdo, window, name, &data, &count, nullptr, nullptr) !=
            XDO_SUCCESS ||
        data == nullptr) {
      return {};
    }
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
    xdo_get_window_name(xdo, window, &data, &length, &type);
    if (data == nullptr) return "";
    std::string name(reinterpret_cast<char*>(data), static_cast<std::size_t>(length));
    XFree(data);
    return name;
  }

  void Send(Window to, Window about, const char* type, std::array<long, 4> data, long mask) const {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = about;
    event.xclient.message_type = AtomOf(type);
    event.xclient.format = 32;
    for (std::size_t i = 0; i < data.size(); ++i) event.xclient.data.l[i] = data[i];
    XSendEvent(display, to, False, mask, &event);
  }

  void ReadEvents() {
    XSync(display, False);
    while (XPending(display) > 0) {
      XEvent event;
      XNextEvent(display, &event);
      if (event.type == xkb_event) {
        if (reinterpret_cast<XkbEvent&>(event).any.xkb_type == XkbBellNotify) ++bells;
      } else if (event.type == ClientMessage && event.xclient.data.l[0] == Ping()) {
        pong = event.xclient.data.l[1];
      } else if (event.type == PropertyNotify && event.xproperty.window == own) {
        manager_answered = true;
      }
    }
  }
  long Ping() const { return static_cast<long>(AtomOf("_NET_WM_PING")); }

  WindowOnScreen Describe(Window window) const {
    WindowOnScreen shown;
    shown.id = window;
    XWindowAttributes attributes{};
    XGetWindowAttributes(display, window, &attributes);
    Window child = 0;
    XTranslateCoordinates(display, window, root, 0, 0, &shown.x, &shown.y, &child);
    shown.width = attributes.width;
    shown.height = attributes.height;
    XGetTransientForHint(display, window, &shown.stays_with);
    const std::vector<unsigned long> frame = Numbers(window, "_NET_FRAME_EXTENTS");
    if (frame.size() == 4) {
      shown.frame_right = static_cast<int>(frame[1]);
      shown.frame_top = static_cast<int>(frame[2]);
    }
    shown.name = Name(window);
    if (shown.frame_top > 0) shown.title = shown.name;
    const std::vector<unsigned long> active = Numbers(root, "_NET_ACTIVE_WINDOW");
    shown.active = !active.empty() && active[0] == window;
    return shown;
  }
};

XDesktop::XDesktop() : parts_(std::make_unique<Parts>()) {
  XSetErrorHandler(IgnoreError);
  if (parts_->display == nullptr) throw std::runtime_error("there is no X server");
  parts_->root = DefaultRootWindow(parts_->display);
  // A program sends its answer to a ping to the root window.
  XSelectInput(parts_->display, parts_->root, StructureNotifyMask | SubstructureNotifyMask);
  parts_->own = XCreateSimpleWindow(parts_->display, parts_->root, 0, 0, 1, 1, 0, 0, 0);
  XSelectInput(parts_->display, parts_->own, PropertyChangeMask);
  int opcode = 0;
  int error = 0;
  int major = XkbMajorVersion;
  int minor = XkbMinorVersion;
  if (!XkbQueryExtension(parts_->display, &opcode, &parts_->xkb_event, &error, &major, &minor)) {
    throw std::runtime_error("the X server does not report bells");
  }
  XkbSelectEvents(parts_->display, XkbUseCoreKbd, XkbBellNotifyMask, XkbBellNotifyMask);
  XSync(parts_->display, False);
}

XDesktop::~XDesktop() { xdo_free(parts_->xdo); }

std::vector<WindowOnScreen> XDesktop::WindowsOf(pid_t process) {
  std::vector<WindowOnScreen> windows;
  for (const unsigned long window : parts_->Numbers(parts_->root, "_NET_CLIENT_LIST")) {
    if (xdo_get_pid_window(parts_->xdo, window) != process) continue;
    windows.push_back(parts_->Describe(window));
  }
  return windows;
}

bool XDesktop::RoundTrip(unsigned long window, const std::function<bool()>& runs) {
  Parts& x = *parts_;
  const auto answered = [&](const auto& has_come) {
    // A window that was closed meanwhile never answers; the caller then asks another one.
    Await(
        [&] {
          x.ReadEvents();
          return has_come() || !runs();
        },
        std::chrono::seconds(1));
    return has_come();
  };
  const auto ping_program = [&] {
    ++x.pings;
    x.Send(window, window, "WM_PROTOCOLS", {x.Ping(), x.pings, static_cast<long>(window), 0},
           NoEventMask);
    return answered([&] { return x.pong == x.pings; });
  };
  const auto ask_manager = [&] {
    x.manager_answered = false;
    x.Send(x.root, x.own, "_NET_REQUEST_FRAME_EXTENTS", {},
           SubstructureNotifyMask | SubstructureRedirectMask);
    return answered([&] { return x.manager_answered; });
  };
  return ping_program() && ask_manager() && ping_program();
}

void XDesktop::Activate(unsigned long window) {
  xdo_activate_window(parts_->xdo, window);
  XSync(parts_->display, False);
}

void XDesktop::Move(unsigned long window, int x, int y) {
  xdo_move_window(parts_->xdo, window, x, y);
  XSync(parts_->display, False);
}

void XDesktop::Offer(const std::string& selection, std::string_view text) {
  Output(Xclip(selection, "-i"), text);
  // xclip goes to the background before it owns the selection.
  if (!Await([&] { return Offered(selection) == text; })) {
    throw std::runtime_error("xclip does not offer the text");
  }
}

std::string XDesktop::Offered(const std::string& selection) {
  return Output(Xclip(selection, "-o"));
}

int XDesktop::Bells() {
  parts_->ReadEvents();
  return parts_->bells;
}

int XDesktop::Width() const {
  return DisplayWidth(parts_->display, DefaultScreen(parts_->display));
}

int XDesktop::Height() const {
  return DisplayHeight(parts_->display, DefaultScreen(parts_->display));
}

}  // namespace vamo
