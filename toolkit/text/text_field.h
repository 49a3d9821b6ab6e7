#ifndef VAMO_TOOLKIT_TEXT_TEXT_FIELD_H_
#define VAMO_TOOLKIT_TEXT_TEXT_FIELD_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "toolkit/object/delegate.h"
#include "toolkit/text/text_edit.h"
#include "toolkit/text/typing_rule.h"

namespace vamo {

// A field of one line that the user types into, within the limits of its typing rule.
class TextField : public TextEdit {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // Raised when the text has changed, by the user or by a write.
  Delegate<void(Ref<TextField>)> TextChange;
  // Raised for each key that carries a character, before it acts. True: the key is swallowed.
  Delegate<bool(Ref<TextField>, std::string)> KeyDown;

  const TypingRule& Rule() const { return Trapped(rule_); }
  // A text shown while the field is empty.
  const std::string& Hint() const { return Trapped(hint_); }
  bool Password() const { return Trapped(password_); }

  bool TakeKey(const Key& key) override;
  // Selects all, so that the next key begins a new number; a double click has selected already.
  void EnteredByTab() override { UserSelected(0, Text().size()); }
  void EnteredByClick() override;
  std::string Typed(std::string_view text) const override;

 protected:
  AnyControl AsAny() override { return this; }
  bool TakesKeys() const override { return true; }
  void RaiseTextChange() override;
  // In a field whose mask wants digits those of all scripts are digits; in one that wants a point,
  // a decimal comma is one.
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
