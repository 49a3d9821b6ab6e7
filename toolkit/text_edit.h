// The text controls.
#ifndef VAMO_TOOLKIT_TEXT_EDIT_H_
#define VAMO_TOOLKIT_TEXT_EDIT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/control.h"
#include "toolkit/delegate.h"
#include "toolkit/label.h"
#include "toolkit/typing_rule.h"

namespace vamo {

// What the text controls have in common: the text, the selection in it, the Edit commands and the
// way back. It knows no keys, and it does not move the caret: a display does, as its platform wants
// it.
class TextEdit : public RectControl {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // Valid UTF-8, of any length.
  const std::string& Text() const;
  // Writes the text, whatever the limits on typing, and puts the caret at its end, or at its start
  // where the text is there to be read. Where the text really changes, the change is raised inside
  // the call. Broken UTF-8 becomes U+FFFD.
  void SetText(std::string_view text);

  // Byte offsets into the text, at boundaries of characters. Equal: a caret and no selection.
  struct Selection {
    std::size_t anchor = 0;
    std::size_t caret = 0;
    bool operator==(const Selection&) const = default;
  };
  Selection GetSelection() const { return selection_; }
  std::string_view SelectedText() const;

  bool ReadOnly() const { return read_only_; }
  const vamo::Font& Font() const { return font_; }
  Colour TextColor() const { return text_color_; }
  Colour BackgroundColor() const { return background_color_; }
  TextAlignment Alignment() const { return static_cast<TextAlignment>(alignment_); }
  bool HasBorder() const { return has_border_; }

  // The Edit commands. One that cannot act does nothing.
  bool CanUndo() const { return !read_only_ && !history_.empty(); }
  bool CanCut() const { return !read_only_ && !SelectedText().empty(); }
  bool CanCopy() const { return !TextToCopy().empty(); }
  bool CanPaste() const;
  void Undo();
  void Cut();
  void Copy();
  void Paste();

  // The user has moved the caret or selected text. Offsets that lie past the end or inside a
  // character are moved to the boundary before.
  void UserSelected(std::size_t anchor, std::size_t caret);
  // The user has pasted or dropped a text over the selection. It goes in as it is, but for broken
  // UTF-8 and for line breaks, which become a blank each; no filter, mask or limit holds.
  void UserPasted(std::string_view text);

 protected:
  // What Copy takes; with line ends of any kind.
  virtual std::string_view TextToCopy() const { return SelectedText(); }
  virtual std::size_t CaretAfterWrite() const { return text_.size(); }
  // Puts `text` in the place of what lies between two offsets, and the caret behind it, as the
  // user's own edit. The change is raised even where the text is the same afterwards: the program
  // may have changed its mind about that text since. Nothing for nothing is no edit.
  void Replace(std::size_t first, std::size_t last, std::string_view text);
  void ReplaceSelection(std::string_view text);
  // Deletes the selection or, where there is none, from the caret to `end`.
  void DeleteTo(std::size_t end);
  virtual void RaiseTextChange() {}

 private:
  struct State {
    std::string text;
    Selection selection;
  };

  struct Properties;
  // Keeps the present state for Undo, within a bound on steps and memory.
  void Remember();
  void Restore(State state);

  std::string text_;
  Selection selection_;
  std::vector<State> history_;
  bool in_users_edit_ = false;
  bool read_only_ = false;
  vamo::Font font_;
  Colour text_color_;
  Colour background_color_;
  std::int64_t alignment_ = 0;
  bool has_border_ = true;
};

// A field of one line that the user types into, within the limits of its typing rule.
class TextField : public TextEdit {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // Raised when the text has changed, by the user or by a write.
  Delegate<void(Ref<TextField>)> TextChange;
  // Raised for each key that carries a character, before it acts. True: the key is swallowed.
  Delegate<bool(Ref<TextField>, std::string)> KeyDown;

  const TypingRule& Rule() const { return rule_; }
  // A text shown while the field is empty.
  const std::string& Hint() const { return hint_; }
  bool Password() const { return password_; }

  bool TakeKey(const Key& key) override;
  void EnteredByTab() override { UserSelected(0, Text().size()); }

 protected:
  bool TakesKeys() const override { return true; }
  void RaiseTextChange() override;

 private:
  struct Properties;
  void Type(std::string_view character);

  TypingRule rule_;
  std::string hint_;
  bool password_ = false;
};

// Text of several lines, to be read, selected and copied. The user does not type into it. Copy
// takes the whole where nothing is selected.
class TextArea : public TextEdit {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // Whether the selection shows only while the window is the active one.
  bool HideSelection() const { return hide_selection_; }

 protected:
  bool TakesKeys() const override { return true; }
  std::string_view TextToCopy() const override;
  std::size_t CaretAfterWrite() const override { return 0; }

 private:
  struct Properties;

  bool hide_selection_ = true;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_TEXT_EDIT_H_
