// The program: Vamo on the display in a browser's page. The browser has the event loop, so the
// process goes on when main has returned, and may be started again on the same page.
#include <memory>

#include "displays/web/display.h"
#include "shell/startup.h"

namespace {

std::unique_ptr<vamo::Process> process;

void Start() {
  process = std::make_unique<vamo::Process>(vamo::MakeWebDisplay([] {
    const int status = process->Finish();
    process = nullptr;
    vamo::ShowEnd(status, Start);
  }));
}

}  // namespace

// As an event of its own, whose errors the page takes for the end.
int main() { vamo::page::Post(Start); }
