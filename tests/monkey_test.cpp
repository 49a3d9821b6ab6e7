// A monkey at the program: random things that a user can do, and what must hold after each of them.
//
// Other runs than the short one of every build: VAMO_MONKEY_SEED names a seed, VAMO_MONKEY_EVENTS
// the number of things to do with each seed. A failing run says how to replay it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "monkey_display.h"
#include "monkey_hand.h"
#include "monkey_ledger.h"
#include "monkey_random.h"
#include "shell/startup.h"

namespace vamo {

namespace {

bool ShowTheSame(const ShownControl& left, const ShownControl& right) {
  return left.role == right.role && left.name == right.name &&
         left.description == right.description && left.labelled_by == right.labelled_by &&
         left.text == right.text && left.selected_text == right.selected_text &&
         left.position == right.position && left.visible == right.visible &&
         left.enabled == right.enabled;
}

// Takes down what is said on standard error for as long as it lives.
class StandardError {
 public:
  StandardError() : before_(std::cerr.rdbuf(said_.rdbuf())) {}
  StandardError(const StandardError&) = delete;
  StandardError& operator=(const StandardError&) = delete;
  ~StandardError() { std::cerr.rdbuf(before_); }

  std::string Said() const { return said_.str(); }

 private:
  std::ostringstream said_;
  std::streambuf* const before_;
};

// The control window, where there is one; it is not made for the question.
Ref<class ControlWnd> LiveControlWnd() {
  return Cast<class ControlWnd>(_GetImplicitWindow("ControlWnd.ControlWnd"));
}

// What every window on the display must be like, whatever the user did.
void CheckWindows(const MonkeyDisplay& display) {
  const Runtime& runtime = Runtime::Current();
  std::set<std::string_view> classes;
  for (const Ref<Window>& window : runtime.LiveWindows()) {
    EXPECT_TRUE(classes.insert(window->Class()->name).second)
        << "two live windows of the class " << window->Class()->name;
  }
  EXPECT_EQ(display.Views().size(), runtime.LiveWindows().size());
  const auto alive = std::count_if(display.Opened().begin(), display.Opened().end(),
                                   [](const WeakRef& window) { return bool(window.Value()); });
  EXPECT_EQ(static_cast<std::size_t>(alive), runtime.LiveWindows().size())
      << "a closed window has not gone";

  const Ref<Window>& active = runtime.ActiveWindow();
  EXPECT_TRUE(!active || (active->IsLive() && active->Visible()));
  const Ref<Window> about = _GetImplicitWindow("AboutWnd.AboutWnd");
  const bool in_control_window = active && active == _GetImplicitWindow("ControlWnd.ControlWnd");
  EXPECT_FALSE(in_control_window && about && about->Visible())
      << "the splash lies beside the window";
}

// What a display shows is the state of the objects: asked anew, each would show the same.
void CheckShown(const MonkeyDisplay& display) {
  for (HeadlessWindow* view : display.Views()) {
    EXPECT_EQ(view->OnScreen(), view->Window().Visible());
    const RectControl* focused = view->Focus() == nullptr ? nullptr : &view->Focus()->Control();
    EXPECT_EQ(focused, view->Window().Focus() ? &*view->Window().Focus() : nullptr);
    for (const HeadlessControl* control :
         std::vector(view->Controls().begin(), view->Controls().end())) {
      const HeadlessControl anew(*view, control->Control());
      EXPECT_TRUE(ShowTheSame(control->Shown(), anew.Shown()))
          << control->Control().Name() << " shows \"" << control->Shown().text << "\" for \""
          << anew.Shown().text << "\"";
    }
  }
}

// Results are spoken as they show. A warning may have come and gone in the course of one deed.
void CheckHeard(MonkeyDisplay& display) {
  for (const std::string& heard : display.Hears()) {
    const Ref<class ControlWnd> window = LiveControlWnd();
    ASSERT_TRUE(window && Runtime::Current().ActiveWindow() == window) << heard;
    if (heard == "range of N (4 - 1,1000)") continue;
    EXPECT_EQ(heard, "Student's t " + window->tText()->Text() + ", two-tailed p " +
                         window->pText()->Text() + ", 95% confidence interval of r " +
                         window->ciText()->Text());
  }
}

// Whether a text is the beginning of what a mask of digits behind `first` allows.
bool IsTyped(std::string_view text, std::string_view first, std::size_t digits) {
  if (text.empty()) return true;
  if (text.substr(0, first.size()) != first) return false;
  const std::string_view rest = text.substr(first.size());
  return rest.size() <= digits && rest.find_first_not_of("0123456789") == std::string_view::npos;
}

// One seed's run: the program is started anew each time that the monkey has ended it.
class Monkey {
 public:
  Monkey(std::uint64_t seed, std::size_t events) : seed_(seed), events_(events), random_(seed) {}

  void Run() {
    int programs = 0;
    for (; done_ < events_ && !testing::Test::HasFailure(); ++programs) RunProgram();
    std::cout << "seed " << seed_ << ": " << done_ << " events, " << programs << " programs\n";
    if (testing::Test::HasFailure()) SayHowToReplay();
  }

 private:
  void RunProgram() {
    std::vector<WeakRef> objects;
    const StandardError standard_error;
    ledger_ = nullptr;
    const int status = Main(std::make_unique<MonkeyDisplay>(
        [&](MonkeyDisplay& display) {
          MonkeyHand hand(display, random_);
          while (done_ < events_ && display.Running() && !testing::Test::HasFailure()) {
            Do(hand, display);
            EXPECT_EQ(standard_error.Said(), "");
          }
          objects = display.Opened();
          objects.emplace_back(Runtime::Current().App());
          objects.emplace_back(Menu());
        },
        random_.OneIn(2)));
    ledger_ = nullptr;
    EXPECT_EQ(status, 0) << standard_error.Said();
    EXPECT_FALSE(Runtime::Exists());
    for (const WeakRef& object : objects) EXPECT_FALSE(object.Value()) << "has outlived the end";
  }

  void Do(MonkeyHand& hand, MonkeyDisplay& display) {
    const Before before = Now();
    hand.Act(last_.emplace_back());
    ++done_;
    if (last_.size() > kRemembered) last_.erase(last_.begin());
    EXPECT_NE(display.Running(), last_.back().ends_program);
    if (!display.Running()) return;

    CheckWindows(display);
    CheckShown(display);
    CheckHeard(display);
    if (const Ref<class ControlWnd> window = LiveControlWnd()) CheckControlWnd(*window, before);
  }

  // How things stood before an event. A window that the event closes is not to be held here.
  struct Before {
    WeakRef active;
    std::string r, n;
  };
  static Before Now() {
    const Ref<class ControlWnd> window = LiveControlWnd();
    const WeakRef active(Runtime::Current().ActiveWindow());
    if (!window) return {active, "", ""};
    return {active, window->rEdit()->Text(), window->nEdit()->Text()};
  }

  void CheckControlWnd(class ControlWnd& window, const Before& before) {
    if (!ledger_) {
      ledger_ = New<Ledger>();
      ledger_->Watch(window);
    }
    const Ref<Window>& active = Runtime::Current().ActiveWindow();
    if (active && &*active == &window && !(before.active.Value() == active))
      ledger_->TakeActivation();
    ledger_->Compare(window);
    if (!last_.back().typing) return;
    const std::string& r = window.rEdit()->Text();
    const std::string& n = window.nEdit()->Text();
    EXPECT_TRUE(r == before.r || IsTyped(r, ".", 3)) << r;
    EXPECT_TRUE(n == before.n || IsTyped(n, "", 4)) << n;
  }

  static constexpr std::size_t kRemembered = 8;

  void SayHowToReplay() const {
    std::ostringstream how;
    how << "seed " << seed_ << ", event " << done_ << ". The last of them:";
    for (const Deed& deed : last_) how << "\n  " << deed.what;
    how << "\nReplay: VAMO_MONKEY_SEED=" << seed_ << " VAMO_MONKEY_EVENTS=" << done_ << " "
        << testing::internal::GetArgvs()[0];
    ADD_FAILURE() << how.str();
  }

  const std::uint64_t seed_;
  const std::size_t events_;
  Random random_;
  std::size_t done_ = 0;
  std::vector<Deed> last_;
  Ref<Ledger> ledger_;
};

// A number from the environment; nothing where it is not set.
std::optional<std::uint64_t> FromEnvironment(const char* name) {
  const char* value = std::getenv(name);
  if (value == nullptr) return std::nullopt;
  return std::strtoull(value, nullptr, 10);
}

TEST(MonkeyTest, WhateverTheUserDoesTheWindowsAgreeWithTheRules) {
  constexpr std::uint64_t kSeeds = 10;
  constexpr std::size_t kEventsOfASeed = 2000;
  const auto events = FromEnvironment("VAMO_MONKEY_EVENTS").value_or(kEventsOfASeed);
  if (const auto seed = FromEnvironment("VAMO_MONKEY_SEED")) return Monkey(*seed, events).Run();
  for (std::uint64_t seed = 1; seed <= kSeeds && !HasFailure(); ++seed) Monkey(seed, events).Run();
}

}  // namespace
}  // namespace vamo
