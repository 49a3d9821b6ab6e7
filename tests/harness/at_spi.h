// What assistive technology sees of a program, as a tree of elements.
#ifndef VAMO_TESTS_HARNESS_AT_SPI_H_
#define VAMO_TESTS_HARNESS_AT_SPI_H_

#include <atspi/atspi.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "place.h"

namespace vamo {

// One accessible element of a program's tree. It holds no copy of what it shows: each function asks
// the program and throws std::runtime_error when that has gone or does not answer.
class Element {
 public:
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
  void Do(std::string_view action) const;

  // The process of the program that it belongs to.
  unsigned Process() const;

 private:
  AtspiAccessible* Get() const { return accessible_.get(); }

  std::shared_ptr<AtspiAccessible> accessible_;
};

// The first program on the accessibility bus for which `wanted` is true. One that is just starting
// or ending is left out. Throws where there is no bus.
std::optional<Element> FindApplication(const std::function<bool(const Element&)>& wanted);

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_AT_SPI_H_
