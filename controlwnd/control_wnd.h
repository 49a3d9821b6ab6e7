#ifndef VAMO_CONTROLWND_CONTROL_WND_H_
#define VAMO_CONTROLWND_CONTROL_WND_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "controlwnd/accessors.h"
#include "controlwnd/chart_pane.h"
#include "controlwnd/menu_accessors.h"
#include "toolkit/control/canvas.h"
#include "toolkit/control/label.h"
#include "toolkit/control/push_button.h"
#include "toolkit/control/rectangle.h"
#include "toolkit/control/slider.h"
#include "toolkit/text/text_field.h"
#include "toolkit/window/window.h"

namespace vamo {

// The window in which the user sets r and N and reads t, p, the confidence interval and Fisher's z.
// It holds the model and shows its results; the mathematics is in stats/.
class ControlWnd : public Window {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }
  bool IsEventImplemented(std::string_view event) const;

  // The slider for r counts in hundredths.
  static constexpr std::int64_t kPositionsPerR = 100;

  // The model. r is the current correlation, and N the sample size that a handler last set,
  // although the calculation reads N from `nEdit`. t and p are the results of the last calculation;
  // z is Fisher's z of the r last entered. Activation resets r, N and t.
  double r = 0;
  std::int64_t N = 0;
  double t = 0;
  double p = 0;
  double z = 0;

  void Layout() override;
  void CreateControls() override;
  virtual void _CreateControls0();

  // The controls. An accessor raises IllegalCastException if its control is of another class.
  virtual Ref<TextField> rEdit() { return ControlNamed<TextField>("rEdit"); }
  virtual Ref<TextField> nEdit() { return ControlNamed<TextField>("nEdit"); }
  virtual Ref<Rectangle> Rectangle2() { return ControlNamed<Rectangle>("Rectangle2"); }
  virtual Ref<Canvas> Canvas3() { return ControlNamed<Canvas>("Canvas3"); }
  virtual Ref<Label> StaticText4() { return ControlNamed<Label>("StaticText4"); }
  virtual Ref<Label> StaticText9() { return ControlNamed<Label>("StaticText9"); }
  virtual Ref<Rectangle> Rectangle1() { return ControlNamed<Rectangle>("Rectangle1"); }
  virtual Ref<Slider> rSlider() { return ControlNamed<Slider>("rSlider"); }
  virtual Ref<Slider> nSlider() { return ControlNamed<Slider>("nSlider"); }
  virtual Ref<Label> StaticText2() { return ControlNamed<Label>("StaticText2"); }
  virtual Ref<Label> StaticText3() { return ControlNamed<Label>("StaticText3"); }
  virtual Ref<Label> nText() { return ControlNamed<Label>("nText"); }
  virtual Ref<Label> StaticText8() { return ControlNamed<Label>("StaticText8"); }
  virtual Ref<TextField> zFld() { return ControlNamed<TextField>("zFld"); }
  virtual Ref<PushButton> Qbtn() { return ControlNamed<PushButton>("Qbtn"); }
  virtual Ref<Rectangle> Rectangle3() { return ControlNamed<Rectangle>("Rectangle3"); }
  virtual Ref<Label> StaticText5() { return ControlNamed<Label>("StaticText5"); }
  virtual Ref<Label> StaticText1() { return ControlNamed<Label>("StaticText1"); }
  virtual Ref<Label> pText() { return ControlNamed<Label>("pText"); }
  virtual Ref<Label> StaticText7() { return ControlNamed<Label>("StaticText7"); }
  virtual Ref<Label> ciText() { return ControlNamed<Label>("ciText"); }
  virtual Ref<Label> tText() { return ControlNamed<Label>("tText"); }

  // The handlers of the fields, the sliders and the button.
  virtual void rEdit_TextChange(Ref<TextField> sender);
  virtual bool rEdit_KeyDown(Ref<TextField> sender, std::string key);
  virtual void nEdit_TextChange(Ref<TextField> sender);
  virtual bool nEdit_KeyDown(Ref<TextField> sender, std::string key);
  virtual void rSlider_ValueChanged(Ref<Slider> sender);
  virtual void nSlider_ValueChanged(Ref<Slider> sender);
  virtual bool Qbtn_MouseDown(Ref<PushButton> sender, std::int64_t x, std::int64_t y);

  VAMO_MENU_ACCESSORS

  std::span<const AccessibleText> AccessibleTexts() const override;
  Pane* SidePane() override { return &chart_; }
  void AddMenuHandlers(const Ref<Window>& window) override;
  // Closing this window ends the program.
  void Event_Close() override;
  // At each activation, hides the About window and resets r, N and t. Changes no control.
  void Event_Activate() override;
  void Event_EnableMenuItems() override;
  virtual bool _DescriptionMenuItem_Action();
  virtual bool _AboutKEL_Action();

  // Computes and shows t, p and the interval for the correlation `rArg` and the sample size in
  // `nEdit`; ignores `nArg`. For a sample size above 1000 it beeps, shows the warning and clears
  // the results instead.
  virtual void DoIt(double rArg, std::int64_t nArg);

 private:
  ChartPane chart_{*this};
};

}  // namespace vamo

#endif  // VAMO_CONTROLWND_CONTROL_WND_H_
