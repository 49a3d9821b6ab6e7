#include "displays/qt/keys.h"

#include <algorithm>
#include <array>
#include <string>

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
    ControlCode{Qt::Key_Backspace, kBackspace},  ControlCode{Qt::Key_Tab, kTab},
    ControlCode{Qt::Key_Backtab, kTab},          ControlCode{Qt::Key_Return, kReturn},
    ControlCode{Qt::Key_Enter, kReturn},         ControlCode{Qt::Key_Escape, kEscape},
    ControlCode{Qt::Key_Delete, kForwardDelete},
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
};

constexpr std::array kModifiers{
    Qt::Key_Shift,    Qt::Key_Control,    Qt::Key_Meta,        Qt::Key_Alt,       Qt::Key_AltGr,
    Qt::Key_CapsLock, Qt::Key_NumLock,    Qt::Key_Super_L,     Qt::Key_Super_R,   Qt::Key_Hyper_L,
    Qt::Key_Hyper_R,  Qt::Key_ScrollLock, Qt::Key_Mode_switch, Qt::Key_Multi_key,
};

// Alt or Option makes another character of a letter on macOS and a mnemonic of it elsewhere.
#ifdef Q_OS_MACOS
constexpr bool kAltMakesCharacters = true;
#else
constexpr bool kAltMakesCharacters = false;
#endif

bool IsBareModifier(int key) {
  const bool dead = key >= Qt::Key_Dead_Grave && key <= Qt::Key_Dead_Longsolidusoverlay;
  return dead || std::find(kModifiers.begin(), kModifiers.end(), key) != kModifiers.end();
}

bool CarriesPrintable(const QKeyEvent& event) {
  const QString text = event.text();
  return !text.isEmpty() && text[0].unicode() >= ' ' && text[0].unicode() != kForwardDelete;
}

bool IsCommand(const QKeyEvent& event) {
  if (!event.modifiers().testFlag(Qt::ControlModifier)) return false;
  // Ctrl and Alt together are AltGr on Windows, which makes characters.
  return !event.modifiers().testFlag(Qt::AltModifier) || !CarriesPrintable(event);
}

bool IsMnemonic(const QKeyEvent& event) {
  const auto held = event.modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
  return !kAltMakesCharacters && held == Qt::AltModifier;
}

Key ControlCharacter(const ControlCode& found, const QKeyEvent& event) {
  Key key = Key::Character(std::string(1, found.code));
  key.shift = event.modifiers().testFlag(Qt::ShiftModifier) || found.key == Qt::Key_Backtab;
  const bool deletes = found.code == kBackspace || found.code == kForwardDelete;
  key.command = !deletes && IsCommand(event);
  key.word = event.matches(QKeySequence::DeleteStartOfWord) ||
             event.matches(QKeySequence::DeleteEndOfWord);
  return key;
}

}  // namespace

std::optional<Key> ToKey(const QKeyEvent& event) {
  const int pressed = event.key();
  if (IsBareModifier(pressed)) return std::nullopt;
  for (const ControlCode& control : kControlCodes) {
    if (control.key == pressed) return ControlCharacter(control, event);
  }
  Key key{KeyCode::kOther, "", event.modifiers().testFlag(Qt::ShiftModifier), IsCommand(event)};
  for (const CodedKey& coded : kCodedKeys) {
    if (coded.key == pressed) key.code = coded.code;
  }
  if (key.code != KeyCode::kOther) return key;
  if (key.command && pressed >= Qt::Key_Space && pressed <= Qt::Key_AsciiTilde) {
    key.code = KeyCode::kCharacter;
    const bool capital = pressed >= Qt::Key_A && pressed <= Qt::Key_Z;
    key.text = std::string(1, static_cast<char>(capital ? pressed - Qt::Key_A + 'a' : pressed));
  } else if (!key.command && !IsMnemonic(event) && CarriesPrintable(event)) {
    key.code = KeyCode::kCharacter;
    key.text = ToUtf8(event.text());
  }
  return key;
}

KeyRouter::KeyRouter(WindowWidget& window) : QObject(&window), window_(window) { Watch(window); }

bool KeyRouter::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    // The toolkit knows the shortcuts, so Qt must not look for any, but for the menus' mnemonics.
    if (IsMnemonic(static_cast<QKeyEvent&>(*event))) return false;
    event->accept();
    return true;
  }
  if (event->type() != QEvent::KeyPress) return false;
  return TakeKey(static_cast<QKeyEvent&>(*event));
}

bool KeyRouter::TakeKey(const QKeyEvent& event) {
  Window* window = window_.ShownWindow();
  if (window == nullptr) return true;
  const std::optional<Key> key = ToKey(event);
  if (!key.has_value()) return false;
  if (CharacterCount(key->text) > 1) {
    window->UserTyped(key->text);
    return true;
  }
  const bool dealt_with = window->UserPressedKey(*key);
  if (!dealt_with && window_.TakeZoomKey(event)) return true;
  return dealt_with || (key->code == KeyCode::kCharacter && !key->command);
}

}  // namespace vamo
