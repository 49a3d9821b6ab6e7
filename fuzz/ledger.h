// What the control window must hold and show, worked out beside it.
#ifndef VAMO_FUZZ_LEDGER_H_
#define VAMO_FUZZ_LEDGER_H_

#include <algorithm>
#include <cstdint>
#include <string>
#include <type_traits>

#include "controlwnd/control_wnd.h"
#include "stats/interval.h"
#include "stats/significance.h"
#include "target.h"
#include "toolkit/conversions.h"
#include "toolkit/object/delegate.h"
#include "toolkit/object/object.h"

namespace vamo {

// A second book on one control window. It hears each event of the fields and sliders before the
// window's own handler does, follows the rules of r, N and the results by itself, and compares.
// It changes nothing in the window.
class Ledger : public Object {
 public:
  // Puts the ledger between the controls and their handlers. To be called before the first event.
  void Watch(class ControlWnd& window) {
    const auto put_before = [this](auto& event, auto& handler, auto take) {
      handler = event;
      event = std::remove_reference_t<decltype(event)>(Self(this), take, ReceiverFlag::kStrong);
    };
    put_before(window.rEdit()->TextChange, r_text_changed_, &Ledger::TakeRText);
    put_before(window.nEdit()->TextChange, n_text_changed_, &Ledger::TakeNText);
    put_before(window.rSlider()->ValueChanged, r_slider_moved_, &Ledger::TakeRSlider);
    put_before(window.nSlider()->ValueChanged, n_slider_moved_, &Ledger::TakeNSlider);
  }

  // The window has become the active one: the model starts anew behind unchanged controls.
  void TakeActivation() {
    r_ = t_ = 0;
    n_ = 4;
  }

  void Compare(class ControlWnd& window) const {
    Require(window.rEdit()->Text() == r_text_, "the text of r changes with an event");
    Require(window.nEdit()->Text() == n_text_, "the text of N changes with an event");
    Require(window.rSlider()->Value() == r_position_, "r's slider moves with an event");
    Require(window.nSlider()->Value() == n_position_, "N's slider moves with an event");
    Require(LimitedR(Val(r_text_)) == Val(r_text_), "the text of r is in its limits");
    Require(window.zFld()->Text() == z_shown_, "the text of z");
    Require(window.tText()->Text() == t_shown_, "the text of t");
    Require(window.pText()->Text() == p_shown_, "the text of p");
    Require(window.ciText()->Text() == interval_shown_, "the text of the interval");
    Require(window.nText()->Visible() == warning_, "the warning");
    Require(window.r == r_, "r");
    Require(window.N == n_, "N");
    Require(window.t == t_, "t");
    Require(window.p == p_, "p");
    Require(window.z == z_, "z");
  }

 private:
  static double LimitedR(double r) { return std::clamp(r, 0.0, 0.99999); }

  // A text out of limits is announced as it is, and once more as it has been corrected.
  void TakeRText(Ref<TextField> field) {
    r_text_ = field->Text();
    r_ = LimitedR(Val(r_text_));
    z_ = FisherZ(r_);
    z_shown_ = Format(z_, "##0.000");
    Calculate();
    r_text_changed_.Invoke(field);
  }

  void TakeNText(Ref<TextField> field) {
    n_text_ = field->Text();
    n_ = Truncate(Val(n_text_));
    warning_ = n_ < 4;
    Calculate();
    n_text_changed_.Invoke(field);
  }

  void TakeRSlider(Ref<Slider> slider) {
    Require(slider->Value() != r_position_, "r's slider has moved");
    r_position_ = slider->Value();
    r_ = static_cast<double>(r_position_) / 100.0;
    Calculate();
    r_slider_moved_.Invoke(slider);
  }

  void TakeNSlider(Ref<Slider> slider) {
    Require(slider->Value() != n_position_, "N's slider has moved");
    n_ = n_position_ = slider->Value();
    Calculate();
    n_slider_moved_.Invoke(slider);
  }

  // Always with the N that the field reads, whatever the model holds.
  void Calculate() {
    const std::int64_t n = Truncate(Val(n_text_));
    if (n > 1000) {
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

  // The events as the window wired them.
  Delegate<void(Ref<TextField>)> r_text_changed_, n_text_changed_;
  Delegate<void(Ref<Slider>)> r_slider_moved_, n_slider_moved_;

  // The texts that the fields announced last, and the positions of the sliders.
  std::string r_text_, n_text_;
  std::int64_t r_position_ = 0, n_position_ = 4;
  double r_ = 0, t_ = 0, p_ = 0, z_ = 0;
  std::int64_t n_ = 0;
  std::string t_shown_, p_shown_, interval_shown_, z_shown_;
  bool warning_ = false;
};

}  // namespace vamo

#endif  // VAMO_FUZZ_LEDGER_H_
