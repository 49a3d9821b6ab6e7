// Measures the page in Chromium against an empty page and one written by hand. Usage: page PAGE
// PLAIN_PAGE
#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "browser.h"

namespace {

using nlohmann::json;
using vamo::Chromium;

void Print(const std::string& name, double value) {
  std::printf("%s\t%.6g\n", name.c_str(), value);
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// When something is painted first, and when a text or a picture is, from the start of the
// navigation, in milliseconds.
std::pair<double, double> FirstPaints(Chromium& browser, const std::string& address) {
  browser.Open(address);
  const json times = browser.RunAsync(
      "const done = arguments[0];"
      "const look = () => {"
      "  const paints = ['first-paint', 'first-contentful-paint']"
      "    .map(name => performance.getEntriesByName(name)[0]);"
      "  if (paints[1]) done(paints.map(paint => paint.startTime)); else setTimeout(look, 5);"
      "};"
      "look();");
  return {times.at(0), times.at(1)};
}

// Opens the page, dismisses the splash and sets N to 30, which the page written by hand has
// already.
void OpenControls(Chromium& browser, const std::string& address) {
  browser.Open(address);
  browser.RunAsync("setTimeout(arguments[0], 300);");
  if (browser
          .Run("return !document.querySelector('[type=range]') || "
               "!!document.querySelector('.window');")
          .get<bool>()) {
    browser.PressKeys("", "x");
    browser.RunAsync("setTimeout(arguments[0], 300);");
    browser.PressKeys("", "\uE00430");
  }
}

// Moves the slider of r so many times, each time with the layout done; the time of one in
// microseconds.
double MoveSlider(Chromium& browser, int times) {
  return browser
      .Run(
          "const slider = document.querySelector('[type=range]');"
          "const start = performance.now();"
          "for (let i = 0; i < arguments[0]; ++i) {"
          "  slider.value = (i % 99 + 1) / 100;"
          "  slider.dispatchEvent(new InputEvent('input', {bubbles: true}));"
          "  document.body.getBoundingClientRect();"
          "}"
          "return (performance.now() - start) / arguments[0] * 1000;",
          json::array({times}))
      .get<double>();
}

// What the script has in use when all is collected, and the memory of the program, in KiB.
std::pair<double, double> Memory(Chromium& browser) {
  browser.DoOwn("HeapProfiler.collectGarbage", json::object());
  const double used = browser.DoOwn("Runtime.getHeapUsage", json::object()).at("usedSize");
  return {used / 1024, browser.Run("return HEAPU8.length;").get<double>() / 1024};
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: page PAGE PLAIN_PAGE\n");
    return 2;
  }
  const std::string page = std::string("file://") + argv[1];
  const std::string plain = std::string("file://") + argv[2];
  Chromium browser;
  std::vector<double> paints;
  std::vector<double> splashes;
  std::vector<double> empty_paints;
  for (int i = 0; i < 31; ++i) {
    const auto [ground, splash] = FirstPaints(browser, page);
    paints.push_back(ground);
    splashes.push_back(splash);
    empty_paints.push_back(FirstPaints(browser, "data:text/html,<p>empty").first);
  }
  Print("paint_page", Median(paints));
  Print("paint_splash", Median(splashes));
  Print("paint_empty", Median(empty_paints));
  std::vector<double> events;
  std::vector<double> plain_events;
  for (int i = 0; i < 5; ++i) {
    OpenControls(browser, page);
    MoveSlider(browser, 500);
    events.push_back(MoveSlider(browser, 2000));
    OpenControls(browser, plain);
    MoveSlider(browser, 500);
    plain_events.push_back(MoveSlider(browser, 2000));
  }
  Print("slider_page", Median(events));
  Print("slider_plain_page", Median(plain_events));
  OpenControls(browser, page);
  int moved = 0;
  for (const auto& [times, name] : {std::pair{1000, "thousand"},
                                    {100'000, "hundred_thousand"},
                                    {200'000, "two_hundred_thousand"}}) {
    // At one go, since what the driver has run once stays in the browser.
    MoveSlider(browser, times - std::exchange(moved, times));
    const auto [heap, memory] = Memory(browser);
    Print(std::string("page_heap_") + name, heap);
    Print(std::string("page_memory_") + name, memory);
  }
}
