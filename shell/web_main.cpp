// The program: Vamo on the display in a browser's page. The browser has the event loop, so the
// process goes on when main has returned, and may be started again on the same page.
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "displays/web/display.h"
#include "shell/link.h"
#include "shell/startup.h"

namespace {

std::unique_ptr<vamo::Process> process;

// What is typed has to wait for the window behind the splash.
void Follow(std::string_view link) {
  std::vector<vamo::LinkedValue> values = vamo::ParseLink(link);
  if (values.empty()) return;
  vamo::page::Post([values = std::move(values)] {
    vamo::EndSplash();
    vamo::page::Post([values] { vamo::TypeLinkedValues(values); });
  });
}

void Start() {
  const auto ended = [] {
    const int status = process->Finish();
    process = nullptr;
    vamo::ShowEnd(status, Start);
  };
  process = std::make_unique<vamo::Process>(vamo::MakeWebDisplay(ended, Follow));
}

void StartWithLink() {
  Start();
  vamo::page::TellLink();
}

}  // namespace

// As an event of its own, whose errors the page takes for the end.
int main() { vamo::page::Post(StartWithLink); }
