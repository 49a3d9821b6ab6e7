#ifndef VAMO_DISPLAYS_WEB_CONTROL_H_
#define VAMO_DISPLAYS_WEB_CONTROL_H_

#include <string>
#include <string_view>

#include "displays/web/page.h"
#include "toolkit/control/control.h"
#include "toolkit/runtime/display.h"

namespace vamo {

class WebWindow;

// A number with at most six decimals, without trailing zeros: some screen readers read the text of
// a value.
std::string ShortText(double number);
// A designed length in CSS. The style sheet defines the length of a unit on this page.
std::string Units(double length);
std::string ToCss(Colour colour);
// The colour of a text, darkened until its contrast on a white window is 4.5 to 1 as WCAG measures
// it: a page may be read on a phone in the sun.
Colour Legible(Colour colour);
// The CSS font for `font`. Its size in CSS pixels is that in logical pixels.
std::string ToCss(const Font& font);
// The style sheet's class for an alignment.
std::string_view ClassOf(TextAlignment alignment);

// The element of a control: shows the control's state and reports what the user does to it.
class WebControl : public ControlView, public PageListener {
 public:
  WebControl(WebWindow& window, RectControl& control, std::string_view tag);
  ~WebControl() override;

  void Update() override;
  PageAnswer Handle(const PageReport& report) override;

  PageElement& Element() { return element_; }
  RectControl& Control() const { return control_; }
  // Reports the current selection to the toolkit.
  virtual void ReportSelection() {}
  // Moves the browser's focus here.
  void ShowFocus();
  // Whether focusing this control opens an on-screen keyboard.
  virtual bool OpensKeyboard() const { return false; }

 protected:
  // Shows the state that is specific to the class; the common state is already shown.
  virtual void ShowState() {}
  WebWindow& Window() { return window_; }
  // The tabindex attribute: Tab stops only in the front window, as on the desktop.
  std::string_view TabIndex() const;
  void SetFont(const Font& font);

 private:
  WebWindow& window_;
  RectControl& control_;
  PageElement element_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_CONTROL_H_
