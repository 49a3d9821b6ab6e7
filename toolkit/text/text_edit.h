#ifndef VAMO_TOOLKIT_TEXT_TEXT_EDIT_H_
#define VAMO_TOOLKIT_TEXT_TEXT_EDIT_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/control/control.h"

namespace vamo {

// Byte offsets into a text, at boundaries of characters. Equal: a caret and no selection.
struct Selection {
  std::size_t anchor = 0;
  std::size_t caret = 0;
  bool operator==(const Selection&) const = default;
};

// What the text controls have in common: the text, the selection in it, the Edit commands and the
// undo history. It knows no keys, and it does not move the caret: a display does, as its platform
// wants it.
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

  vamo::Selection Selection() const { return Trapped(selection_); }
  std::string_view SelectedText() const;

  bool ReadOnly() const { return Trapped(read_only_); }
  const vamo::Font& Font() const { return Trapped(font_); }
  Colour TextColour() const { return Trapped(text_colour_); }
  Colour BackgroundColour() const { return Trapped(background_colour_); }
  TextAlignment Alignment() const { return Trapped(alignment_); }
  bool HasBorder() const { return Trapped(has_border_); }

  // The Edit commands. One that cannot act does nothing. Delete takes the selection alone.
  bool CanUndo() const { return Trapped(!read_only_ && !history_.empty()); }
  bool CanCut() const { return Trapped(!read_only_ && !SelectedText().empty()); }
  bool CanCopy() const { return Trapped(!TextToCopy().empty()); }
  bool CanPaste() const;
  bool CanDelete() const { return CanCut(); }
  void Undo();
  void Cut();
  void Copy();
  void Paste();
  void Delete();

  // The user has moved the caret or selected text. Offsets that lie past the end or inside a
  // character are moved to the boundary before.
  void UserSelected(std::size_t anchor, std::size_t caret);
  // The user has pasted or dropped a text over the selection, or assistive technology has set it.
  // It goes in as `Received` gives it; no filter, mask or limit holds.
  void UserPasted(std::string_view text);

 protected:
  // What becomes of a pasted text: spaces, tabs and line breaks of all kinds are plain spaces.
  virtual std::string Received(std::string_view text) const;
  // Counts the changes of text and selection.
  std::uint64_t Revision() const { return revision_; }
  // What Copy takes; with line ends of any kind.
  virtual std::string_view TextToCopy() const { return SelectedText(); }
  virtual std::size_t CaretAfterWrite() const { return text_.size(); }
  // Puts `text` in the place of what lies between two offsets, and the caret after it, as the
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
    vamo::Selection selection;
  };

  struct Properties;
  // Adds the present state to the undo history, which is bounded in steps and, but for the last
  // one, in memory.
  void Remember();
  void Restore(State state);

  std::string text_;
  vamo::Selection selection_;
  std::vector<State> history_;
  std::uint64_t revision_ = 0;
  bool in_users_edit_ = false;
  vamo::Font font_;
  bool read_only_ = false;
  Colour text_colour_;
  Colour background_colour_;
  TextAlignment alignment_ = TextAlignment::kDefault;
  bool has_border_ = true;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_TEXT_TEXT_EDIT_H_
