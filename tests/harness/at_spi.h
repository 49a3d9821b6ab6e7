// A program as assistive technology sees it: a tree of elements.
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

// One accessible element of a program. It stores no copy of the element's state: each function asks
// the program, and throws std::runtime_error if the program has ended or does not answer.
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
  // The content as it is read out: the text of a field, the value of a slider, otherwise the name.
  std::string Text() const;
  // Empty if nothing is selected or the element has no text.
  std::string SelectedText() const;
  // The name of the element's caption; empty if it has none.
  std::string LabelledBy() const;
  // For an element with a value, such as a slider.
  double Value() const;
  double LeastValue() const;
  double GreatestValue() const;
  // Converts a value of the element to a number of steps.
  std::int64_t InSteps(double value) const;
  Place Extents() const;
  void Do(std::string_view action) const;

  // The process id of the element's program.
  unsigned Process() const;

 private:
  AtspiAccessible* Get() const { return accessible_.get(); }

  std::shared_ptr<AtspiAccessible> accessible_;
};

// The first program on the accessibility bus for which `wanted` is true. Skips programs that are
// starting or ending. Throws if there is no bus.
std::optional<Element> FindApplication(const std::function<bool(const Element&)>& wanted);

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_AT_SPI_H_
