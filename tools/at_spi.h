// What assistive technology sees of a program, as a tree of elements.
#ifndef VAMO_TOOLS_AT_SPI_H_
#define VAMO_TOOLS_AT_SPI_H_

#include <atspi/atspi.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vamo {

// One accessible element of a program's tree. It holds no copy of what it shows: each function asks
// the program and throws std::runtime_error when that has gone or does not answer.
class Element {
 public:
  // In logical pixels of the program.
  struct Place {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
  };

  explicit Element(AtspiAccessible* owned) : accessible_(owned, g_object_unref) {}

  std::string RoleName() const;
  std::string Name() const;
  std::string Description() const;
  std::vector<Element> Children() const;
  bool HasState(AtspiStateType state) const;
  bool IsShowing() const { return HasState(ATSPI_STATE_SHOWING); }
  bool IsEnabled() const { return HasState(ATSPI_STATE_ENABLED); }
  bool IsFocused() const { return HasState(ATSPI_STATE_FOCUSED); }
  bool IsActive() const { return HasState(ATSPI_STATE_ACTIVE); }
  // The names of the states that tell controls apart, with a blank between.
  std::string States() const;
  // What is read out as the content: a field's text, a slider's value, else the name.
  std::string Text() const;
  // Empty where nothing is selected or there is no text.
  std::string SelectedText() const;
  // The name of the element that is the caption of this one; empty where there is none.
  std::string LabelledBy() const;
  // Of an element with a value, such as a slider.
  double Value() const;
  double LeastValue() const;
  double GreatestValue() const;
  // A value of the element, counted in its steps.
  std::int64_t InSteps(double value) const;
  Place Extents() const;
  // Does the action of that name, or the first one.
  void Do(std::string_view action = {}) const;
  // Sets a field's text or a slider's value.
  void Set(const std::string& content) const;

  // The process of the program that it belongs to.
  unsigned Process() const;

 private:
  AtspiAccessible* Get() const { return accessible_.get(); }

  std::shared_ptr<AtspiAccessible> accessible_;
};

// The programs on the accessibility bus. Throws where there is no bus.
std::vector<Element> Applications();
// The first of them for which `wanted` is true. One that is just starting or ending is left out.
std::optional<Element> FindApplication(const std::function<bool(const Element&)>& wanted);

// Goes through what is showing below `parent`, depth first, until `visit` returns true.
bool Walk(const Element& parent, const std::function<bool(const Element&)>& visit);

}  // namespace vamo

#endif  // VAMO_TOOLS_AT_SPI_H_
