// Times one slider event of the program on the headless display, and of the same work written flat,
// in nanoseconds.
#include <chrono>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "controlwnd/control_wnd.h"
#include "displays/headless/user.h"
#include "median.h"
#include "shell/startup.h"
#include "stats/interval.h"
#include "stats/significance.h"
#include "toolkit/conversions.h"
#include "toolkit/window/pane.h"

namespace vamo {
namespace {

// One move of the slider of r without controls, events or a display: everything that the program
// computes and formats for it, including both calculations.
class FlatWindow {
 public:
  explicit FlatWindow(std::string n_edit) : n_edit_(std::move(n_edit)) {}

  void MoveR(std::int64_t position) {
    r_edit_ = Format(static_cast<double>(position) / 100.0, ".000");
    // The field's handler reads r back from the text, and the slider's handler calculates again.
    const double r = Val(r_edit_);
    DoIt(r);
    z_field_ = Format(FisherZ(r), "##0.000");
    DoIt(r);
  }
  std::string Texts() const { return r_edit_ + t_text_ + p_text_ + ci_text_ + z_field_; }

 private:
  void DoIt(double r) {
    const std::int64_t n = Truncate(Val(n_edit_));
    const double t = ComputeT(r, n);
    t_text_ = Format(t, "#####.00");
    p_text_ = Format(ComputeP(t, n), ".00000");
    const Interval interval = ComputeInterval(r, n);
    ci_text_ = Format(interval.lo, "+.000") + " to " + Format(interval.hi, "+.000");
  }

  std::string n_edit_, r_edit_, t_text_, p_text_, ci_text_, z_field_;
};

// The time of one move. The slider goes through its whole range again and again.
template <class Move>
double Nanoseconds(const Move& move) {
  constexpr int kMoves = 10'000;
  const auto start = std::chrono::steady_clock::now();
  for (int i = 1; i <= kMoves; ++i) move(i % 100);
  return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start)
             .count() /
         kMoves;
}

void Compare(const std::string& n) {
  const auto window = ControlWnd();
  const Ref<Slider> slider = window->rSlider();
  window->nEdit()->SetText(n);
  FlatWindow flat(n);
  std::vector<double> events, chart_events, flat_events;
  for (int round = 0; round < 21; ++round) {
    for (std::vector<double>* measured : {&events, &chart_events}) {
      measured->push_back(Nanoseconds([&](int position) { slider->UserMovedTo(position); }));
      window->SidePane()->Toggle();
    }
    flat_events.push_back(Nanoseconds([&](int position) { flat.MoveR(position); }));
  }
  slider->UserMovedTo(50);
  flat.MoveR(50);
  if (flat.Texts() != window->rEdit()->Text() + window->tText()->Text() + window->pText()->Text() +
                          window->ciText()->Text() + window->zFld()->Text()) {
    throw std::runtime_error("the results differ from those written flat");
  }
  PrintMedian("event_" + n, events);
  PrintMedian("event_" + n + "_chart", chart_events);
  PrintMedian("event_" + n + "_flat", flat_events);
}

}  // namespace
}  // namespace vamo

int main() {
  return vamo::Main(std::make_unique<vamo::HeadlessDisplay>([](vamo::HeadlessUser& user) {
    user.Type(" ");
    for (const char* n : {"1000", "30"}) vamo::Compare(n);
  }));
}
