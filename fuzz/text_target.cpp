// A text field under any sequence of what the user and the program do to it.
#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "target.h"
#include "test_program.h"
#include "toolkit/conversions.h"
#include "toolkit/key.h"
#include "toolkit/property_stream.h"
#include "toolkit/text_edit.h"
#include "toolkit/utf8.h"

namespace vamo {
namespace {

// The most that a text grows to here: pastes of its own text double it.
constexpr std::size_t kMostBytes = 4096;
// How far the way back leads.
constexpr std::size_t kStepsBack = 100;

// Mostly none, since a mask lets little through; no longer than its length fits into one byte.
std::string MaskFrom(Input& input) {
  if (input.Byte() % 4 != 0) return "";
  return ValidUtf8(input.ShortText().substr(0, 80));
}

// Sets the field's mask, as a window's layout does.
void SetMask(TextField& field, std::string_view mask) {
  std::string stream("\xFFValidationMask ");
  stream += static_cast<char>(mask.size());
  stream += std::string(3, '\0');
  stream += mask;
  stream += '\0';
  _SetProperties(field, {stream.data(), stream.size() - 2});
}

std::ptrdiff_t LineBreaks(std::string_view text) {
  return std::count_if(text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; });
}

// A field and what is known of it from outside: the text that it announced last, and the texts
// that the way back leads through. What an edit makes of the text is not known here.
class WatchedField : public Object {
 public:
  void Wire() {
    field_->TextChange =
        Delegate<void(Ref<TextField>)>(Self(this), &WatchedField::TakeChange, ReceiverFlag::kWeak);
  }
  TextField& Field() { return *field_; }

  // Does the next thing that the input says, and checks what must hold after it.
  void Do(Input& input) {
    const std::string before = field_->Text();
    const std::uint8_t kind = input.Byte();
    if (kind % 8 == 0) {
      GoBack();
    } else if (kind % 8 == 1) {
      field_->SetText(input.ShortText());
      if (field_->Text() != before) way_back_.clear();
    } else {
      users_edit_ = true;
      Edit(input, kind);
      users_edit_ = false;
      if (field_->Text() != before) way_back_.push_back(before);
      if (way_back_.size() > kStepsBack) way_back_.erase(way_back_.begin());
    }
    CheckText();
  }

 private:
  void TakeChange(Ref<TextField> field) {
    Require(users_edit_ || field->Text() != announced_,
            "a write is announced for another text only");
    announced_ = field->Text();
  }

  void GoBack() {
    const bool can_undo = field_->CanUndo();
    Require(can_undo != way_back_.empty(), "a way back where there was an edit");
    field_->Undo();
    if (!can_undo) return;
    Require(field_->Text() == way_back_.back(), "back to the text before");
    way_back_.pop_back();
  }

  void Edit(Input& input, std::uint8_t kind) {
    switch (kind % 8) {
      case 2: {
        const std::size_t anchor = input.Byte();
        return field_->UserSelected(anchor, input.Byte());
      }
      case 3:
        return Paste(input.ShortText());
      case 4:
        return field_->Cut();
      case 5:
        field_->Copy();
        if (field_->Text().size() < kMostBytes) field_->Paste();
        return;
      default:
        return Type(ValidUtf8(input.ShortText()));
    }
  }

  void Paste(std::string_view text) {
    const std::ptrdiff_t lines = LineBreaks(field_->Text());
    field_->UserPasted(text);
    Require(LineBreaks(field_->Text()) <= lines, "a paste makes no new line");
  }

  void Type(std::string_view text) {
    if (text.empty()) return;
    field_->TakeKey(Key::Character(std::string(text.substr(0, NextCharacter(text, 0)))));
  }

  void CheckText() const {
    const std::string& text = field_->Text();
    Require(text == announced_, "each change is announced");
    Require(text == ValidUtf8(text), "valid UTF-8");
    const auto [anchor, caret] = field_->GetSelection();
    Require(anchor == CharacterBoundary(text, anchor) && caret == CharacterBoundary(text, caret),
            "the selection lies between characters");
    Require((Asc(text) == 0xFFFD) == (text.rfind("\xEF\xBF\xBD", 0) == 0), "the first character");
  }

  Ref<TextField> field_ = New<TextField>();
  std::string announced_;
  bool users_edit_ = false;
  std::vector<std::string> way_back_;
};

}  // namespace

void TryInput(Input input) {
  TestProgram program;
  const auto field = New<WatchedField>();
  field->Wire();
  SetMask(field->Field(), MaskFrom(input));
  while (!input.AtEnd()) field->Do(input);
}

}  // namespace vamo
