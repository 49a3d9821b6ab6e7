#include "toolkit/text/text_edit.h"

#include <algorithm>
#include <array>
#include <utility>

#include "toolkit/control/properties.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/text/received_text.h"
#include "toolkit/utf8.h"

namespace vamo {
namespace {

constexpr std::size_t kHistorySteps = 100;
constexpr std::size_t kHistoryBytes = std::size_t{1} << 24U;

// Sets a flag for the duration of a scope.
class ScopedFlag {
 public:
  explicit ScopedFlag(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ScopedFlag(const ScopedFlag&) = delete;
  ScopedFlag& operator=(const ScopedFlag&) = delete;
  ~ScopedFlag() { flag_ = before_; }

 private:
  bool& flag_;
  const bool before_;
};

// Returns the text with every line break, of whatever kind, replaced by `line_break`.
std::string WithLineBreaksAs(char line_break, std::string_view text) {
  std::string result;
  result.reserve(text.size());
  char previous = 0;
  for (const char c : text) {
    const bool ends_pair = previous == '\r' && c == '\n';
    if (!ends_pair) result += c == '\r' || c == '\n' ? line_break : c;
    previous = c;
  }
  return result;
}

}  // namespace

struct TextEdit::Properties {
  static constexpr std::array kOwn{
      Sets<&TextEdit::SetTabStop>(property::kTabStop),
      Sets<&TextEdit::background_colour_>(property::kBackgroundColor),
      Sets<&TextEdit::has_border_>(property::kHasBorder),
      Skipped(property::kFormat),
      Sets<&TextEdit::text_colour_>(property::kTextColor),
      Skipped(property::kAllowFocusRing),
      Sets<&TextEdit::SetText>(property::kValue),
      Skipped(property::kAllowTabs),
      Sets<&TextEdit::alignment_>(property::kTextAlignment),
      Skipped(property::kAllowSpellChecking),
      Sets<&TextEdit::read_only_>(property::kReadOnly),
      Skipped(property::kDataSource),
      Skipped(property::kDataField),
  };
  static constexpr auto kRows = Joined(FontRows<&TextEdit::font_>(), kOwn);
};

constinit const ClassInfo TextEdit::kClass{"TextEdit", &RectControl::kClass, Properties::kRows};

const std::string& TextEdit::Text() const {
  _UITrap();
  return text_;
}

void TextEdit::SetText(std::string_view text) {
  _UITrap();
  std::string valid = ValidUtf8(text);
  if (valid == text_) return;
  // A write by the program cannot be undone; its correction of a user's edit can.
  if (!in_users_edit_) history_.clear();
  text_ = std::move(valid);
  selection_ = {CaretAfterWrite(), CaretAfterWrite()};
  ++revision_;
  Changed();
  RaiseTextChange();
}

std::string_view TextEdit::SelectedText() const {
  _UITrap();
  const auto [first, last] = std::minmax(selection_.anchor, selection_.caret);
  return std::string_view(text_).substr(first, last - first);
}

bool TextEdit::CanPaste() const {
  _UITrap();
  return !read_only_ && Runtime::Current().Display().ClipboardMayHoldText();
}

void TextEdit::Undo() {
  _UITrap();
  if (!CanUndo()) return;
  State state = std::move(history_.back());
  history_.pop_back();
  Restore(std::move(state));
}

void TextEdit::Cut() {
  _UITrap();
  if (!CanCut()) return;
  Copy();
  ReplaceSelection("");
}

void TextEdit::Delete() {
  _UITrap();
  if (CanDelete()) ReplaceSelection("");
}

void TextEdit::Copy() {
  _UITrap();
  if (CanCopy())
    Runtime::Current().Display().SetClipboardText(WithLineBreaksAs('\n', TextToCopy()));
}

// A clipboard that may hold text can turn out to hold none. The selection must then stay.
void TextEdit::Paste() {
  _UITrap();
  if (!CanPaste()) return;
  const std::string text = Runtime::Current().Display().ClipboardText();
  if (!text.empty()) UserPasted(text);
}

void TextEdit::UserSelected(std::size_t anchor, std::size_t caret) {
  _UITrap();
  const vamo::Selection selected{CharacterBoundary(text_, anchor), CharacterBoundary(text_, caret)};
  if (selected == selection_) return;
  selection_ = selected;
  ++revision_;
  Changed();
}

void TextEdit::UserPasted(std::string_view text) {
  Runtime::Current().Dispatch([this, self = Self(this), text] {
    if (!read_only_ && Enabled()) ReplaceSelection(Received(ValidUtf8(text)));
  });
}

// Line breaks become spaces, so that two numbers do not become one.
std::string TextEdit::Received(std::string_view text) const {
  return WithPlainSpaces(WithLineBreaksAs(' ', text));
}

void TextEdit::ReplaceSelection(std::string_view text) {
  const auto [first, last] = std::minmax(selection_.anchor, selection_.caret);
  Replace(first, last, text);
}

void TextEdit::Replace(std::size_t first, std::size_t last, std::string_view text) {
  if (first == last && text.empty()) return;
  State next{text_.substr(0, first), {}};
  next.text += text;
  next.selection = {next.text.size(), next.text.size()};
  next.text += std::string_view(text_).substr(last);
  if (next.text != text_) Remember();
  Restore(std::move(next));
}

void TextEdit::Remember() {
  history_.push_back({text_, selection_});
  std::size_t bytes = 0;
  std::size_t kept = 0;
  for (auto state = history_.rbegin(); state != history_.rend() && kept < kHistorySteps; ++state) {
    bytes += state->text.size();
    if (kept > 0 && bytes > kHistoryBytes) break;
    ++kept;
  }
  history_.erase(history_.begin(), history_.end() - static_cast<std::ptrdiff_t>(kept));
}

void TextEdit::DeleteTo(std::size_t end) {
  if (SelectedText().empty()) selection_.anchor = end;
  ReplaceSelection("");
}

void TextEdit::Restore(State state) {
  text_ = std::move(state.text);
  selection_ = state.selection;
  ++revision_;
  Changed();
  const ScopedFlag users_edit(in_users_edit_);
  RaiseTextChange();
}

}  // namespace vamo
