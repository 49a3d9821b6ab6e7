// From outside: what assistive technology reads.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "steps.h"

namespace vamo {
namespace {

// Everything that is read out of the active window, in alphabetical order, without boxes, pictures
// and hidden scroll bars, which have no text.
std::vector<std::string> ReadAll(OutsideUser& user) {
  std::vector<std::string> all;
  for (const Element& element : user.Elements()) {
    std::string read = element.RoleName();
    if (read == "filler" || read == "scroll bar") continue;
    read += " | " + element.Name() + " | " + element.Description() + " | " + element.LabelledBy();
    if (!element.IsEnabled()) read += " | disabled";
    if (!element.IsShowing()) read += " | hidden";
    if (element.HasState(ATSPI_STATE_FOCUSABLE)) read += " | focusable";
    const bool read_only = element.HasState(ATSPI_STATE_READ_ONLY);
    if (!read_only && element.HasState(ATSPI_STATE_EDITABLE)) read += " | editable";
    if (read_only) read += " | read-only";
    all.push_back(read);
  }
  std::sort(all.begin(), all.end());
  return all;
}

TEST(Reading, TheControlWindow) {
  InControlWindow([](OutsideUser& user) {
    Retype(user, "N", "30");
    Retype(user, "r", ".5");
    EXPECT_EQ(ReadAll(user),
              (std::vector<std::string>{
                  "button | Info |  | ",
                  "label | (4 - 1,1000) | range of N |  | hidden",
                  "label | +.170 to +.729 | 95% confidence interval of r | 95% CI of r =",
                  "label | .00490 | two-tailed p | p =",
                  "label | 3.06 | Student's t | t =",
                  "label | 95% CI of r = |  | ",
                  "label | Fisher's z = |  | ",
                  "label | N = |  | ",
                  "label | Vamo |  | ",
                  "label | by Halden Q. Orrin |  | ",
                  "label | p = |  | ",
                  "label | r = |  | ",
                  "label | t = |  | ",
                  "slider | N |  | N = | focusable",
                  "slider | r |  | r = | focusable",
                  "text | Fisher's z |  | Fisher's z = | disabled | read-only",
                  "text | N |  | N = | focusable | editable",
                  "text | r |  | r = | focusable | editable",
              }));
  });
}

TEST(Reading, AnEditIsReadAsTheTextsRemovedAndInserted) {
  using Edits = std::vector<std::string>;
  InControlWindow([](OutsideUser& user) {
    Retype(user, "r", ".355");
    user.HearsEdits("r");
    user.PressNamed("BackSpace");
    EXPECT_EQ(user.HearsEdits("r"), Edits{"-5"});
    user.PressNamed("Home");
    user.PressNamed("Right");
    user.Type("2");
    EXPECT_EQ(user.HearsEdits("r"), Edits{"+2"});
    user.PressKey(Key::Command("a"));
    user.Type("7");
    EXPECT_EQ(user.HearsEdits("r"), (Edits{"-235", "+7"})) << "the point has stayed";
    EXPECT_EQ(FieldText(user, "r"), ".7");
  });
}

TEST(Reading, TheSplashAndTheInfoWindow) {
  const auto journey = [](OutsideUser& user) {
    EXPECT_EQ(ReadAll(user),
              (std::vector<std::string>{
                  "label | Vamo |  | ",
                  "label | © 2026 Halden Q. Orrin. Free for teaching and research. |  | ",
              }));
    EXPECT_EQ(user.Frame().Name() + user.WindowTitled("").name, "VamoVamo");
    user.PressNamed("space");
    user.Click(Role::kButton, "Info");
    EXPECT_EQ(ReadAll(user), std::vector<std::string>{"text | Info |  |  | focusable | read-only"});
    const std::string content = FieldText(user, "Info");
    EXPECT_EQ(content.rfind("Vamo simulates how the 95% confidence interval", 0), 0U);
    EXPECT_NE(content.find("accordingly.\n\nCopyright"), std::string::npos)
        << "an empty line between paragraphs";
    EXPECT_NE(content.find("(p ≠ 0)"), std::string::npos);
  };
  RunProgramWith(journey, {ProgramPath()});
}

}  // namespace
}  // namespace vamo
