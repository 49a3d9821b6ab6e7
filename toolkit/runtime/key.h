// A key as a display reports it.
#ifndef VAMO_TOOLKIT_RUNTIME_KEY_H_
#define VAMO_TOOLKIT_RUNTIME_KEY_H_

#include <string>
#include <utility>

namespace vamo {

// What a key does where it carries no character.
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
  // Deletes forward. Like an arrow key it is a command to the text, so no key filter sees it.
  kDelete,
  kOther
};

// The control codes among the characters that keys carry.
inline constexpr char kBackspace = 8;
inline constexpr char kTab = 9;
inline constexpr char kReturn = 13;
inline constexpr char kEscape = 27;

// One press of a key that is not a bare modifier; a dead key is one without a character. A display
// makes it; the toolkit decides what it does.
struct Key {
  KeyCode code = KeyCode::kCharacter;
  // The character, as UTF-8: printable, or one of the control codes above. Empty where `code` is
  // something else than kCharacter.
  std::string text = {};
  bool shift = false;
  // Held with the platform's command key: Cmd on macOS, Ctrl elsewhere. `text` is then the bare
  // letter in lower case.
  bool command = false;
  // A backspace or forward delete that takes a word, as the platform has it: with Option on macOS,
  // with Ctrl elsewhere.
  bool word = false;
  // The key is held down and repeats by itself.
  bool repeat = false;

  static Key Character(std::string text) { return {KeyCode::kCharacter, std::move(text)}; }
  static Key Command(std::string letter) {
    return {KeyCode::kCharacter, std::move(letter), false, true};
  }
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_RUNTIME_KEY_H_
