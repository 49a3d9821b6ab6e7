// The reader of property streams, on any bytes, for each class of object that is set by one.
#include <optional>
#include <string>
#include <string_view>

#include "target.h"
#include "test_program.h"
#include "toolkit/label.h"
#include "toolkit/picture.h"
#include "toolkit/property_stream.h"
#include "toolkit/push_button.h"
#include "toolkit/rectangle.h"
#include "toolkit/slider.h"
#include "toolkit/text_edit.h"
#include "toolkit/timer.h"
#include "toolkit/window.h"

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

void Set(Object& object, std::string_view entries) {
  std::string stream(1, '\xFF');
  (stream += entries) += '\0';
  // On the heap and not a byte longer, so that the sanitizers see a read past its end.
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
void SetControl(std::string_view entries) {
  const auto window = New<Window>();
  const auto control = window->__New<ControlClass>();
  window->_AddControl("control", control);
  Set(*control, entries);
  window->Constructor();
  Set(*control, entries);
}

void SetWindow(std::string_view entries) {
  const auto window = New<Window>();
  Set(*window, entries);
  window->Constructor();
}

void SetTimer(std::string_view entries) { Set(*New<Timer>(), entries); }

constexpr void (*kClasses[])(std::string_view) = {SetWindow,
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
  const std::size_t kind = input.Byte() % std::size(kClasses);
  kClasses[kind](input.Rest());
}

}  // namespace vamo
