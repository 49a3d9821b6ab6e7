// A program as assistive technology sees it: a tree of elements.
#ifndef VAMO_TESTS_HARNESS_AT_SPI_H_
#define VAMO_TESTS_HARNESS_AT_SPI_H_

#include <atspi/atspi.h>
#include <sys/types.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "screen_user.h"

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
  // The text of a field, otherwise the name.
  std::string Text() const;
  // Empty if nothing is selected or the element has no text.
  std::string SelectedText() const;
  // The name of the element's caption; empty if it has none.
  std::string LabelledBy() const;
  Scale ReadScale() const;
  Place Extents() const;
  void Press() const;
  // The process id of the element's program; none if the program is starting or ending.
  pid_t Process() const;

 private:
  AtspiAccessible* Get() const { return accessible_.get(); }

  std::shared_ptr<AtspiAccessible> accessible_;
};

// The program on the accessibility bus with that process id. Throws if there is no bus.
std::optional<Element> FindApplication(pid_t process);

}  // namespace vamo

#endif  // VAMO_TESTS_HARNESS_AT_SPI_H_
