#include "displays/web/text.h"

#include <algorithm>
#include <array>

#include "displays/web/window.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/utf8.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// An edit that the browser is about to make, and the equivalent key.
struct EditKey {
  std::string_view kind;
  // A control code; 0 for a forward delete.
  char code;
  bool word;
};
constexpr std::array kEditKeys{
    EditKey{"insertLineBreak", kReturn, false},          EditKey{"insertParagraph", kReturn, false},
    EditKey{"deleteContentBackward", kBackspace, false}, EditKey{"deleteContentForward", 0, false},
    EditKey{"deleteWordBackward", kBackspace, true},     EditKey{"deleteWordForward", 0, true},
};

// These edits may change a part of the text that is not selected.
constexpr std::array<std::string_view, 2> kCorrecting{"insertReplacementText", "insertTranspose"};
constexpr std::array<std::string_view, 3> kBrought{"insertFromPaste", "insertFromDrop",
                                                   "insertFromYank"};
// These edits cannot be prevented; their result is reported when it is complete.
constexpr std::array<std::string_view, 3> kComposing{
    "insertCompositionText", "deleteCompositionText", "insertFromComposition"};

template <std::size_t kSize>
bool Contains(const std::array<std::string_view, kSize>& kinds, std::string_view kind) {
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

std::string_view InputMode(KeyboardKind keyboard) {
  switch (keyboard) {
    case KeyboardKind::kNumber:
      return "decimal";
    case KeyboardKind::kDigits:
      return "numeric";
    case KeyboardKind::kAll:
      break;
  }
  return "text";
}

}  // namespace

WebText::WebText(WebWindow& window, TextEdit& text, std::string_view tag)
    : WebControl(window, text, tag), text_(text) {
  for (const auto& [name, value] :
       {std::pair{"autocomplete", "off"}, {"autocapitalize", "off"}, {"spellcheck", "false"}}) {
    Element().SetAttribute(name, value);
  }
  Element().SetStyle("color", ToCss(Legible(text.TextColour())));
  Element().SetStyle("--background", ToCss(text.BackgroundColour()));
  SetFont(text.Font());
}

void WebText::ShowState() {
  Element().SetFlag("disabled", !text_.Enabled());
  Element().SetAttribute("tabindex", TabIndex());
  const std::string shown = Shown();
  if (shown != shown_) Element().SetValue(shown);
  shown_ = shown;
  ShowSelection();
}

// In some browsers selecting takes the focus.
void WebText::ShowSelection() {
  if (!Element().HasFocus()) return;
  const auto offset = [this](std::size_t at) { return Utf16Offset(text_.Text(), at); };
  const auto [anchor, caret] = text_.Selection();
  const PageSelection selection{offset(anchor), offset(caret)};
  if (Element().Selection() != selection) Element().Select(selection);
}

void WebText::ReportSelection() {
  if (!Element().HasFocus()) return;
  const PageSelection selection = Element().Selection();
  text_.UserSelected(ByteOffset(text_.Text(), selection.anchor),
                     ByteOffset(text_.Text(), selection.caret));
}

PageAnswer WebText::Handle(const PageReport& report) {
  const PageAnswer answer = WebControl::Handle(report);
  switch (report.event) {
    case PageEvent::kFocus:
      if (Window().IsShowingFocus()) ShowSelection();
      return answer;
    case PageEvent::kEdit:
      return HandleEdit(report);
    case PageEvent::kInput:
      ReplaceAll(report.text);
      return PageAnswer::kHandled;
    case PageEvent::kComposing:
      ReportSelection();
      return PageAnswer::kHandled;
    case PageEvent::kComposed:
      // The element contains the browser's edit; the control's text does not.
      Element().SetValue(shown_);
      ShowSelection();
      Type(report.text);
      return PageAnswer::kPrevented;
    case PageEvent::kKey:
      // An on-screen keyboard's character also comes as an edit, with its text.
      return report.data.empty() && CharacterCount(report.text) == 1 ? PageAnswer::kHandled
                                                                     : answer;
    case PageEvent::kClick:
      if (report.x == 0) return answer;
      ReportSelection();
      Window().Shown().UserClicked(Self(&text_));
      return PageAnswer::kHandled;
    case PageEvent::kPress:
      // The press places the caret.
      return text_.Enabled() ? PageAnswer::kHandled : PageAnswer::kPassed;
    default:
      return answer;
  }
}

// Speech control and password managers set a value without announcing an edit.
void WebText::ReplaceAll(const std::string& text) {
  if (text == shown_) return;
  Element().SetValue(shown_);
  text_.UserSelected(0, text_.Text().size());
  text_.UserPasted(text);
}

PageAnswer WebText::HandleEdit(const PageReport& report) {
  if (Contains(kComposing, report.text)) return PageAnswer::kHandled;
  ReportSelection();
  if (Contains(kCorrecting, report.text)) return HandleCorrection(report);
  if (report.text == "insertText") Type(report.data);
  if (Contains(kBrought, report.text)) text_.UserPasted(report.data);
  if (report.text == "historyUndo") {
    Runtime::Current().Dispatch([this, self = Self(&text_)] { text_.Undo(); });
  }
  for (const EditKey& edit : kEditKeys) {
    if (edit.kind != report.text) continue;
    Key key{KeyCode::kDelete};
    if (edit.code != 0) key = Key::Character(std::string(1, edit.code));
    key.word = edit.word;
    Window().Shown().UserPressedKey(key);
  }
  return PageAnswer::kPrevented;
}

// Without a range, exchanging two characters would double them.
PageAnswer WebText::HandleCorrection(const PageReport& report) {
  const bool has_place = report.x >= 0 && report.y >= report.x;
  if (has_place) {
    text_.UserSelected(ByteOffset(text_.Text(), static_cast<std::size_t>(report.x)),
                       ByteOffset(text_.Text(), static_cast<std::size_t>(report.y)));
  }
  if (has_place || report.text != "insertTranspose") Type(report.data);
  return PageAnswer::kPrevented;
}

void WebText::Type(const std::string& typed) { Window().Shown().UserTyped(typed); }

WebField::WebField(WebWindow& window, TextField& field) : WebText(window, field, "input") {
  Element().SetAttribute("type", field.Password() ? "password" : "text");
  Element().SetAttribute("inputmode", InputMode(KeyboardFor(field.Rule())));
  Element().SetAttribute("class", "control field " + std::string(ClassOf(field.Alignment())));
  Element().SetFlag("readonly", field.ReadOnly());
  if (!field.Hint().empty()) Element().SetAttribute("placeholder", field.Hint());
  Update();
}

WebArea::WebArea(WebWindow& window, TextArea& area)
    : WebText(window, area, "textarea"), area_(area) {
  // If the browser knew that the area is read-only, the caret keys would do nothing.
  Element().SetAttribute("aria-readonly", "true");
  Element().SetAttribute("inputmode", "none");
  Update();
}

}  // namespace vamo
