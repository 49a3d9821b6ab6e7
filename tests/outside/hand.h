// The hands of a user at a keyboard, a mouse and a clipboard.
#ifndef VAMO_TESTS_OUTSIDE_HAND_H_
#define VAMO_TESTS_OUTSIDE_HAND_H_

#include <string>
#include <string_view>

#include "toolkit/key.h"

namespace vamo::hand {

// Each returns when the X server has the events, not when a program has dealt with them. Places are
// pixels of the screen.
void PressKey(const Key& key);
// A key or a combination by its X names, such as "ctrl+shift+Left".
void PressNamed(const std::string& keys);
void Type(std::string_view printable);
void MoveTo(int x, int y);
void Press();
void Release();
void TurnWheel(int notches_up);
void Activate(unsigned long window);
void MoveWindow(unsigned long window, int x, int y);
// Cuts the connection of a window's program to the X server.
void Disconnect(unsigned long window);

void SetClipboard(std::string_view text);
std::string Clipboard();
// Has a text selected elsewhere, and clicks the middle button.
void PasteSelection(std::string_view text);

}  // namespace vamo::hand

#endif  // VAMO_TESTS_OUTSIDE_HAND_H_
