#include "flat_window.h"

#include "stats/interval.h"
#include "stats/significance.h"
#include "toolkit/conversions.h"

namespace vamo {

void FlatWindow::MoveR(std::int64_t position) {
  r_edit_ = Format(static_cast<double>(position) / 100.0, ".000");
  // The field reads r back from its text, and the slider's own handler calculates once more.
  const double r = Val(r_edit_);
  DoIt(r);
  z_field_ = Format(FisherZ(r), "##0.000");
  DoIt(r);
}

void FlatWindow::DoIt(double r) {
  const std::int64_t n = Truncate(Val(n_edit_));
  const double t = ComputeT(r, n);
  t_text_ = Format(t, "#####.00");
  p_text_ = Format(ComputeP(t, n), ".00000");
  const Interval interval = ComputeInterval(r, n);
  ci_text_ = Format(interval.lo, "+.000") + " to " + Format(interval.hi, "+.000");
}

std::string FlatWindow::Texts() const {
  return r_edit_ + ' ' + t_text_ + ' ' + p_text_ + ' ' + ci_text_ + ' ' + z_field_;
}

}  // namespace vamo
