// The program: Vamo in a browser page. The browser owns the event loop, so the process outlives
// main, and it can be started again on the same page.
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "displays/web/display.h"
#include "shell/link.h"
#include "shell/startup.h"

namespace {

std::unique_ptr<vamo::Process> process;

// Typing must wait until the control window is active.
void OpenLink(std::string_view link) {
  std::vector<vamo::LinkedValue> values = vamo::ParseLink(link);
  const bool with_chart = vamo::LinksToChart(link);
  if (values.empty() && !with_chart) return;
  vamo::page::Post([values = std::move(values), with_chart] {
    vamo::EndSplash();
    vamo::page::Post([values, with_chart] {
      vamo::TypeLinkedValues(values);
      if (with_chart) vamo::OpenChart();
    });
  });
}

void Start() {
  const auto ended = [] {
    const int status = process->Finish();
    process = nullptr;
    vamo::ShowEnd(status, Start);
  };
  process = std::make_unique<vamo::Process>(vamo::MakeWebDisplay(ended, OpenLink));
}

void StartWithLink() {
  Start();
  vamo::page::TellLink();
}

}  // namespace

// Starts in an event, because the page treats an error in an event as the end of the program.
int main() { vamo::page::Post(StartWithLink); }
