// The hands of a user, by way of xdotool and xclip.
#include "hand.h"

#include <cstdlib>
#include <map>
#include <stdexcept>
#include <vector>

#include "child.h"

namespace vamo::hand {
namespace {

template <typename... Arguments>
void Xdotool(const Arguments&... arguments) {
  Output({"xdotool", std::string(arguments)...});
}

// The X name of a key that types no character; empty for the others.
std::string NameOf(const Key& key) {
  static const std::map<KeyCode, std::string> kCoded{
      {KeyCode::kLeft, "Left"}, {KeyCode::kRight, "Right"},  {KeyCode::kUp, "Up"},
      {KeyCode::kDown, "Down"}, {KeyCode::kPageUp, "Prior"}, {KeyCode::kPageDown, "Next"},
      {KeyCode::kHome, "Home"}, {KeyCode::kEnd, "End"},      {KeyCode::kHelp, "F1"},
      {KeyCode::kOther, "F5"},
  };
  static const std::map<std::string, std::string> kControls{
      {"\b", "BackSpace"}, {"\t", "Tab"}, {"\r", "Return"}, {"\x1b", "Escape"}, {"\x7f", "Delete"},
  };
  if (key.code != KeyCode::kCharacter) return kCoded.at(key.code);
  const auto control = kControls.find(key.text);
  return control == kControls.end() ? "" : control->second;
}

std::vector<std::string> Xclip(const std::string& selection, const std::string& direction) {
  return {"xclip", "-selection", selection, "-t", "UTF8_STRING", direction};
}

void Offer(const std::string& selection, std::string_view text) {
  Output(Xclip(selection, "-i"), text);
  // It goes to the background before the server knows of it.
  if (!Await([&] { return Output(Xclip(selection, "-o")) == text; })) {
    throw std::runtime_error("nobody takes the text that is offered");
  }
}

}  // namespace

void PressKey(const Key& key) {
  std::string name = NameOf(key);
  if (name.empty() && !key.command) return Type(key.text);
  static const std::map<std::string, std::string> kSigns{{"+", "plus"}, {"-", "minus"}};
  const auto sign = kSigns.find(key.text);
  if (name.empty()) name = sign == kSigns.end() ? key.text : sign->second;
  PressNamed((key.command || key.word ? "ctrl+" : "") + std::string(key.shift ? "shift+" : "") +
             name);
}

void PressNamed(const std::string& keys) { Xdotool("key", keys); }

void Type(std::string_view printable) { Xdotool("type", "--delay", "1", "--", printable); }

void MoveTo(int x, int y) { Xdotool("mousemove", std::to_string(x), std::to_string(y)); }

void Press() { Xdotool("mousedown", "1"); }

void Release() { Xdotool("mouseup", "1"); }

void TurnWheel(int notches_up) {
  Xdotool("click", "--repeat", std::to_string(std::abs(notches_up)), notches_up > 0 ? "4" : "5");
}

void Activate(unsigned long window) { Xdotool("windowactivate", std::to_string(window)); }

void MoveWindow(unsigned long window, int x, int y) {
  Xdotool("windowmove", "--sync", std::to_string(window), std::to_string(x), std::to_string(y));
}

void Disconnect(unsigned long window) { Xdotool("windowkill", std::to_string(window)); }

void SetClipboard(std::string_view text) { Offer("clipboard", text); }

std::string Clipboard() { return Output(Xclip("clipboard", "-o")); }

void PasteSelection(std::string_view text) {
  Offer("primary", text);
  Xdotool("click", "2");
}

}  // namespace vamo::hand
