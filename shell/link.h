// Values that a link to the program brings.
#ifndef VAMO_SHELL_LINK_H_
#define VAMO_SHELL_LINK_H_

#include <string>
#include <string_view>
#include <vector>

namespace vamo {

struct LinkedValue {
  std::string name;
  std::string value;
  bool operator==(const LinkedValue&) const = default;
};

// The values in the fragment of a link, such as "#r=.5&N=30", in their order; %2E is a point. A
// part without a name or a value, or one with more characters than a number has, is left out, and
// so is everything in a fragment that is too long to be meant.
std::vector<LinkedValue> ParseLink(std::string_view fragment);

// Presses a key where the splash is the active window. The control window comes in front
// afterwards, as an event of its own.
void EndSplash();

// Types the values over the texts of the control window's fields of these names, as a user would:
// through the same filters and masks. The focus stays where it is.
void TypeLinkedValues(const std::vector<LinkedValue>& values);

}  // namespace vamo

#endif  // VAMO_SHELL_LINK_H_
