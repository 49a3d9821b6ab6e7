// Steps that the journeys share.
#ifndef VAMO_TESTS_JOURNEYS_JOURNEY_STEPS_H_
#define VAMO_TESTS_JOURNEYS_JOURNEY_STEPS_H_

#include <functional>
#include <string>
#include <string_view>

#include "displays/user.h"

namespace vamo {

// Runs the program from its start with a user, and returns its exit status or, if it is still
// running after the journey, kStillRunning. Each test program defines it for its display.
int RunProgram(const std::function<void(User&)>& journey);

const Key kTabKey = Key::Character(std::string(1, kTab));
const Key kBackTabKey{KeyCode::kCharacter, std::string(1, kTab), true, false};
const Key kBackspaceKey = Key::Character(std::string(1, kBackspace));
Key Arrow(KeyCode code, bool shift = false);

// The results in the window, as one line.
std::string ResultLine(User& user);
std::string FieldText(User& user, std::string_view name);
bool Warned(User& user);
// Whether a screen reader has spoken the sentence since the last call.
bool Heard(User& user, const std::string& sentence);

// Focuses a field, empties it and types into it.
void Retype(User& user, std::string_view field, std::string_view text);
// The same with a paste.
void PasteOver(User& user, std::string_view field, std::string_view text);

// Runs a journey from the start. A journey that ends early, because something is not on the screen,
// has failed. This function and the next return the program's exit status.
int FromTheStart(const std::function<void(User&)>& journey);
// Runs a journey through the control window, after a key has dismissed the splash.
int InControlWindow(const std::function<void(User&)>& journey);

}  // namespace vamo

#endif  // VAMO_TESTS_JOURNEYS_JOURNEY_STEPS_H_
