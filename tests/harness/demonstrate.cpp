// Operates the program as a user does, prints what it shows, and takes a picture of it.
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "outside_user.h"

namespace vamo {
namespace {

void Show(User& user, std::string_view deed) {
  const auto field = [&](std::string_view name) { return user.Sees(Role::kText, name).text; };
  const std::string t = user.SeesDescribed("Student's t").text;
  const std::string p = user.SeesDescribed("two-tailed p").text;
  const std::string interval = user.SeesDescribed("95% confidence interval of r").text;
  std::cout << deed << ":\n  r = " << field("r") << "   N = " << field("N") << "   t = " << t
            << "   p = " << p << "   95% CI of r = " << interval
            << "   Fisher's z = " << field("Fisher's z") << '\n';
  if (t.empty() || p.empty() || interval.empty()) throw std::runtime_error("there is no result");
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
  if (argc != 3) {
    std::cerr << "usage: demonstrate PROGRAM PICTURE\n";
    return 2;
  }
  try {
    const auto demonstrate = [&](vamo::OutsideUser& user) { vamo::Demonstrate(user, argv[2]); };
    const int status = vamo::RunProgramWith({}, demonstrate, {argv[1]});
    if (status == 0) return EXIT_SUCCESS;
    std::cerr << "demonstrate: the program ended with " << status << '\n';
  } catch (const std::exception& e) {
    std::cerr << "demonstrate: " << e.what() << '\n';
  }
  return EXIT_FAILURE;
}
