#include "x_tools.h"

#include <stdexcept>

#include "child.h"

namespace vamo {
namespace {

std::vector<std::string> Xclip(const std::string& selection, const std::string& direction) {
  return {"xclip", "-selection", selection, "-t", "UTF8_STRING", direction};
}

}  // namespace

void Xdotool(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "xdotool");
  Output(arguments);
}

void Offer(const std::string& selection, std::string_view text) {
  Output(Xclip(selection, "-i"), text);
  // It goes to the background before the server knows of it.
  if (!Await([&] { return Offered(selection) == text; })) {
    throw std::runtime_error("nobody takes the text that is offered");
  }
}

std::string Offered(const std::string& selection) { return Output(Xclip(selection, "-o")); }

}  // namespace vamo
