// Values in a link to the program.
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

// Returns the values in the fragment of a link, such as "#r=.5&N=30", in their order; %2E is a
// point. Ignores a part without a name or a value, a name or value longer than 16 bytes, and a
// fragment too long to be meant for the program.
std::vector<LinkedValue> ParseLink(std::string_view fragment);

// Whether "chart" is one of the parts of the fragment, as in "#r=.5&N=30&chart".
bool LinksToChart(std::string_view fragment);

// Presses a key if the splash is the active window. The control window is activated later, in a
// separate event.
void EndSplash();

// Types each value over the text of the control window's field of that name, as a user would:
// through the same filters and masks. The focus stays where it is.
void TypeLinkedValues(const std::vector<LinkedValue>& values);

// Opens the chart of the control window, if it is closed.
void OpenChart();

}  // namespace vamo

#endif  // VAMO_SHELL_LINK_H_
