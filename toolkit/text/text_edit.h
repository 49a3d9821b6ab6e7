#ifndef VAMO_TOOLKIT_TEXT_TEXT_EDIT_H_
#define VAMO_TOOLKIT_TEXT_TEXT_EDIT_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/control/control.h"

namespace vamo {

// Byte offsets into a text, at character boundaries. If both are equal, there is a caret and no
// selection.
struct Selection {
  std::size_t anchor = 0;
  std::size_t caret = 0;
  bool operator==(const Selection&) const = default;
};

// What the text controls have in common: the text, the selection, the Edit commands and the undo
// history. It handles no keys and leaves the movement of the caret to the display, since it differs
// by platform.
class TextEdit : public RectControl {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // Valid UTF-8, of any length.
  const std::string& Text() const;
  // Sets the text, regardless of the limits on typing, and moves the caret to its end or, in a text
  // area, to its start. If the text changes, raises the change before it returns; if not, does
  // nothing. Ill-formed UTF-8 becomes U+FFFD.
  void SetText(std::string_view text);

  vamo::Selection Selection() const { return Trapped(selection_); }
  std::string_view SelectedText() const;

  bool ReadOnly() const { return Trapped(read_only_); }
  const vamo::Font& Font() const { return Trapped(font_); }
  Colour TextColour() const { return Trapped(text_colour_); }
  Colour BackgroundColour() const { return Trapped(background_colour_); }
  TextAlignment Alignment() const { return Trapped(alignment_); }
  bool HasBorder() const { return Trapped(has_border_); }

  // The Edit commands. A command that cannot act does nothing. Delete removes only the selection.
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

  // The user has moved the caret or selected text. An offset past the end or inside a character
  // moves back to a character boundary.
  void UserSelected(std::size_t anchor, std::size_t caret);
  // The user has pasted or dropped text over the selection, or assistive technology has set it.
  // What `Received` returns is inserted; no filter, mask or limit applies.
  void UserPasted(std::string_view text);

 protected:
  // Returns what a pasted text becomes: spaces, tabs and line breaks of all kinds become plain
  // spaces.
  virtual std::string Received(std::string_view text) const;
  // Counts the changes of text and selection.
  std::uint64_t Revision() const { return revision_; }
  // The text that Copy takes, with line ends of any kind.
  virtual std::string_view TextToCopy() const { return SelectedText(); }
  virtual std::size_t CaretAfterWrite() const { return text_.size(); }
  // Replaces the text between two offsets with `text`, as a user's edit, and puts the caret after
  // it. The change is raised even if the text stays the same, because the program may have reset
  // what it read from that text. Replacing nothing with nothing is not an edit.
  void Replace(std::size_t first, std::size_t last, std::string_view text);
  void ReplaceSelection(std::string_view text);
  // Deletes the selection or, if there is none, from the caret to `end`.
  void DeleteTo(std::size_t end);
  virtual void RaiseTextChange() {}

 private:
  struct State {
    std::string text;
    vamo::Selection selection;
  };

  struct Properties;
  // Adds the current state to the undo history. The history is limited in steps and in memory, but
  // always keeps the last step.
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
