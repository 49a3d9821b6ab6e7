// Operates the program as a user does, prints what it shows, and takes a picture of it.
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "outside_user.h"

namespace vamo {
namespace {

void Show(User& user, std::string_view deed) {
  std::cout << deed << ":\n";
  for (const char* field : {"r", "N", "Fisher's z"}) {
    std::cout << "  " << field << " = " << user.Sees(Role::kText, field).text;
  }
  for (const char* result : {"Student's t", "two-tailed p", "95% confidence interval of r"}) {
    const std::string text = user.SeesDescribed(result).text;
    if (text.empty()) throw std::runtime_error("there is no result");
    std::cout << "  " << result << " = " << text;
  }
  std::cout << '\n';
}

void Demonstrate(OutsideUser& user, const std::string& picture) {
  // A key dismisses the splash, unless its four seconds are over.
  if (user.ActiveTitle().empty()) user.PressNamed("space");
  user.Click(Role::kText, "N");
  user.Type("30");
  user.Click(Role::kText, "r");
  user.Type(".5");
  Show(user, "Typed 30 for N and .5 for r");
  user.DragSlider("r", {12, 25, 37});
  Show(user, "Dragged the slider of r");
  user.DragSlider("N", {50, 100, 200});
  Show(user, "Dragged the slider of N");
  const std::string window = std::to_string(user.WindowTitled("Vamo").id);
  Output({"import", "-silent", "-frame", "-window", window, picture});
  std::cout << "The window as it was then: " << picture << '\n';
  user.Close("Vamo");
}

}  // namespace
}  // namespace vamo

int main(int argc, char** argv) {
  try {
    if (argc != 3) throw std::runtime_error("usage: demonstrate PROGRAM PICTURE");
    const auto demonstrate = [&](vamo::OutsideUser& user) { vamo::Demonstrate(user, argv[2]); };
    return vamo::RunProgramWith(demonstrate, {argv[1]});
  } catch (const std::exception& e) {
    std::cerr << "demonstrate: " << e.what() << '\n';
    return 1;
  }
}
