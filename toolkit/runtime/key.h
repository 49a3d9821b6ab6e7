// A key as a display reports it.
#ifndef VAMO_TOOLKIT_RUNTIME_KEY_H_
#define VAMO_TOOLKIT_RUNTIME_KEY_H_

#include <string>
#include <utility>

namespace vamo {

// Which key was pressed; kCharacter for every key that has a character.
enum class KeyCode {
  kCharacter,
  kLeft,
  kRight,
  kUp,
  kDown,
  kPageUp,
  kPageDown,
  kHome,
  kEnd,
  kHelp,
  // Forward delete. Like an arrow key it is an editing command, so no key filter sees it.
  kDelete,
  kF9,
  kOther
};

// The control codes that keys carry as characters.
inline constexpr char kBackspace = 8;
inline constexpr char kTab = 9;
inline constexpr char kReturn = 13;
inline constexpr char kEscape = 27;

// One press of a key that is not a bare modifier. A dead key carries no character. A display makes
// the object; the toolkit decides what the key does.
struct Key {
  KeyCode code = KeyCode::kCharacter;
  // The character in UTF-8: printable, or one of the control codes above. Empty unless `code` is
  // kCharacter.
  std::string text = {};
  bool shift = false;
  // Pressed with the platform's command key: Cmd on macOS, Ctrl elsewhere. `text` is then the plain
  // letter in lower case.
  bool command = false;
  // A backspace or forward delete of a whole word, as the platform has it: with Option on macOS,
  // with Ctrl elsewhere.
  bool word = false;
  // An automatic repeat: the key is held down.
  bool repeat = false;

  static Key Character(std::string text) { return {KeyCode::kCharacter, std::move(text)}; }
  static Key Command(std::string letter) {
    return {KeyCode::kCharacter, std::move(letter), false, true};
  }
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_RUNTIME_KEY_H_
