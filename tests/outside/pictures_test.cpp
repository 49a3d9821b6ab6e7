// From outside: the windows look as they looked when their pictures were kept.
//
// VAMO_RENEW_PICTURES=1 in the environment keeps what the windows look like now.
#include <gtest/gtest.h>

#include <cstdlib>

#include "desktop.h"
#include "steps.h"

namespace vamo {
namespace {

const std::string kFolder = VAMO_PICTURES;
// The same letters on every machine.
const Environment kOwnFonts{{"FONTCONFIG_FILE", kFolder + "/fonts.conf"}};

// How many pixels differ visibly; all of them where the sizes do.
double DifferentPixels(const std::string& kept, const std::string& taken) {
  const auto size = [](const std::string& picture) {
    return Output({"identify", "-format", "%wx%h", picture});
  };
  if (size(kept) != size(taken)) return 1'000'000;
  return std::stod(
      RunToEnd({"compare", "-metric", "AE", "-fuzz", "12%", kept, taken, "null:"}).err);
}

void ExpectPicture(OutsideUser& user, const std::string& title, const std::string& name) {
  const std::string kept = kFolder + '/' + name + ".png";
  const bool renew = std::getenv("VAMO_RENEW_PICTURES") != nullptr;
  const std::string taken = renew ? kept : testing::TempDir() + "vamo_" + name + ".png";
  Xdotool({"mousemove", "0", "0"});
  // A letter is some 40 pixels.
  constexpr int kTolerated = 12;
  double differing = 0;
  // The caret blinks, and what is under the mouse may still be lit.
  const bool same = Await([&] {
    Output({"import", "-silent", "-window", std::to_string(user.WindowTitled(title).id), "-strip",
            taken});
    differing = DifferentPixels(kept, taken);
    return differing <= kTolerated;
  });
  EXPECT_TRUE(same) << differing << " pixels of " << taken << " are not as in " << kept;
}

TEST(Pictures, OfTheWindows) {
  FromTheStart(kOwnFonts, [](OutsideUser& user) {
    ExpectPicture(user, "", "splash");
    user.PressNamed("space");
    user.DragSlider("r", {37});
    user.DragSlider("N", {200});
    Retype(user, "r", ".5");
    ExpectPicture(user, "Vamo", "control_window");
    Retype(user, "N", "2");
    ExpectPicture(user, "Vamo", "control_window_warned");
    for (int step = 0; step < 4; ++step) user.PressNamed("ctrl+plus");
    ExpectPicture(user, "Vamo", "control_window_at_twice_its_size");
    user.PressNamed("ctrl+0");
    user.Click(Role::kButton, "Info");
    ExpectPicture(user, "Info", "info_window");
  });
}

}  // namespace
}  // namespace vamo
