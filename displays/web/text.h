// The controls with text input.
#ifndef VAMO_DISPLAYS_WEB_TEXT_H_
#define VAMO_DISPLAYS_WEB_TEXT_H_

#include <string>
#include <string_view>

#include "displays/web/control.h"
#include "toolkit/text/text_area.h"
#include "toolkit/text/text_field.h"

namespace vamo {

// What fields and areas have in common.
class WebText : public WebControl {
 public:
  WebText(WebWindow& window, TextEdit& text, std::string_view tag);

  void ReportSelection() override;
  PageAnswer Handle(const PageReport& report) override;

 protected:
  void ShowState() override;
  // The text in the element, with as many UTF-16 code units as the control's text.
  virtual std::string Shown() const { return text_.Text(); }

 private:
  void ShowSelection();
  PageAnswer HandleEdit(const PageReport& report);
  // An edit of a part of the text that need not be selected.
  PageAnswer HandleCorrection(const PageReport& report);
  // The element contains another text.
  void ReplaceAll(const std::string& text);
  void Type(const std::string& typed);

  TextEdit& text_;
  std::string shown_;
};

class WebField : public WebText {
 public:
  WebField(WebWindow& window, TextField& field);
  bool OpensKeyboard() const override { return page::HasCoarsePointer(); }
};

class WebArea : public WebText {
 public:
  WebArea(WebWindow& window, TextArea& area);

 private:
  std::string Shown() const override { return area_.TextInLines(); }

  TextArea& area_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_TEXT_H_
