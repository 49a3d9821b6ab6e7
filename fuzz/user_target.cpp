// Runs the whole program under a sequence of a user's gestures and checks after each of them what
// must always hold.
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controlwnd/control_wnd.h"
#include "displays/headless/user.h"
#include "displays/headless/window.h"
#include "gestures.h"
#include "input.h"
#include "shell/startup.h"
#include "stats/interval.h"
#include "stats/significance.h"
#include "toolkit/conversions.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/text/text_edit.h"
#include "toolkit/utf8.h"

namespace vamo {
namespace {

// A headless display whose menu bars are part of windows or not, as chosen. It records every window
// that is created.
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

// The control window if it exists, else nil. This does not create it.
Ref<class ControlWnd> LiveControlWnd() {
  return Cast<class ControlWnd>(_GetImplicitWindow("ControlWnd.ControlWnd"));
}

void CheckWindows(HeadlessDisplay& display, const std::vector<WeakRef<Object>>& opened) {
  const std::vector<Ref<Window>>& live = Runtime::Current().LiveWindows();
  for (const Ref<Window>& window : live) {
    Require(_GetImplicitWindow(window->Class()->name) == window, "one live window of a class");
  }
  const auto alive = std::count_if(opened.begin(), opened.end(), [](const WeakRef<Object>& window) {
    return bool(window.Value());
  });
  Require(display.Order().Views().size() == live.size(),
          "a live window is on the display, no other");
  Require(static_cast<std::size_t>(alive) == live.size(), "a closed window is destroyed");

  const Ref<Window>& active = Runtime::Current().ActiveWindow();
  Require(!active || (active->IsLive() && active->Visible()), "the active window is visible");
  const Ref<Window> about = _GetImplicitWindow("AboutWnd.AboutWnd");
  Require(!active || active != LiveControlWnd() || !about || !about->Visible(),
          "the splash is hidden while the control window is active");
}

void CheckText(const TextEdit& edit) {
  const std::string& text = edit.Text();
  const auto [anchor, caret] = edit.Selection();
  Require(text == ValidUtf8(text), "valid UTF-8");
  Require(anchor == CharacterBoundary(text, anchor) && caret == CharacterBoundary(text, caret),
          "the selection lies between characters");
}

// The display must show the present state of the objects: reading it again must change nothing.
void CheckShown(HeadlessDisplay& display) {
  for (HeadlessWindow* view : display.Order().Views()) {
    const Ref<RectControl>& focus = view->Shown().Focus();
    Require(view->OnScreen() == view->Shown().Visible(), "a visible window is on the screen");
    Require((view->Focus() == nullptr ? nullptr : &view->Focus()->Control()) ==
                (focus ? &*focus : nullptr),
            "the focus is shown");
    Require(view->PresentPane() == view->ShownPane(), "the shown pane is up to date");
    Require(!focus || focus->CanTakeFocus(), "the focused control can have the focus");
    for (const HeadlessControl* control : view->Controls()) {
      Require(control->Present() == control->Shown(),
              control->Control().Name() + " is shown as it is");
      if (const auto* edit = dynamic_cast<const TextEdit*>(&control->Control())) CheckText(*edit);
    }
  }
}

// Announced results must be those on the screen. A warning may have appeared and disappeared within
// one gesture.
void CheckHeard(User& user) {
  for (const std::string& heard : user.Hears()) {
    const Ref<class ControlWnd> window = LiveControlWnd();
    // Other windows can open the chart too.
    if (heard.rfind("Chart ", 0) == 0) continue;
    Require(window && Runtime::Current().ActiveWindow() == window,
            "announced in the active window");
    const std::string results = "Student's t " + window->tText()->Text() + ", two-tailed p " +
                                window->pText()->Text() + ", 95% confidence interval of r " +
                                window->ciText()->Text();
    const bool warned = heard.ends_with("range of N (4 - 1,1000)");
    Require(warned == window->nText()->Visible(), "warned as it shows: " + heard);
    Require(heard.starts_with(results) || window->tText()->Text().empty(),
            "said as it shows: " + heard);
  }
}

std::string Results(double r, std::int64_t n) {
  if (n > 1000) return " |  | ";
  const double t = ComputeT(r, n);
  const Interval interval = ComputeInterval(r, n);
  return Format(t, "#####.00") + " | " + Format(ComputeP(t, n), ".00000") + " | " +
         Format(interval.lo, "+.000") + " to " + Format(interval.hi, "+.000");
}

// Checks from gesture to gesture in which order the control window applies what the user sets.
class Sequence {
 public:
  // `edited`: the gesture that activated the window may also have changed something in it.
  void Check(class ControlWnd& window, bool activated, bool edited) {
    const std::string r_text = window.rEdit()->Text();
    const std::string n_text = window.nEdit()->Text();
    const std::string results =
        window.tText()->Text() + " | " + window.pText()->Text() + " | " + window.ciText()->Text();
    const double r = Val(r_text);
    const std::int64_t n = Truncate(Val(n_text));
    Require(r == std::clamp(r, 0.0, 0.99999), "the text of r is in its limits");
    const std::string& z = window.zFld()->Text();
    Require(z == Format(FisherZ(r), "##0.000") || r_text + z == "", "z is that of the text of r");
    Require(window.nText()->Visible() == (n < 4 || n > 1000) || n_text.empty(), "the warning");
    const bool same = r_text == r_text_ && n_text == n_text_;
    if (activated) {
      Require(edited || (window.r == 0 && window.t == 0 && window.N == 4),
              "an activation resets the model");
      r_ = 0;
      n_ = 4;
    }
    // An edit that leaves the text as it was sets r too.
    Require(window.r == r || (r_text == r_text_ && window.r == r_), "r is set by its text");
    Require(window.N == n || (n_text == n_text_ && window.N == n_), "N is set by its text");
    Require(results == Results(window.r, n) || (same && results == results_),
            "results are those of r and of the text of N");
    r_text_ = r_text;
    n_text_ = n_text;
    results_ = results;
    r_ = window.r;
    n_ = window.N;
  }

 private:
  std::string r_text_, n_text_, results_ = " |  | ";
  double r_ = 0;
  std::int64_t n_ = 0;
};

// One run of the program, until the user ends it or the input is used up.
class Program {
 public:
  explicit Program(Input& input) : input_(input) {}

  void Run() {
    const bool bars_live_in_windows = input_.OneIn(2);
    const int status = Main(std::make_unique<UserDisplay>([this](HeadlessUser& user) { Use(user); },
                                                          bars_live_in_windows, objects_));
    Require(status == 0, "the program ends with status 0");
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
    HeadlessDisplay& display = user.Display();
    Require(display.Running() != ends_program,
            "the program ends when a gesture is meant to end it, and only then");
    if (!display.Running()) return;
    CheckWindows(display, objects_);
    CheckShown(display);
    CheckHeard(user);
    const Ref<class ControlWnd> window = LiveControlWnd();
    if (!window) return;
    const Ref<Window>& active = Runtime::Current().ActiveWindow();
    sequence_.Check(*window, active == window && active_before.Value() != active,
                    gestures.Edited());
  }

  Input& input_;
  // All windows and, at the end, the other objects that must be destroyed.
  std::vector<WeakRef<Object>> objects_;
  Sequence sequence_;
};

}  // namespace
}  // namespace vamo

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vamo::Input input({reinterpret_cast<const char*>(data), size});
  do {
    vamo::Program(input).Run();
  } while (!input.AtEnd());
  return 0;
}
