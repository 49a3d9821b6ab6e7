// From outside: what assistive technology reads.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "steps.h"

namespace vamo {
namespace {

struct ReadOut {
  std::string role, name, description, caption;
  bool enabled = true;
  bool showing = true;

  auto AsTuple() const { return std::tie(role, name, description, caption, enabled, showing); }
  bool operator==(const ReadOut& other) const { return AsTuple() == other.AsTuple(); }
  bool operator<(const ReadOut& other) const { return AsTuple() < other.AsTuple(); }
};

std::ostream& operator<<(std::ostream& stream, const ReadOut& read) {
  return stream << read.role << " '" << read.name << "' (" << read.description << ", "
                << read.caption << (read.enabled ? "" : ", disabled")
                << (read.showing ? ")" : ", hidden)");
}

// Everything that is read out of the active window, in alphabetical order, without boxes, pictures
// and hidden scroll bars, which have no text.
std::vector<ReadOut> ReadAll(OutsideUser& user) {
  std::vector<ReadOut> all;
  for (const Element& element : user.Elements()) {
    const std::string role = element.RoleName();
    if (role == "filler" || role == "scroll bar") continue;
    all.push_back({role, element.Name(), element.Description(), element.LabelledBy(),
                   element.HasState(ATSPI_STATE_ENABLED), element.HasState(ATSPI_STATE_SHOWING)});
  }
  std::sort(all.begin(), all.end());
  return all;
}

TEST(Reading, TheControlWindow) {
  std::vector<ReadOut> expected{
      {"label", "3.06", "Student's t", "t ="},
      {"label", ".00490", "two-tailed p", "p ="},
      {"label", "+.170 to +.729", "95% confidence interval of r", "95% CI of r ="},
      {"label", "(4 - 1,1000)", "range of N", "", true, false},
      {"label", "Vamo", "", ""},
      {"label", "by Halden Q. Orrin", "", ""},
      {"label", "r =", "", ""},
      {"label", "N =", "", ""},
      {"label", "Fisher's z =", "", ""},
      {"label", "t =", "", ""},
      {"label", "p =", "", ""},
      {"label", "95% CI of r =", "", ""},
      {"text", "r", "", "r ="},
      {"text", "N", "", "N ="},
      {"text", "Fisher's z", "", "Fisher's z =", false},
      {"slider", "r", "", "r ="},
      {"slider", "N", "", "N ="},
      {"button", "Info", "", ""},
  };
  std::sort(expected.begin(), expected.end());
  InControlWindow({}, [&](OutsideUser& user) {
    Retype(user, "N", "30");
    Retype(user, "r", ".5");
    EXPECT_EQ(ReadAll(user), expected);
    const Element& z = user.Find(Role::kText, "Fisher's z");
    EXPECT_TRUE(z.HasState(ATSPI_STATE_READ_ONLY));
    EXPECT_FALSE(z.HasState(ATSPI_STATE_FOCUSABLE));
    const Element& r = user.Find(Role::kText, "r");
    EXPECT_TRUE(r.HasState(ATSPI_STATE_EDITABLE));
    EXPECT_TRUE(r.HasState(ATSPI_STATE_FOCUSABLE));
  });
}

TEST(Reading, AnEditIsReadAsTheTextsRemovedAndInserted) {
  using Edits = std::vector<std::string>;
  InControlWindow({}, [](OutsideUser& user) {
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
  FromTheStart({}, [](OutsideUser& user) {
    const std::vector<ReadOut> splash = ReadAll(user);
    ASSERT_EQ(splash.size(), 2U);
    EXPECT_EQ(splash[0].name, "Vamo");
    EXPECT_EQ(user.Frame().Name() + user.WindowTitled("").name, "VamoVamo");
    EXPECT_EQ(splash[1].name.rfind("©", 0), 0U);
    user.PressNamed("space");
    user.Click(Role::kButton, "Info");
    ASSERT_EQ(user.ActiveTitle(), "Info");
    EXPECT_EQ(ReadAll(user), (std::vector<ReadOut>{{"text", "Info", "", ""}}));
    const Element& text = user.Find(Role::kText, "Info");
    EXPECT_TRUE(text.HasState(ATSPI_STATE_READ_ONLY));
    EXPECT_FALSE(text.HasState(ATSPI_STATE_EDITABLE));
    const std::string content = text.Text();
    EXPECT_EQ(content.rfind("Vamo simulates how the 95% confidence interval", 0), 0U);
    EXPECT_NE(content.find("accordingly.\n\nCopyright"), std::string::npos)
        << "an empty line between paragraphs";
    EXPECT_NE(content.find("(p ≠ 0)"), std::string::npos);
  });
}

}  // namespace
}  // namespace vamo
