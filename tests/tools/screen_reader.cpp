// A screen reader for the command line: prints and works what assistive technology sees of a
// program.
#include <atspi/atspi.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace vamo {
namespace {

constexpr char kUsage[] =
    "screen_reader APP list                       all that is showing, a line each: role, name,\n"
    "                                             description, text, x y width height, states\n"
    "screen_reader APP wait SECONDS               until APP shows a window\n"
    "screen_reader APP get ROLE NAME WHAT         WHAT: text, extents, states or, of a slider, "
    "range\n"
    "screen_reader APP described DESCRIPTION WHAT the same, found by its description\n"
    "screen_reader APP press NAME                 the first action of a button or menu item\n"
    "screen_reader APP set ROLE NAME VALUE        the text of a field, the value of a slider\n";

struct Unref {
  void operator()(gpointer object) const { g_object_unref(object); }
};
struct Free {
  void operator()(gpointer memory) const { g_free(memory); }
};
template <typename T>
using Ref = std::unique_ptr<T, Unref>;
template <typename T>
using Memory = std::unique_ptr<T, Free>;

// Calls an AT-SPI function that takes its error as the last argument. Throws what the error says:
// most often that the element has gone, or that the program does not answer.
template <typename Function, typename... Args>
auto Call(Function function, Args... args) {
  GError* error = nullptr;
  auto result = function(args..., &error);
  if (error != nullptr) {
    const std::string message = error->message;
    g_error_free(error);
    throw std::runtime_error(message);
  }
  return result;
}

template <typename Function, typename... Args>
std::string CallForText(Function function, Args... args) {
  const Memory<gchar> text(Call(function, args...));
  return text ? text.get() : "";
}

std::string NumberText(double number) {
  std::ostringstream text;
  text << number;
  return text.str();
}

// One accessible element of the program's tree. It holds no copy of what it shows: each function
// asks the program.
class Element {
 public:
  explicit Element(AtspiAccessible* owned) : accessible_(owned) {}

  std::string Role() const { return CallForText(atspi_accessible_get_role_name, Get()); }
  std::string Name() const { return CallForText(atspi_accessible_get_name, Get()); }
  std::string Description() const { return CallForText(atspi_accessible_get_description, Get()); }

  std::vector<Element> Children() const {
    std::vector<Element> children;
    const int count = Call(atspi_accessible_get_child_count, Get());
    for (int i = 0; i < count; ++i) {
      if (AtspiAccessible* child = Call(atspi_accessible_get_child_at_index, Get(), i)) {
        children.emplace_back(child);
      }
    }
    return children;
  }

  bool HasState(AtspiStateType state) const {
    const Ref<AtspiStateSet> states(atspi_accessible_get_state_set(Get()));
    return states && atspi_state_set_contains(states.get(), state);
  }

  // What is read out as the content: a field's text, a slider's value, else the name.
  std::string Text() const {
    if (const Ref<AtspiText> text{atspi_accessible_get_text_iface(Get())}) {
      return CallForText(atspi_text_get_text, text.get(), 0, -1);
    }
    if (const Ref<AtspiValue> value{atspi_accessible_get_value_iface(Get())}) {
      return NumberText(Call(atspi_value_get_current_value, value.get()));
    }
    return Name();
  }

  // The least and the greatest value, with a blank between.
  std::string Range() const {
    const Ref<AtspiValue> value(atspi_accessible_get_value_iface(Get()));
    if (!value) throw std::runtime_error("it has no value");
    return NumberText(Call(atspi_value_get_minimum_value, value.get())) + ' ' +
           NumberText(Call(atspi_value_get_maximum_value, value.get()));
  }

  // Left, top, width and height in pixels of the screen.
  std::string Extents() const {
    const Ref<AtspiComponent> component(atspi_accessible_get_component_iface(Get()));
    if (!component) throw std::runtime_error("it has no place on the screen");
    const Memory<AtspiRect> rect(
        Call(atspi_component_get_extents, component.get(), ATSPI_COORD_TYPE_SCREEN));
    std::ostringstream text;
    text << rect->x << ' ' << rect->y << ' ' << rect->width << ' ' << rect->height;
    return text.str();
  }

  std::string States() const {
    constexpr std::array<std::pair<AtspiStateType, const char*>, 7> kNames{{
        {ATSPI_STATE_ACTIVE, "active"},
        {ATSPI_STATE_FOCUSED, "focused"},
        {ATSPI_STATE_FOCUSABLE, "focusable"},
        {ATSPI_STATE_ENABLED, "enabled"},
        {ATSPI_STATE_EDITABLE, "editable"},
        {ATSPI_STATE_READ_ONLY, "read-only"},
        {ATSPI_STATE_IS_DEFAULT, "default"},
    }};
    std::string text;
    for (const auto& [state, name] : kNames) {
      if (!HasState(state)) continue;
      if (!text.empty()) text += ' ';
      text += name;
    }
    return text;
  }

  void Press() const {
    const Ref<AtspiAction> action(atspi_accessible_get_action_iface(Get()));
    if (!action || Call(atspi_action_get_n_actions, action.get()) == 0) {
      throw std::runtime_error("it has no action");
    }
    if (!Call(atspi_action_do_action, action.get(), 0)) {
      throw std::runtime_error("it refuses the action");
    }
  }

  void Set(const std::string& content) const {
    if (const Ref<AtspiEditableText> text{atspi_accessible_get_editable_text_iface(Get())}) {
      if (Call(atspi_editable_text_set_text_contents, text.get(), content.c_str())) return;
    } else if (const Ref<AtspiValue> value{atspi_accessible_get_value_iface(Get())}) {
      if (Call(atspi_value_set_current_value, value.get(), std::stod(content))) return;
    }
    throw std::runtime_error("it takes no content");
  }

 private:
  AtspiAccessible* Get() const { return accessible_.get(); }

  Ref<AtspiAccessible> accessible_;
};

std::string Content(const Element& element, const std::string& what) {
  if (what == "text") return element.Text();
  if (what == "extents") return element.Extents();
  if (what == "states") return element.States();
  if (what == "range") return element.Range();
  throw std::invalid_argument("no such content: " + what);
}

std::optional<Element> FindApplication(const std::string& name) {
  AtspiAccessible* desktop = atspi_get_desktop(0);
  if (desktop == nullptr) throw std::runtime_error("there is no accessibility bus");
  // The library keeps what it has read until its main loop brings news; this program runs none.
  atspi_accessible_clear_cache(desktop);
  for (Element& application : Element(desktop).Children()) {
    if (g_ascii_strcasecmp(application.Name().c_str(), name.c_str()) == 0) {
      return std::move(application);
    }
  }
  return std::nullopt;
}

// Goes through what is showing below `parent`, depth first, until `visit` returns true.
bool Walk(const Element& parent, const std::function<bool(const Element&)>& visit) {
  for (const Element& child : parent.Children()) {
    if (!child.HasState(ATSPI_STATE_SHOWING)) continue;
    if (visit(child) || Walk(child, visit)) return true;
  }
  return false;
}

// Does `work` with the first showing element for which `wanted` is true; throws if there is none.
void WithElement(const Element& application, const std::string& what_it_is,
                 const std::function<bool(const Element&)>& wanted,
                 const std::function<void(const Element&)>& work) {
  const bool found = Walk(application, [&](const Element& element) {
    if (!wanted(element)) return false;
    work(element);
    return true;
  });
  if (!found) throw std::runtime_error("nothing showing is " + what_it_is);
}

void List(const Element& application) {
  Walk(application, [](const Element& element) {
    std::cout << element.Role() << '\t' << element.Name() << '\t' << element.Description() << '\t'
              << element.Text() << '\t' << element.Extents() << '\t' << element.States() << '\n';
    return false;
  });
}

bool ShowsWindow(const std::string& name) {
  try {
    const std::optional<Element> application = FindApplication(name);
    return application && Walk(*application, [](const Element&) { return true; });
  } catch (const std::runtime_error&) {
    return false;  // A program that is just starting or ending answers only in part.
  }
}

void Wait(const std::string& name, const std::string& seconds) {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::duration<double>(std::stod(seconds));
  while (!ShowsWindow(name)) {
    if (Clock::now() >= end) {
      throw std::runtime_error(name + " shows no window after " + seconds + " s");
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
}

// Does the command; false if it is none.
bool Run(const std::string& name, const std::vector<std::string>& command) {
  const std::string& verb = command.front();
  const std::size_t size = command.size();
  if (verb == "wait" && size == 2) {
    Wait(name, command[1]);
    return true;
  }
  const std::optional<Element> application = FindApplication(name);
  if (!application) throw std::runtime_error(name + " is not running");
  const auto print = [&](const Element& element) {
    std::cout << Content(element, command.back()) << '\n';
  };
  const auto has_role_and_name = [&](const Element& element) {
    return element.Name() == command[2] && element.Role() == command[1];
  };
  if (verb == "list" && size == 1) {
    List(*application);
  } else if (verb == "get" && size == 4) {
    WithElement(*application, command[1] + ' ' + command[2], has_role_and_name, print);
  } else if (verb == "set" && size == 4) {
    WithElement(*application, command[1] + ' ' + command[2], has_role_and_name,
                [&](const Element& element) { element.Set(command[3]); });
  } else if (verb == "described" && size == 3) {
    const auto described = [&](const Element& element) {
      return element.Description() == command[1];
    };
    WithElement(*application, "described " + command[1], described, print);
  } else if (verb == "press" && size == 2) {
    const auto named = [&](const Element& element) { return element.Name() == command[1]; };
    WithElement(*application, command[1], named, [](const Element& element) { element.Press(); });
  } else {
    return false;
  }
  return true;
}

}  // namespace
}  // namespace vamo

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (arguments.size() < 2) {
    std::cerr << vamo::kUsage;
    return 2;
  }
  try {
    atspi_init();
    if (vamo::Run(arguments[0], {arguments.begin() + 1, arguments.end()})) return EXIT_SUCCESS;
    std::cerr << vamo::kUsage;
    return 2;
  } catch (const std::exception& e) {
    std::cerr << "screen_reader: " << e.what() << '\n';
    return EXIT_FAILURE;
  }
}
