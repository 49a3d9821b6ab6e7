#include "screen_user.h"

#include <map>

namespace vamo {
namespace {

std::string NameOfCharacter(const std::string& character) {
  static const std::map<std::string, std::string> kNames{
      {"\b", "BackSpace"},
      {"\t", "Tab"},
      {"\r", "Return"},
      {"\x1b", "Escape"},
  };
  const auto found = kNames.find(character);
  return found == kNames.end() ? "" : found->second;
}

}  // namespace

std::string NameOf(const Key& key) {
  static const std::map<KeyCode, std::string> kCoded{
      {KeyCode::kLeft, "Left"},      {KeyCode::kRight, "Right"},
      {KeyCode::kUp, "Up"},          {KeyCode::kDown, "Down"},
      {KeyCode::kPageUp, "Page_Up"}, {KeyCode::kPageDown, "Page_Down"},
      {KeyCode::kHome, "Home"},      {KeyCode::kEnd, "End"},
      {KeyCode::kHelp, "F1"},        {KeyCode::kDelete, "Delete"},
      {KeyCode::kF9, "F9"},          {KeyCode::kOther, "F5"},
  };
  static const std::map<std::string, std::string> kSigns{{"+", "plus"}, {"-", "minus"}};
  std::string name =
      key.code == KeyCode::kCharacter ? NameOfCharacter(key.text) : kCoded.at(key.code);
  if (name.empty() && !key.command) return "";
  const auto sign = kSigns.find(key.text);
  if (name.empty()) name = sign == kSigns.end() ? key.text : sign->second;
  return (key.command || key.word ? "ctrl+" : "") + std::string(key.shift ? "shift+" : "") + name;
}

int KnobAt(std::int64_t position, const Scale& scale, int width) {
  // 15 of 450 pixels, and the same share at every zoom.
  const int knob = width / 30;
  const double share =
      (static_cast<double>(position) * scale.step - scale.least) / (scale.greatest - scale.least);
  return knob / 2 + static_cast<int>(std::lround(share * (width - knob)));
}

std::optional<Role> RoleNamed(std::string_view role_name) {
  static const std::map<std::string_view, Role> kRoles{{"text", Role::kText},
                                                       {"slider", Role::kSlider},
                                                       {"button", Role::kButton},
                                                       {"label", Role::kLabel},
                                                       {"chart", Role::kChart}};
  const auto found = kRoles.find(role_name);
  return found == kRoles.end() ? std::nullopt : std::optional(found->second);
}

void FailToFind(std::string_view what) {
  throw std::runtime_error("not on the screen: " + std::string(what));
}

}  // namespace vamo
