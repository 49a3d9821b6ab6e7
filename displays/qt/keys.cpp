#include "displays/qt/keys.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "displays/qt/convert.h"
#include "displays/qt/window.h"
#include "toolkit/utf8.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

struct ControlCode {
  int key;
  char code;
};
constexpr std::array kControlCodes{
    ControlCode{Qt::Key_Backspace, kBackspace}, ControlCode{Qt::Key_Tab, kTab},
    ControlCode{Qt::Key_Backtab, kTab},         ControlCode{Qt::Key_Return, kReturn},
    ControlCode{Qt::Key_Enter, kReturn},        ControlCode{Qt::Key_Escape, kEscape},
};

struct CodedKey {
  int key;
  KeyCode code;
};
constexpr std::array kCodedKeys{
    CodedKey{Qt::Key_Left, KeyCode::kLeft},     CodedKey{Qt::Key_Right, KeyCode::kRight},
    CodedKey{Qt::Key_Up, KeyCode::kUp},         CodedKey{Qt::Key_Down, KeyCode::kDown},
    CodedKey{Qt::Key_PageUp, KeyCode::kPageUp}, CodedKey{Qt::Key_PageDown, KeyCode::kPageDown},
    CodedKey{Qt::Key_Home, KeyCode::kHome},     CodedKey{Qt::Key_End, KeyCode::kEnd},
    CodedKey{Qt::Key_F1, KeyCode::kHelp},       CodedKey{Qt::Key_Help, KeyCode::kHelp},
    CodedKey{Qt::Key_Delete, KeyCode::kDelete}, CodedKey{Qt::Key_F9, KeyCode::kF9},
};

constexpr std::array kModifiers{
    Qt::Key_Shift,    Qt::Key_Control,    Qt::Key_Meta,        Qt::Key_Alt,       Qt::Key_AltGr,
    Qt::Key_CapsLock, Qt::Key_NumLock,    Qt::Key_Super_L,     Qt::Key_Super_R,   Qt::Key_Hyper_L,
    Qt::Key_Hyper_R,  Qt::Key_ScrollLock, Qt::Key_Mode_switch, Qt::Key_Multi_key,
};

// On macOS Option with a letter types another character; elsewhere Alt with a letter is a mnemonic.
#ifdef Q_OS_MACOS
constexpr bool kAltMakesCharacters = true;
#else
constexpr bool kAltMakesCharacters = false;
#endif

bool IsBareModifier(int key) {
  return std::find(kModifiers.begin(), kModifiers.end(), key) != kModifiers.end();
}

bool IsDead(int key) { return key >= Qt::Key_Dead_Grave && key <= Qt::Key_Dead_Longsolidusoverlay; }

bool CarriesPrintable(const QKeyEvent& event) {
  constexpr char16_t kRubout = 127;
  const QString text = event.text();
  return !text.isEmpty() && text[0].unicode() >= ' ' && text[0].unicode() != kRubout;
}

// The text that a key types. The decimal key of a keypad is a comma on many layouts, but the
// program knows only the point.
std::string Typed(const QKeyEvent& event) {
  const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  return keypad && event.text() == QStringLiteral(",") ? "." : ToUtf8(event.text());
}

bool IsCommand(const QKeyEvent& event) {
  if (!event.modifiers().testFlag(Qt::ControlModifier)) return false;
  // Ctrl and Alt together are AltGr on Windows, which types characters.
  return !event.modifiers().testFlag(Qt::AltModifier) || !CarriesPrintable(event);
}

bool IsMnemonic(const QKeyEvent& event) {
  const auto held = event.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
  return !kAltMakesCharacters && held == Qt::AltModifier;
}

Key ControlCharacter(const ControlCode& found, const QKeyEvent& event) {
  Key key = Key::Character(std::string(1, found.code));
  key.shift = event.modifiers().testFlag(Qt::ShiftModifier) || found.key == Qt::Key_Backtab;
  key.word = event.matches(QKeySequence::DeleteStartOfWord);
  key.command = found.code != kBackspace && IsCommand(event);
  return key;
}

// A key that carries no character.
Key CodedKeyOf(const CodedKey& found, const QKeyEvent& event) {
  Key key{found.code, "", event.modifiers().testFlag(Qt::ShiftModifier), IsCommand(event)};
  key.word = event.matches(QKeySequence::DeleteEndOfWord);
  return key;
}

Key WithoutRepeat(const QKeyEvent& event) {
  const int pressed = event.key();
  for (const ControlCode& control : kControlCodes) {
    if (control.key == pressed) return ControlCharacter(control, event);
  }
  for (const CodedKey& coded : kCodedKeys) {
    if (coded.key == pressed) return CodedKeyOf(coded, event);
  }
  Key key = CodedKeyOf({pressed, KeyCode::kOther}, event);
  if (key.command && pressed >= Qt::Key_Space && pressed <= Qt::Key_AsciiTilde) {
    key.code = KeyCode::kCharacter;
    const bool capital = pressed >= Qt::Key_A && pressed <= Qt::Key_Z;
    key.text = std::string(1, static_cast<char>(capital ? pressed - Qt::Key_A + 'a' : pressed));
  } else if (!key.command && !IsDead(pressed) && !IsMnemonic(event) && CarriesPrintable(event)) {
    key.code = KeyCode::kCharacter;
    key.text = Typed(event);
  }
  return key;
}

}  // namespace

std::optional<Key> ToKey(const QKeyEvent& event) {
  if (IsBareModifier(event.key())) return std::nullopt;
  return WithoutRepeat(event);
}

// For each repeat an X server sends a release and a press with the same time, and Qt may deliver
// the press later.
bool KeyRouter::Repeats(const QKeyEvent& press) {
  constexpr quint64 kLongestDelay = 2000;
  const HeldKey before = std::exchange(held_, {press.nativeScanCode(), press.timestamp(), {}});
  if (press.isAutoRepeat()) return true;
  const bool same = held_.code != 0 && held_.code == before.code;
  const bool is_held = before.released_at.value_or(held_.pressed_at) == held_.pressed_at;
  const quint64 delay = held_.pressed_at - before.pressed_at;
  return same && is_held && delay > 0 && delay < kLongestDelay;
}

void KeyRouter::NoteRelease(const QKeyEvent& release) {
  if (release.nativeScanCode() == held_.code) held_.released_at = release.timestamp();
}

KeyRouter::KeyRouter(WindowWidget& window) : QObject(&window), window_(window) { Watch(window); }

bool KeyRouter::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    // The toolkit handles the shortcuts, so Qt must look for none except the menus' mnemonics.
    if (IsMnemonic(static_cast<QKeyEvent&>(*event))) return false;
    event->accept();
    return true;
  }
  if (event->type() == QEvent::KeyPress) return HandleKey(static_cast<QKeyEvent&>(*event));
  if (event->type() != QEvent::KeyRelease) return false;
  const auto& release = static_cast<QKeyEvent&>(*event);
  NoteRelease(release);
  // An input method keeps the press of a dead key to itself and lets only the release through.
  return IsDead(release.key()) && HandleKey(release);
}

bool KeyRouter::HandleKey(const QKeyEvent& event) {
  Window* window = window_.ShownWindow();
  if (window == nullptr) return true;
  std::optional<Key> key = ToKey(event);
  if (!key.has_value()) return false;
  key->repeat = Repeats(event);
  if (CharacterCount(key->text) > 1) {
    window->UserTyped(key->text);
    return true;
  }
  const bool handled = window->UserPressedKey(*key);
  if (!handled && window_.HandleOwnKey(event)) return true;
  return handled || (key->code == KeyCode::kCharacter && !key->command);
}

}  // namespace vamo
