// What the control window must hold and show, worked out beside it.
#include "monkey_ledger.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "stats/interval.h"
#include "stats/significance.h"
#include "toolkit/conversions.h"

namespace vamo {
namespace {

constexpr double kHighestR = 0.99999;
constexpr std::int64_t kHighestN = 1000;

double LimitedR(double r) { return std::clamp(r, 0.0, kHighestR); }

}  // namespace

void Ledger::Watch(class ControlWnd& window) {
  const Ref<Ledger> self = Self(this);
  const auto put_before = [&](auto& event, auto& handler, auto take) {
    handler = event;
    event = std::remove_reference_t<decltype(event)>(self, take, ReceiverFlag::kStrong);
  };
  put_before(window.rEdit()->TextChange, r_text_changed_, &Ledger::TakeRText);
  put_before(window.nEdit()->TextChange, n_text_changed_, &Ledger::TakeNText);
  put_before(window.rSlider()->ValueChanged, r_slider_moved_, &Ledger::TakeRSlider);
  put_before(window.nSlider()->ValueChanged, n_slider_moved_, &Ledger::TakeNSlider);
}

void Ledger::TakeActivation() {
  r_ = 0;
  n_ = 4;
  t_ = 0;
}

// A text out of limits is announced as it is, and once more as it has been corrected.
void Ledger::TakeRText(Ref<TextField> field) {
  r_text_ = field->Text();
  r_ = LimitedR(Val(r_text_));
  z_ = FisherZ(r_);
  z_shown_ = Format(z_, "##0.000");
  Calculate();
  r_text_changed_.Invoke(field);
}

void Ledger::TakeNText(Ref<TextField> field) {
  n_text_ = field->Text();
  n_ = Truncate(Val(n_text_));
  warning_ = n_ < 4;
  Calculate();
  n_text_changed_.Invoke(field);
}

void Ledger::TakeRSlider(Ref<Slider> slider) {
  r_position_ = slider->Value();
  r_ = static_cast<double>(r_position_) / 100.0;
  Calculate();
  r_slider_moved_.Invoke(slider);
}

void Ledger::TakeNSlider(Ref<Slider> slider) {
  n_position_ = slider->Value();
  n_ = n_position_;
  Calculate();
  n_slider_moved_.Invoke(slider);
}

// Always with the N that the field reads, whatever the model holds.
void Ledger::Calculate() {
  const std::int64_t n = Truncate(Val(n_text_));
  if (n > kHighestN) {
    warning_ = true;
    t_shown_ = p_shown_ = interval_shown_ = "";
    return;
  }
  t_ = ComputeT(r_, n);
  p_ = ComputeP(t_, n);
  const Interval interval = ComputeInterval(r_, n);
  t_shown_ = Format(t_, "#####.00");
  p_shown_ = Format(p_, ".00000");
  interval_shown_ = Format(interval.lo, "+.000") + " to " + Format(interval.hi, "+.000");
}

void Ledger::Compare(class ControlWnd& window) const {
  CompareTexts(window);
  CompareModel(window);
}

void Ledger::CompareTexts(class ControlWnd& window) const {
  EXPECT_EQ(window.rEdit()->Text(), r_text_) << "changed without an event";
  EXPECT_EQ(window.nEdit()->Text(), n_text_) << "changed without an event";
  EXPECT_EQ(window.rSlider()->Value(), r_position_);
  EXPECT_EQ(window.nSlider()->Value(), n_position_);
  EXPECT_EQ(LimitedR(Val(r_text_)), Val(r_text_)) << "the text of r is out of its limits";
  EXPECT_EQ(window.zFld()->Text(), z_shown_);
  EXPECT_EQ(window.tText()->Text(), t_shown_);
  EXPECT_EQ(window.pText()->Text(), p_shown_);
  EXPECT_EQ(window.ciText()->Text(), interval_shown_);
  EXPECT_EQ(window.nText()->Visible(), warning_);
}

void Ledger::CompareModel(const class ControlWnd& window) const {
  EXPECT_EQ(window.r, r_);
  EXPECT_EQ(window.N, n_);
  EXPECT_EQ(window.t, t_);
  EXPECT_EQ(window.p, p_);
  EXPECT_EQ(window.z, z_);
}

}  // namespace vamo
