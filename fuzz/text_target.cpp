// Texts and numbers: Val, Format, what may be typed, and a text field, each of which the first byte
// chooses.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <limits>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "target.h"
#include "test_program.h"
#include "toolkit/control/properties.h"
#include "toolkit/conversions.h"
#include "toolkit/object/property_stream.h"
#include "toolkit/runtime/key.h"
#include "toolkit/text/text_field.h"
#include "toolkit/text/typing_rule.h"
#include "toolkit/utf8.h"

namespace vamo {
namespace {

constexpr auto kNone = std::string_view::npos;
constexpr std::string_view kDigits = "0123456789";

// A text as it comes, or one of the kind that people make.
std::string AnyText(Input& input) {
  return input.OneIn(2) ? std::string(input.Take(input.Byte())) : input.OddText();
}

// A text of few characters, so that it often fits.
std::string ShortText(Input& input, std::string_view characters) {
  if (input.OneIn(4)) return ValidUtf8(AnyText(input));
  std::string text;
  for (std::size_t length = input.Below(9); length > 0; --length) text += input.Pick(characters);
  return text;
}

// The C library's reading of the part that counts. This process never sets a locale, so the decimal
// mark is the point.
double ReadByLibrary(std::string_view text) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  const auto end_of_digits = [&](std::size_t from) {
    return std::min(text.find_first_not_of(kDigits, from), text.size());
  };
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  std::size_t end = end_of_digits(text.find_first_of("+-") == 0 ? 1 : 0);
  if (text.substr(end, 1) == ".") end = end_of_digits(end + 1);
  const double value = std::strtod(std::string(text.substr(0, end)).c_str(), nullptr);
  return std::clamp(value, -kLargest, kLargest);
}

void CheckTruncate(double value) {
  const auto whole = static_cast<double>(Truncate(value));
  if (std::fabs(value) > 9e18) return Require(std::fabs(whole) >= 9e18, "held to the limits");
  Require(std::fabs(value - whole) < 1 && std::fabs(whole) <= std::fabs(value), "toward zero");
}

void TryVal(Input& input) {
  const std::string text = AnyText(input);
  const double value = Val(text);
  Require(value == ReadByLibrary(text), "the number at the start of the text");
  Require(value != 0 || !std::signbit(value), "no negative zero");
  CheckTruncate(value);
}

// Format by way of a stream of C++, with the mask taken apart into whole digits and decimals.
std::string FormatByStream(double value, std::string mask) {
  const bool plus_wanted = mask.find('+') != kNone;
  std::erase_if(mask, [](char c) { return c != '0' && c != '#' && c != '.'; });
  const std::size_t point = std::min(mask.find('.'), mask.size());
  std::string places = mask.substr(point);
  std::erase(places, '.');
  std::ostringstream stream;
  stream << std::fixed << std::setprecision(static_cast<int>(places.size())) << std::fabs(value);
  const std::string digits = stream.str();
  std::string text = digits.substr(0, digits.find('.'));
  std::string decimals = digits.substr(std::min(text.size() + 1, digits.size()));
  const bool rounds_to_zero = digits.find_first_not_of("0.") == kNone;

  if (text == "0") text.clear();
  const std::size_t least_whole = point - std::min(mask.find('0'), point);
  if (text.size() < least_whole) text.insert(0, least_whole - text.size(), '0');
  while (decimals.size() > places.rfind('0') + 1 && decimals.ends_with('0')) decimals.pop_back();
  if (point < mask.size()) text += '.';
  const bool negative = value < 0 && (plus_wanted || !rounds_to_zero);
  return (negative ? "-" : plus_wanted && value > 0 ? "+" : "") + text + decimals;
}

void TryFormat(Input& input) {
  const std::uint64_t number = input.Number(8);
  // Few of all doubles have the size of a result.
  const auto value =
      input.OneIn(2) ? BitCast<double>(number) : std::ldexp(static_cast<double>(number), -64);
  const std::string mask = ShortText(input, "##00.+ ");
  const std::string text = Format(value, mask);
  const auto whole = static_cast<std::int64_t>(number);
  Require(Str(whole, "") == std::to_string(whole), "plain digits without a mask");
  if (std::isfinite(value)) return Require(text == FormatByStream(value, mask), "the text");
  const std::string sign = value < 0 ? "-" : mask.find('+') == kNone ? "" : "+";
  Require(text == (std::isnan(value) ? "n/a" : sign + "inf"), "no number");
}

// The characters of valid UTF-8.
std::u32string CodePoints(std::string_view text) {
  std::u32string points;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0U) == 0x80U) {
      points.back() = points.back() << 6U | (byte & 0x3FU);
    } else {
      points += byte < 0x80 ? byte : byte < 0xE0 ? byte & 0x1FU : byte & 0x0FU;
    }
  }
  return points;
}

bool IsDigit(char32_t c) { return c >= U'0' && c <= U'9'; }

bool Fits(const std::u32string& text, const std::u32string& mask) {
  return mask.empty() || (text.size() <= mask.size() &&
                          std::equal(text.begin(), text.end(), mask.begin(), [](auto c, auto m) {
                            return m == U'#' ? IsDigit(c) : c == m;
                          }));
}

// What may stand before the caret then: the character or, for a digit, the character after the
// fewest literals of the mask with which it fits. A literal that is typed after all literals that
// the mask begins with, and zeros, takes the place of the zeros.
std::optional<std::u32string> ExpectedTyped(std::u32string before, const std::u32string& after,
                                            char32_t character, const TypingRule& rule) {
  const std::u32string mask = CodePoints(rule.mask);
  const std::u32string literals = mask.substr(0, mask.find(U'#'));
  const std::size_t zeros = before.size() - std::min(before.size(), literals.size());
  if (zeros > 0 && !IsDigit(character) && literals.ends_with(character) &&
      before == literals + std::u32string(zeros, U'0')) {
    return Fits(literals + after, mask) ? std::optional(literals) : std::nullopt;
  }
  while (!Fits(before + character, mask)) {
    const std::size_t at = before.size();
    if (!IsDigit(character) || at >= mask.size() || mask[at] == U'#') return std::nullopt;
    before += mask[at];
  }
  before += character;
  const auto length = static_cast<std::int64_t>(before.size() + after.size());
  const bool too_long = rule.maximum_characters > 0 && length > rule.maximum_characters;
  return Fits(before + after, mask) && !too_long ? std::optional(before) : std::nullopt;
}

void TryTyped(Input& input) {
  TypingRule rule;
  rule.maximum_characters = input.Between(-1, 9);
  rule.mask = ShortText(input, "###.1");
  const std::string before = ShortText(input, "00.15");
  const std::string after = ShortText(input, "00.15");
  std::string character = ShortText(input, "00.15");
  character.resize(NextCharacter(character, 0));
  if (character.empty()) return;
  const auto typed = Typed(before, after, character, rule);
  const auto expected =
      ExpectedTyped(CodePoints(before), CodePoints(after), CodePoints(character)[0], rule);
  Require(typed.has_value() == expected.has_value(), "typed where it fits, and only there");
  Require(!typed || CodePoints(*typed) == *expected, "what stands before the caret");
}

// A field and what is known of it from outside: the text that it announced last, and the texts
// that Undo goes back to. What an edit makes of the text is not known here.
class WatchedField : public Object {
 public:
  void Wire(std::string_view mask) {
    _SetProperties(*field_,
                   EncodedStream<kMostMaskBytes + 32>().Set(property::kValidationMask, mask));
    field_->TextChange =
        Delegate<void(Ref<TextField>)>(Self(this), &WatchedField::TakeChange, ReceiverFlag::kWeak);
  }

  // Does the next thing that the input says, and checks what must hold after it.
  void Do(Input& input) {
    const std::string before = field_->Text();
    const std::size_t kind = input.Below(8);
    if (kind == 0) {
      Undo();
    } else if (kind == 1) {
      field_->SetText(input.OddText());
      if (field_->Text() != before) undone_.clear();
    } else {
      users_edit_ = true;
      Edit(input, kind);
      users_edit_ = false;
      if (field_->Text() != before) undone_.push_back(before);
      if (undone_.size() > kUndoSteps) undone_.erase(undone_.begin());
    }
    CheckText();
  }

  static constexpr std::size_t kMostMaskBytes = 80;

 private:
  // The most that a text grows to here: pastes of its own text double it.
  static constexpr std::size_t kMostBytes = 4096;
  static constexpr std::size_t kUndoSteps = 100;

  void TakeChange(Ref<TextField> field) {
    Require(users_edit_ || field->Text() != announced_,
            "a write is announced for another text only");
    announced_ = field->Text();
  }

  void Undo() {
    const bool can_undo = field_->CanUndo();
    Require(can_undo != undone_.empty(), "Undo where there was an edit");
    field_->Undo();
    if (!can_undo) return;
    Require(field_->Text() == undone_.back(), "back to the text before");
    undone_.pop_back();
  }

  void Edit(Input& input, std::size_t kind) {
    switch (kind) {
      case 2: {
        const std::size_t anchor = input.Byte();
        return field_->UserSelected(anchor, input.Byte());
      }
      case 3:
        return field_->UserPasted(input.OddText());
      case 4:
        return field_->Cut();
      case 5:
        field_->Copy();
        if (field_->Text().size() < kMostBytes) field_->Paste();
        return;
      default:
        return Type(ValidUtf8(input.OddText()));
    }
  }

  void Type(std::string_view text) {
    if (text.empty()) return;
    field_->TakeKey(Key::Character(std::string(text.substr(0, NextCharacter(text, 0)))));
  }

  void CheckText() const {
    const std::string& text = field_->Text();
    Require(text == announced_, "each change is announced");
    Require(text == ValidUtf8(text), "valid UTF-8");
    const auto [anchor, caret] = field_->Selection();
    Require(anchor == CharacterBoundary(text, anchor) && caret == CharacterBoundary(text, caret),
            "the selection lies between characters");
    Require((Asc(text) == 0xFFFD) == (text.rfind("\xEF\xBF\xBD", 0) == 0), "the first character");
  }

  Ref<TextField> field_ = New<TextField>();
  std::string announced_;
  bool users_edit_ = false;
  std::vector<std::string> undone_;
};

// A field from its making on, under a part of the input.
void TryField(Input& input) {
  constexpr std::size_t kMostPart = 512;
  TestProgram program;
  const auto field = New<WatchedField>();
  Input part(input.Take(kMostPart));
  // Mostly none, since a mask lets little through.
  const bool has_mask = part.OneIn(4);
  field->Wire(has_mask ? ValidUtf8(part.Take(part.Below(WatchedField::kMostMaskBytes / 3))) : "");
  while (!part.AtEnd()) field->Do(part);
}

constexpr void (*kSubjects[])(Input&) = {TryVal, TryFormat, TryTyped, TryField};

}  // namespace

void TryInput(Input input) {
  const auto subject = input.Pick(kSubjects);
  do {
    subject(input);
  } while (!input.AtEnd());
}

}  // namespace vamo
