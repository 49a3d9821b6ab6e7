// A window, an application and a log for the tests of the toolkit.
#ifndef VAMO_TESTS_TEST_WINDOW_H_
#define VAMO_TESTS_TEST_WINDOW_H_

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "test_program.h"
#include "toolkit/control/label.h"
#include "toolkit/control/slider.h"
#include "toolkit/runtime/application.h"
#include "toolkit/text/text_field.h"
#include "toolkit/window/timer.h"
#include "toolkit/window/window.h"

namespace vamo {

// Handlers, and a list of their calls.
struct CallLog : Object {
  bool Pass() {
    entries.push_back("pass");
    return false;
  }
  bool Take() {
    entries.push_back("take");
    return true;
  }
  void Note(Ref<Slider> slider) { entries.push_back(std::to_string(slider->Value())); }
  void NoteTimer(Ref<Timer> /*timer*/) { entries.push_back("timer"); }
  std::vector<std::string> entries;
};

// A window with a slider, a field, a label and a timer, each named after its class.
class TestWindow : public Window {
 public:
  static inline const ClassInfo kClass{"TestWindow.TestWindow", &Window::kClass, {}};
  const ClassInfo* Class() const override { return &kClass; }

  void CreateControls() override {
    Add("slider", __New<Slider>());
    Add("field", __New<TextField>());
    Add("label", __New<Label>());
    _AddControl("timer", __New<_wrapper_Timer1>());
  }
  void Event_Activate() override { ++activations; }
  void Event_EnableMenuItems() override { ++enablings; }
  void Event_Close() override { ++ends; }
  bool Event_KeyDown(std::string /*key*/) override {
    if (at_key != nullptr) at_key();
    return false;
  }

  Ref<Slider> slider() { return ControlNamed<Slider>("slider"); }
  Ref<TextField> field() { return ControlNamed<TextField>("field"); }
  Ref<Timer> timer() { return ControlNamed<Timer>("timer"); }

  void Hear(Ref<Slider> /*slider*/) {}

  int activations = 0;
  int enablings = 0;
  int ends = 0;
  std::function<void()> at_key;

 private:
  template <class C>
  void Add(std::string_view name, const Ref<C>& control) {
    _AddControl(name, control);
    control->SetAccessibleName(name);
  }
};

class TestApplication : public Application {
 public:
  bool Event_UnhandledException(const RuntimeException& exception) override {
    taken = exception.Message();
    return takes;
  }
  bool takes = false;
  std::string taken;
};

}  // namespace vamo

#endif  // VAMO_TESTS_TEST_WINDOW_H_
