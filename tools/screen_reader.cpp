// A screen reader for the command line: prints what assistive technology sees of a program.
#include <chrono>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "at_spi.h"

namespace vamo {
namespace {

constexpr char kUsage[] =
    "screen_reader APP list                       all that is showing, a line each: role, name,\n"
    "                                             description, text, x y width height, states\n"
    "screen_reader APP wait SECONDS               until APP shows a window\n"
    "screen_reader APP get ROLE NAME WHAT         WHAT: text, extents or, of a slider, steps\n"
    "screen_reader APP described DESCRIPTION WHAT the same, found by its description\n";

// Left, top, width and height.
std::string Extents(const Element& element) {
  const Element::Place place = element.Extents();
  std::ostringstream text;
  text << place.x << ' ' << place.y << ' ' << place.width << ' ' << place.height;
  return text.str();
}

// The present, the least and the greatest value, counted in the slider's steps.
std::string Steps(const Element& element) {
  std::ostringstream text;
  text << element.InSteps(element.Value()) << ' ' << element.InSteps(element.LeastValue()) << ' '
       << element.InSteps(element.GreatestValue());
  return text.str();
}

std::string Content(const Element& element, const std::string& what) {
  if (what == "text") return element.Text();
  if (what == "extents") return Extents(element);
  if (what == "steps") return Steps(element);
  throw std::invalid_argument("no such content: " + what);
}

std::optional<Element> FindNamed(const std::string& name) {
  return FindApplication([&](const Element& application) {
    return g_ascii_strcasecmp(application.Name().c_str(), name.c_str()) == 0;
  });
}

// Prints what the first showing element holds for which `wanted` is true; throws if there is none.
void Print(const Element& application, const std::string& what_it_is, const std::string& what,
           const std::function<bool(const Element&)>& wanted) {
  const bool found = Walk(application, [&](const Element& element) {
    if (!wanted(element)) return false;
    std::cout << Content(element, what) << '\n';
    return true;
  });
  if (!found) throw std::runtime_error("nothing showing is " + what_it_is);
}

void List(const Element& application) {
  Walk(application, [](const Element& element) {
    std::cout << element.RoleName() << '\t' << element.Name() << '\t' << element.Description()
              << '\t' << element.Text() << '\t' << Extents(element) << '\t' << element.States()
              << '\n';
    return false;
  });
}

bool ShowsWindow(const std::string& name) {
  try {
    const std::optional<Element> application = FindNamed(name);
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
  const std::optional<Element> application = FindNamed(name);
  if (!application) throw std::runtime_error(name + " is not running");
  if (verb == "list" && size == 1) {
    List(*application);
  } else if (verb == "get" && size == 4) {
    Print(*application, command[1] + ' ' + command[2], command[3], [&](const Element& element) {
      return element.Name() == command[2] && element.RoleName() == command[1];
    });
  } else if (verb == "described" && size == 3) {
    Print(*application, "described " + command[1], command[2],
          [&](const Element& element) { return element.Description() == command[1]; });
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
