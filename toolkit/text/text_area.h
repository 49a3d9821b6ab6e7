#ifndef VAMO_TOOLKIT_TEXT_TEXT_AREA_H_
#define VAMO_TOOLKIT_TEXT_TEXT_AREA_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "toolkit/text/text_edit.h"

namespace vamo {

// Text of several lines, to be read, selected and copied. The user does not type into it. Copy
// takes the whole where nothing is selected.
class TextArea : public TextEdit {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // The text as paragraphs that end with a line feed each, with as many characters as Text has: a
  // carriage return is a line end, and before a line feed it becomes a space without width.
  std::string TextInLines() const;
  // Whether the selection shows only while the window is the active one.
  bool HideSelection() const { return Trapped(hide_selection_); }

 protected:
  AnyControl AsAny() override { return this; }
  bool TakesKeys() const override { return true; }
  std::string_view TextToCopy() const override;
  std::size_t CaretAfterWrite() const override { return 0; }

 private:
  struct Properties;

  bool hide_selection_ = true;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_TEXT_TEXT_AREA_H_
