// The whole program under any sequence of a user's gestures: what must hold after each of them.
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "displays/headless/user.h"
#include "displays/headless/window.h"
#include "gestures.h"
#include "ledger.h"
#include "shell/startup.h"
#include "target.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {
namespace {

// The display without pixels, with the menu bars where they are wanted. It keeps a list of all
// windows that there have been.
class UserDisplay : public HeadlessDisplay {
 public:
  UserDisplay(std::function<void(HeadlessUser&)> user, bool bars_live_in_windows,
              std::vector<WeakRef<Object>>& opened)
      : HeadlessDisplay(std::move(user)),
        bars_live_in_windows_(bars_live_in_windows),
        opened_(opened) {}

  bool MenuBarsLiveInWindows() const override { return bars_live_in_windows_; }
  std::unique_ptr<WindowView> OpenWindow(Window& window) override {
    opened_.emplace_back(Self(&window));
    return HeadlessDisplay::OpenWindow(window);
  }

 private:
  const bool bars_live_in_windows_;
  std::vector<WeakRef<Object>>& opened_;
};

// The control window, where there is one; it is not made for the question.
Ref<class ControlWnd> LiveControlWnd() {
  return Cast<class ControlWnd>(_GetImplicitWindow("ControlWnd.ControlWnd"));
}

void CheckWindows(const HeadlessDisplay& display, const std::vector<WeakRef<Object>>& opened) {
  const std::vector<Ref<Window>>& live = Runtime::Current().LiveWindows();
  for (const Ref<Window>& window : live) {
    Require(_GetImplicitWindow(window->Class()->name) == window, "one live window of a class");
  }
  const auto alive = std::count_if(opened.begin(), opened.end(), [](const WeakRef<Object>& window) {
    return bool(window.Value());
  });
  Require(display.Windows().size() == live.size(), "a live window is on the display, no other");
  Require(static_cast<std::size_t>(alive) == live.size(), "a closed window goes");

  const Ref<Window>& active = Runtime::Current().ActiveWindow();
  Require(!active || (active->IsLive() && active->Visible()), "the active window is visible");
  const Ref<Window> about = _GetImplicitWindow("AboutWnd.AboutWnd");
  Require(!active || active != LiveControlWnd() || !about || !about->Visible(),
          "the splash makes way for the window");
}

// What a display shows is the state of the objects: asked anew, each would show the same.
void CheckShown(const HeadlessDisplay& display) {
  for (HeadlessWindow* view : display.Windows()) {
    const Ref<RectControl>& focus = view->Window().Focus();
    Require(view->OnScreen() == view->Window().Visible(), "a visible window is on the screen");
    Require((view->Focus() == nullptr ? nullptr : &view->Focus()->Control()) ==
                (focus ? &*focus : nullptr),
            "the focus is shown");
    Require(!focus || focus->CanTakeFocus(), "the focus is on what can have it");
    for (const HeadlessControl* control : view->Controls()) {
      Require(control->Present() == control->Shown(),
              control->Control().Name() + " is shown as it is");
    }
  }
}

// Results are spoken as they show. A warning may have come and gone in the course of one gesture.
void CheckHeard(User& user) {
  for (const std::string& heard : user.Hears()) {
    const Ref<class ControlWnd> window = LiveControlWnd();
    Require(window && Runtime::Current().ActiveWindow() == window, "said in the active window");
    if (heard == "range of N (4 - 1,1000)") continue;
    Require(heard == "Student's t " + window->tText()->Text() + ", two-tailed p " +
                         window->pText()->Text() + ", 95% confidence interval of r " +
                         window->ciText()->Text(),
            "said as it shows: " + heard);
  }
}

// One run of the program from its start, until its user ends it or the input is at its end.
class Program {
 public:
  explicit Program(Input& input) : input_(input) {}

  void Run() {
    const bool bars_live_in_windows = input_.OneIn(2);
    const int status = Main(std::make_unique<UserDisplay>([this](HeadlessUser& user) { Use(user); },
                                                          bars_live_in_windows, objects_));
    ledger_ = nullptr;
    Require(status == 0, "the program ends well");
    Require(!Runtime::Exists(), "the run time ends");
    for (const WeakRef<Object>& object : objects_)
      Require(!object.Value(), "nothing outlives the end");
  }

 private:
  void Use(HeadlessUser& user) {
    Gestures gestures(input_, user);
    while (user.Display().Running() && !input_.AtEnd()) Watch(gestures, user);
    objects_.emplace_back(Runtime::Current().App());
    objects_.emplace_back(Menu());
  }

  void Watch(Gestures& gestures, HeadlessUser& user) {
    const WeakRef<Window> active_before(Runtime::Current().ActiveWindow());
    const bool ends_program = gestures.MakeNext();
    const HeadlessDisplay& display = user.Display();
    Require(display.Running() != ends_program, "who ends the program means it");
    if (!display.Running()) return;
    CheckWindows(display, objects_);
    CheckShown(display);
    CheckHeard(user);
    const Ref<class ControlWnd> window = LiveControlWnd();
    if (!window) return;
    if (!ledger_) {
      ledger_ = New<Ledger>();
      ledger_->Watch(*window);
    }
    const Ref<Window>& active = Runtime::Current().ActiveWindow();
    if (active == window && active_before.Value() != active) ledger_->TakeActivation();
    ledger_->Compare(*window);
  }

  Input& input_;
  // All windows and, at the end, what else must go.
  std::vector<WeakRef<Object>> objects_;
  Ref<Ledger> ledger_;
};

}  // namespace

void TryInput(Input input) {
  do {
    Program(input).Run();
  } while (!input.AtEnd());
}

}  // namespace vamo
