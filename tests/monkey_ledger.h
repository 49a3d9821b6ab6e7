// What the control window must hold and show, worked out beside it.
#ifndef VAMO_TESTS_MONKEY_LEDGER_H_
#define VAMO_TESTS_MONKEY_LEDGER_H_

#include <cstdint>
#include <string>

#include "controlwnd/control_wnd.h"
#include "toolkit/delegate.h"
#include "toolkit/object.h"

namespace vamo {

// A second book on one control window. It hears each event of the fields and sliders before the
// window's own handler does, follows the rules of r, N and the results by itself, and compares.
// It changes nothing in the window.
class Ledger : public Object {
 public:
  // Puts the ledger between the controls and their handlers. To be called before the first event.
  void Watch(class ControlWnd& window);
  // The window has become the active one: the model starts anew behind unchanged controls.
  void TakeActivation();

  // Fails the running test where the window differs from the ledger.
  void Compare(class ControlWnd& window) const;

 private:
  void TakeRText(Ref<TextField> field);
  void TakeNText(Ref<TextField> field);
  void TakeRSlider(Ref<Slider> slider);
  void TakeNSlider(Ref<Slider> slider);
  void Calculate();
  void CompareTexts(class ControlWnd& window) const;
  void CompareModel(const class ControlWnd& window) const;

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

#endif  // VAMO_TESTS_MONKEY_LEDGER_H_
