#ifndef VAMO_TOOLKIT_TEXT_TEXT_AREA_H_
#define VAMO_TOOLKIT_TEXT_TEXT_AREA_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "toolkit/text/text_edit.h"

namespace vamo {

// Text of several lines that the user can read, select and copy but not change. Copy takes the
// whole text if nothing is selected.
class TextArea : public TextEdit {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // The text with a line feed at the end of each paragraph, and with as many characters as Text: a
  // carriage return becomes a line feed or, before a line feed, a zero-width space.
  std::string TextInLines() const;
  // Whether the selection shows only while the window is active.
  bool HideSelection() const { return Trapped(hide_selection_); }

 protected:
  AnyControl AsAny() override { return this; }
  bool HandlesKeys() const override { return true; }
  std::string_view TextToCopy() const override;
  std::size_t CaretAfterWrite() const override { return 0; }

 private:
  struct Properties;

  bool hide_selection_ = true;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_TEXT_TEXT_AREA_H_
