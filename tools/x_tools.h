// Acts on an X server, by way of xdotool and xclip.
#ifndef VAMO_TOOLS_X_TOOLS_H_
#define VAMO_TOOLS_X_TOOLS_H_

#include <string>
#include <string_view>
#include <vector>

namespace vamo {

// Returns when the X server has the events, not when a program has dealt with them.
void Xdotool(std::vector<std::string> arguments);

// Offers a text as a selection, "clipboard" or "primary", until another program offers one.
void Offer(const std::string& selection, std::string_view text);
std::string Offered(const std::string& selection);

}  // namespace vamo

#endif  // VAMO_TOOLS_X_TOOLS_H_
