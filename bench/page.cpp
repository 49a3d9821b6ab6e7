// Measures the page in Chromium against an empty page and a page written by hand.
// Usage: page PAGE PLAIN_PAGE
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "browser.h"
#include "median.h"

namespace {

using nlohmann::json;
using vamo::Chromium;
using vamo::PrintMedian;

// The times of the first paint and of the first paint of a text or picture, in milliseconds from
// the start of the navigation.
std::pair<double, double> FirstPaints(Chromium& browser, const std::string& address) {
  browser.Open(address);
  const json times = browser.Run(R"(
      return new Promise(done => {
        const look = () => {
          const paints = ['first-paint', 'first-contentful-paint']
            .map(name => performance.getEntriesByName(name)[0]);
          if (paints[1]) done(paints.map(paint => paint.startTime)); else setTimeout(look, 5);
        };
        look();
      });)");
  return {times.at(0), times.at(1)};
}

// Opens the page, dismisses the splash and sets N to 30. The page written by hand has no splash,
// and its N is 30.
void OpenControls(Chromium& browser, const std::string& address) {
  browser.Open(address);
  browser.Wait(300);
  if (!browser.Run("return !!document.querySelector('.window');").get<bool>()) return;
  browser.PressKeys("", "x");
  browser.Wait(300);
  browser.PressKeys("", "\uE00430");
}

// Moves the slider of r `times` times, with a layout after each move. Returns the time of one move
// in microseconds.
double MoveSlider(Chromium& browser, int times) {
  return browser.Run(R"(
      const slider = document.querySelector('[type=range]');
      const start = performance.now();
      for (let i = 0; i < arguments[0]; ++i) {
        slider.value = (i % 99 + 1) / 100;
        slider.dispatchEvent(new InputEvent('input', {bubbles: true}));
        document.body.getBoundingClientRect();
      }
      return (performance.now() - start) / arguments[0] * 1000;)",
                     json::array({times}));
}

double TimeOfAMove(Chromium& browser, const std::string& address, bool with_chart = false) {
  OpenControls(browser, address);
  if (with_chart) browser.PressKeys("", "\uE039");
  MoveSlider(browser, 500);
  return MoveSlider(browser, 2000);
}

// Prints the browser's heap after a garbage collection and the memory of the program, in KiB.
void PrintMemory(Chromium& browser, const std::string& moves) {
  browser.DoOwn("HeapProfiler.collectGarbage", json::object());
  const double used = browser.DoOwn("Runtime.getHeapUsage", json::object()).at("usedSize");
  PrintMedian("page_heap_" + moves, {used / 1024});
  PrintMedian("page_memory_" + moves, {browser.Run("return HEAPU8.length;").get<double>() / 1024});
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: page PAGE PLAIN_PAGE EMPTY_PAGE\n");
    return 2;
  }
  const std::string page = std::string("file://") + argv[1];
  const std::string plain = std::string("file://") + argv[2];
  const std::string empty = std::string("file://") + argv[3];
  Chromium browser;
  std::vector<double> paints, splashes, empty_paints, events, chart_events, plain_events;
  for (int i = 0; i < 31; ++i) {
    const auto [ground, splash] = FirstPaints(browser, page);
    paints.push_back(ground);
    splashes.push_back(splash);
    empty_paints.push_back(FirstPaints(browser, empty).first);
  }
  for (int i = 0; i < 5; ++i) {
    events.push_back(TimeOfAMove(browser, page));
    chart_events.push_back(TimeOfAMove(browser, page, /*with_chart=*/true));
    plain_events.push_back(TimeOfAMove(browser, plain));
  }
  PrintMedian("paint_page", paints);
  PrintMedian("paint_splash", splashes);
  PrintMedian("paint_empty", empty_paints);
  PrintMedian("slider_page", events);
  PrintMedian("slider_chart", chart_events);
  PrintMedian("slider_plain_page", plain_events);
  OpenControls(browser, page);
  browser.PressKeys("", "\uE039");
  MoveSlider(browser, 5'000);
  PrintMemory(browser, "five_thousand");
  // In a single script, because each script that the driver runs leaves something in the browser.
  MoveSlider(browser, 20'000);
  PrintMemory(browser, "twenty_five_thousand");
}
