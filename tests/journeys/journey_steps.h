// What the journeys do again and again.
#ifndef VAMO_TESTS_JOURNEYS_JOURNEY_STEPS_H_
#define VAMO_TESTS_JOURNEYS_JOURNEY_STEPS_H_

#include <functional>
#include <string>
#include <string_view>

#include "displays/user.h"

namespace vamo {

// Runs the program from its start with a user, and gives its exit status or kStillRunning. Each
// program of journeys defines it for its display.
int RunProgram(const std::function<void(User&)>& journey);

Key Arrow(KeyCode code, bool shift = false);

// What the window shows of a result, as one line.
std::string ResultLine(User& user);
std::string FieldText(User& user, std::string_view name);
bool Warned(User& user);

// Empties a field, which gets the keys, and types into it.
void Retype(User& user, std::string_view field, std::string_view text);

// A journey from the start. One that breaks off, since something is not on the screen, has failed.
// Gives the program's exit status, as does the next one.
int FromTheStart(const std::function<void(User&)>& journey);
// A journey through the control window: the splash has been dismissed by a key.
int InControlWindow(const std::function<void(User&)>& journey);

}  // namespace vamo

#endif  // VAMO_TESTS_JOURNEYS_JOURNEY_STEPS_H_
