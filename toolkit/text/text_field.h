#ifndef VAMO_TOOLKIT_TEXT_TEXT_FIELD_H_
#define VAMO_TOOLKIT_TEXT_TEXT_FIELD_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "toolkit/object/delegate.h"
#include "toolkit/text/text_edit.h"
#include "toolkit/text/typing_rule.h"

namespace vamo {

// A field of one line that the user types into within the limits of its typing rule.
class TextField : public TextEdit {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // Raised by a write that changes the text, and by every edit by the user.
  Delegate<void(Ref<TextField>)> TextChange;
  // Raised for each key that carries a character, before the key acts. True swallows the key.
  Delegate<bool(Ref<TextField>, std::string)> KeyDown;

  const TypingRule& Rule() const { return Trapped(rule_); }
  // Text that is shown while the field is empty.
  const std::string& Hint() const { return Trapped(hint_); }
  bool Password() const { return Trapped(password_); }

  bool HandleKey(const Key& key) override;
  // Selects all, so that the next key begins a new number. A click keeps what a drag or a double
  // click has selected.
  void EnteredByTab() override { UserSelected(0, Text().size()); }
  void EnteredByClick() override;
  std::string Typed(std::string_view text) const override;

 protected:
  AnyControl AsAny() override { return this; }
  bool HandlesKeys() const override { return true; }
  void RaiseTextChange() override;
  // If the mask has digits, the digits of all scripts count; if it has a point, so does a decimal
  // comma.
  std::string Received(std::string_view text) const override;

 private:
  struct Properties;
  bool TakeCharacter(const Key& key);
  void Type(std::string_view character);

  TypingRule rule_;
  Typist typist_;
  // The revision after the last key.
  std::uint64_t last_revision_ = 0;
  std::string hint_;
  bool password_ = false;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_TEXT_TEXT_FIELD_H_
