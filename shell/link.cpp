#include "shell/link.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "controlwnd/accessors.h"
#include "controlwnd/control_wnd.h"
#include "toolkit/runtime/runtime.h"
#include "toolkit/text/text_field.h"
#include "toolkit/utf8.h"
#include "toolkit/window/pane.h"

namespace vamo {
namespace {

constexpr std::size_t kLongestFragment = 1000;
constexpr std::size_t kLongestPart = 16;

std::optional<unsigned> HexDigit(char c) {
  if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
  if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a' + 10);
  if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
  return std::nullopt;
}

// A percent sign without two hexadecimal digits after it stands for itself.
std::string Decoded(std::string_view text) {
  std::string decoded;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool may_stand_for_byte = text[at] == '%' && text.size() - at > 2;
    const auto high = may_stand_for_byte ? HexDigit(text[at + 1]) : std::nullopt;
    const auto low = may_stand_for_byte ? HexDigit(text[at + 2]) : std::nullopt;
    const bool stands_for_byte = high.has_value() && low.has_value();
    decoded += stands_for_byte ? static_cast<char>(*high * 16 + *low) : text[at];
    if (stands_for_byte) at += 2;
  }
  return ValidUtf8(decoded);
}

// The parts of a fragment between its "&" signs; none if it is too long to be meant for the
// program.
std::vector<std::string_view> Parts(std::string_view fragment) {
  std::vector<std::string_view> parts;
  if (fragment.starts_with('#')) fragment.remove_prefix(1);
  if (fragment.size() > kLongestFragment) return parts;
  while (!fragment.empty()) {
    parts.push_back(fragment.substr(0, fragment.find('&')));
    fragment.remove_prefix(std::min(parts.back().size() + 1, fragment.size()));
  }
  return parts;
}

void TypeOver(const Ref<TextField>& field, std::string_view text) {
  field->EnteredByTab();
  for (const std::string_view character : Characters(text)) {
    field->HandleKey(Key::Character(std::string(character)));
  }
}

}  // namespace

std::vector<LinkedValue> ParseLink(std::string_view fragment) {
  std::vector<LinkedValue> values;
  for (const std::string_view part : Parts(fragment)) {
    const std::size_t equals = part.find('=');
    if (equals == std::string_view::npos) continue;
    LinkedValue value{Decoded(part.substr(0, equals)), Decoded(part.substr(equals + 1))};
    const auto fits = [](const std::string& text) {
      return !text.empty() && text.size() <= kLongestPart;
    };
    if (fits(value.name) && fits(value.value)) values.push_back(std::move(value));
  }
  return values;
}

bool LinksToChart(std::string_view fragment) {
  const std::vector<std::string_view> parts = Parts(fragment);
  return std::find(parts.begin(), parts.end(), "chart") != parts.end();
}

void EndSplash() {
  const Ref<Window> active = Runtime::Current().ActiveWindow();
  if (active && active->IsSplash()) active->UserPressedKey(Key::Character(" "));
}

void TypeLinkedValues(const std::vector<LinkedValue>& values) {
  const std::vector<Ref<RectControl>> controls = ControlWnd()->Controls();
  for (const auto& [name, value] : values) {
    for (const Ref<RectControl>& control : controls) {
      auto* field = dynamic_cast<TextField*>(&*control);
      if (field == nullptr || !field->CanTakeFocus() || field->AccessibleName() != name) continue;
      TypeOver(Self(field), value);
    }
  }
}

void OpenChart() {
  Pane* chart = ControlWnd()->SidePane();
  if (!chart->IsOpen()) chart->Toggle();
}

}  // namespace vamo
