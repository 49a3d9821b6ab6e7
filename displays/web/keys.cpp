#include "displays/web/keys.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "toolkit/utf8.h"

namespace vamo {
namespace {

struct ControlCode {
  std::string_view name;
  char code;
};
constexpr std::array kControlCodes{
    ControlCode{"Tab", kTab},
    ControlCode{"Enter", kReturn},
    ControlCode{"Escape", kEscape},
};

struct CodedKey {
  std::string_view name;
  KeyCode code;
};
constexpr std::array kCodedKeys{
    CodedKey{"ArrowLeft", KeyCode::kLeft}, CodedKey{"ArrowRight", KeyCode::kRight},
    CodedKey{"ArrowUp", KeyCode::kUp},     CodedKey{"ArrowDown", KeyCode::kDown},
    CodedKey{"PageUp", KeyCode::kPageUp},  CodedKey{"PageDown", KeyCode::kPageDown},
    CodedKey{"Home", KeyCode::kHome},      CodedKey{"End", KeyCode::kEnd},
    CodedKey{"F9", KeyCode::kF9},          CodedKey{"F1", KeyCode::kHelp},
    CodedKey{"Help", KeyCode::kHelp},
};

constexpr std::array<std::string_view, 14> kModifiers{
    "Alt",   "AltGraph", "CapsLock", "Compose",    "Control", "Fn",     "FnLock",
    "Hyper", "Meta",     "NumLock",  "ScrollLock", "Shift",   "Symbol", "SymbolLock"};

bool IsPrintable(std::string_view name) { return CharacterCount(name) == 1; }

bool IsCommand(const PageReport& report, bool on_mac) {
  if (on_mac) return report.meta;
  // Ctrl and Alt together are AltGr on Windows, which types characters.
  return report.control && !(report.alt && IsPrintable(report.text));
}

// On a keyboard of another script, the letter that a Latin keyboard has on the key.
char CommandLetter(const PageReport& report) {
  constexpr std::string_view kKey = "Key";
  const bool latin = report.text.size() == 1;
  const bool named = report.data.size() == kKey.size() + 1 && report.data.starts_with(kKey);
  return LowerCase(latin || !named ? report.text[0] : report.data.back());
}

}  // namespace

char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::optional<Key> ToKey(const PageReport& report, bool on_mac) {
  const std::string& name = report.text;
  if (std::find(kModifiers.begin(), kModifiers.end(), name) != kModifiers.end())
    return std::nullopt;
  Key key{KeyCode::kOther, "", report.shift, IsCommand(report, on_mac)};
  key.repeat = report.repeat;
  if (name == "Backspace" || name == "Delete") {
    key.word = on_mac ? report.alt : key.command;
    key.command = false;
    key.code = name == "Delete" ? KeyCode::kDelete : KeyCode::kCharacter;
    if (name == "Backspace") key.text = std::string(1, kBackspace);
    return key;
  }
  for (const auto& [control_name, code] : kControlCodes) {
    if (control_name != name) continue;
    key.code = KeyCode::kCharacter;
    key.text = std::string(1, code);
    return key;
  }
  // A key with Alt is left to the browser. On a Mac, Option types other characters and moves by
  // words; there the keys with Control are left to the browser, which has the system's editing
  // commands on them.
  const bool browsers = on_mac ? report.control : report.alt && !report.control;
  if (browsers) return key;
  for (const auto& [coded_name, code] : kCodedKeys) {
    if (coded_name == name) key.code = code;
  }
  if (key.code != KeyCode::kOther || !IsPrintable(name)) return key;
  key.code = KeyCode::kCharacter;
  key.text = key.command ? std::string(1, CommandLetter(report)) : name;
  // A comma on many layouts, but the program knows only the point.
  if (report.data == "NumpadDecimal" && !key.command) key.text = ".";
  return key;
}

}  // namespace vamo
