#ifndef VAMO_DISPLAYS_WEB_CONTROL_H_
#define VAMO_DISPLAYS_WEB_CONTROL_H_

#include <string>
#include <string_view>

#include "displays/web/page.h"
#include "toolkit/control/control.h"
#include "toolkit/runtime/display.h"

namespace vamo {

class WebWindow;

// A number to six decimals, without zeros at its end: some screen readers read the text of a value.
std::string ShortText(double number);
// A length of the design as CSS has it. The style sheet says how long a unit is on this page.
std::string Units(double length);
std::string ToCss(Colour colour);
// The colour for a text, darkened where it would not stand out from a white window by 4.5 to 1, as
// WCAG measures it. A page is read on a phone in the sun, too.
Colour Legible(Colour colour);
// The font for `font`, its size in CSS pixels as it is in logical ones.
std::string ToCss(const Font& font);
// The class that the style sheet has for it.
std::string_view ClassOf(TextAlignment alignment);

// The element of a control: shows the control's state, and reports what the user does to it.
class WebControl : public ControlView, public PageListener {
 public:
  WebControl(WebWindow& window, RectControl& control, std::string_view tag);
  ~WebControl() override;

  void Update() override;
  PageAnswer Take(const PageReport& report) override;

  PageElement& Element() { return element_; }
  RectControl& Control() const { return control_; }
  // Makes the toolkit know what the user has selected since it was told last.
  virtual void ReportSelection() {}
  // Takes the browser's focus here.
  void ShowFocus();
  // Whether the focus opens a keyboard on the screen, where there is none to touch.
  virtual bool OpensKeyboard() const { return false; }

 protected:
  // Shows the control's own state; the common one is shown already.
  virtual void ShowState() {}
  WebWindow& Window() { return window_; }
  // Whether Tab comes here: in the window in front alone, as on the desktop.
  std::string_view TabIndex() const;
  void SetFont(const Font& font);

 private:
  WebWindow& window_;
  RectControl& control_;
  PageElement element_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_CONTROL_H_
