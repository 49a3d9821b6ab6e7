// The reader of property streams, on any bytes and on entries as they should be, for each class of
// object that is set by one.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "target.h"
#include "test_program.h"
#include "toolkit/control/canvas.h"
#include "toolkit/control/label.h"
#include "toolkit/control/push_button.h"
#include "toolkit/control/rectangle.h"
#include "toolkit/control/slider.h"
#include "toolkit/object/property_stream.h"
#include "toolkit/text/text_area.h"
#include "toolkit/text/text_field.h"
#include "toolkit/window/timer.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

// The width of the value at the start of `rest`; more than there is where its length is cut off.
std::size_t WidthOf(PropertyType type, std::string_view rest) {
  constexpr std::size_t kWidths[] = {1, 8, 8, 4, 4};
  if (type != PropertyType::kText) return kWidths[static_cast<std::size_t>(type)];
  if (rest.size() < 4) return 4;
  std::size_t length = 0;
  for (std::size_t i = 4; i-- > 0;) length = length * 256 + static_cast<unsigned char>(rest[i]);
  return 4 + length;
}

// Whether the entries are whole and all of the class.
bool IsWhole(const ClassInfo& info, std::string_view entries) {
  while (!entries.empty()) {
    const std::size_t blank = entries.find(' ');
    if (blank == std::string_view::npos) return false;
    const Property* property = info.Find(entries.substr(0, blank));
    if (property == nullptr) return false;
    entries.remove_prefix(blank + 1);
    const std::size_t width = WidthOf(property->type, entries);
    if (width > entries.size()) return false;
    entries.remove_prefix(width);
  }
  return true;
}

// Entries as a stream has them, but for a wrong name now and then and an end that may be cut short.
std::string EntriesOf(const ClassInfo& info, Input input) {
  std::vector<Property> properties;
  for (const ClassInfo* part = &info; part != nullptr; part = part->base) {
    properties.insert(properties.end(), part->properties.begin(), part->properties.end());
  }
  const std::size_t cut = input.Below(3);
  std::string entries;
  while (!input.AtEnd()) {
    const Property property = input.Pick(properties);
    (entries += property.name) += input.Below(1000) == 999 ? '_' : ' ';
    if (property.type == PropertyType::kText) {
      const std::string text = input.OddText();
      for (const unsigned shift : {0U, 8U, 16U, 24U}) {
        entries += static_cast<char>(text.size() >> shift & 0xFFU);
      }
      entries += text;
    } else {
      // Small numbers mean more than those of eight random bytes.
      const std::size_t width = WidthOf(property.type, {});
      std::string value(input.Take(input.OneIn(2) ? 1 : width));
      value.resize(width);
      entries += value;
    }
  }
  return entries.substr(0, entries.size() - std::min(cut, entries.size()));
}

void Set(Object& object, Input input) {
  const bool any_bytes = input.OneIn(2);
  const std::string entries =
      any_bytes ? std::string(input.Rest()) : EntriesOf(*object.Class(), input);
  // On the heap and not a byte longer, so that the sanitizers see a read past its end.
  std::string stream = '\xFF' + entries + '\0';
  stream.shrink_to_fit();
  bool refused = false;
  try {
    _SetProperties(object, {stream.data(), entries.size()});
  } catch (const InvalidArgumentException&) {
    refused = true;
  }
  Require(refused != IsWhole(*object.Class(), entries), "a broken stream is refused, no other");
}

// A control in its window. What has been read of the stream must do for a display, too.
template <class ControlClass>
void SetControl(Input input) {
  const auto window = New<Window>();
  const auto control = window->__New<ControlClass>();
  window->_AddControl("control", control);
  Set(*control, input);
  window->Constructor();
  Set(*control, input);
}

void SetWindow(Input input) {
  const auto window = New<Window>();
  Set(*window, input);
  window->Constructor();
}

void SetTimer(Input input) { Set(*New<Timer>(), input); }

constexpr void (*kClasses[])(Input) = {SetWindow,
                                       SetTimer,
                                       SetControl<Label>,
                                       SetControl<TextField>,
                                       SetControl<TextArea>,
                                       SetControl<Slider>,
                                       SetControl<Canvas>,
                                       SetControl<Rectangle>,
                                       SetControl<PushButton>};

}  // namespace

void TryInput(Input input) {
  TestProgram program;
  const auto set = input.Pick(kClasses);
  set(input);
}

}  // namespace vamo
