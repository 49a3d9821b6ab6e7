// The Edit commands, shared by menus and keys.
#ifndef VAMO_TOOLKIT_TEXT_EDIT_COMMANDS_H_
#define VAMO_TOOLKIT_TEXT_EDIT_COMMANDS_H_

#include <array>
#include <string_view>

#include "toolkit/text/text_edit.h"

namespace vamo {

enum class EditAction { kUndo, kCut, kCopy, kPaste, kDelete };

struct EditCommand {
  EditAction action;
  // The name of the menu item that runs the command on the focused text control.
  std::string_view item;
  // Its title in a context menu, which a display makes itself.
  std::string_view title;
  bool (TextEdit::*can_act)() const;
  void (TextEdit::*act)();
};

inline constexpr std::array kEditCommands{
    EditCommand{EditAction::kUndo, "EditUndo", "Undo", &TextEdit::CanUndo, &TextEdit::Undo},
    EditCommand{EditAction::kCut, "EditCut", "Cut", &TextEdit::CanCut, &TextEdit::Cut},
    EditCommand{EditAction::kCopy, "EditCopy", "Copy", &TextEdit::CanCopy, &TextEdit::Copy},
    EditCommand{EditAction::kPaste, "EditPaste", "Paste", &TextEdit::CanPaste, &TextEdit::Paste},
    EditCommand{EditAction::kDelete, "EditClear", "Delete", &TextEdit::CanDelete,
                &TextEdit::Delete},
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_TEXT_EDIT_COMMANDS_H_
