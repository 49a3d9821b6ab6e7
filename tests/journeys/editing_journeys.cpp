// A user's journeys through editing the texts of the control window: keys, pastes, the selection.
// They run on every display.
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <tuple>
#include <vector>

#include "journeys/journey_steps.h"

namespace vamo {
namespace {

const Key kBackTabKey{KeyCode::kCharacter, std::string(1, kTab), true, false};
const Key kBackspaceKey = Key::Character(std::string(1, kBackspace));
const Key kDeleteKey{KeyCode::kDelete};

TEST(EditingJourney, KeyFiltersBeepAndSwallow) {
  struct Case {
    const char *field, *typed, *shown;
    int beeps;
  };
  const Case kCases[] = {{"r", "9a8-/: 7\r\x1b~", ".987", 8},
                         {"r", ".6x.5", ".65", 2},
                         {"N", "4a5-6.\r\x1b", "456", 5}};
  InControlWindow([&](User& user) {
    for (const auto& [field, typed, shown, refused] : kCases) {
      Retype(user, field, "");
      const int beeps = user.Beeps();
      user.Type(typed);
      EXPECT_EQ(FieldText(user, field), shown);
      EXPECT_EQ(user.Beeps(), beeps + refused) << typed;
    }
  });
}

TEST(EditingJourney, PastesGoInAsTheyAre) {
  struct Case {
    std::string paste, field, z;
  };
  const Case kCases[] = {
      {"1.5", ".99999", "6.103"},    {"-.2", ".000", "0.000"},    {".99999", ".99999", "6.103"},
      {"abc", "abc", "0.000"},       {"1e5", ".99999", "6.103"},  {".5\n5\r\n", ".5 5 ", "0.549"},
      {"  .25x", "  .25x", "0.255"}, {"0.5.5", "0.5.5", "0.549"}, {"½ é 漢", "½ é 漢", "0.000"},
  };
  InControlWindow([&](User& user) {
    Retype(user, "N", "30");
    for (const Case& test : kCases) {
      Retype(user, "r", "");
      const int beeps = user.Beeps();
      user.Paste(test.paste);
      EXPECT_EQ(FieldText(user, "r"), test.field);
      EXPECT_EQ(FieldText(user, "Fisher's z"), test.z) << test.paste;
      EXPECT_EQ(user.Beeps(), beeps) << test.paste;
    }
    Retype(user, "N", "");
    user.Paste("30.9");
    EXPECT_EQ(ResultLine(user), ".00 | .99999 | -.360 to +.360");
    Retype(user, "N", "");
    user.Paste("-7");
    EXPECT_TRUE(Warned(user));
    Retype(user, "N", "");
    user.Paste(std::string(20, '9'));
    EXPECT_TRUE(Warned(user));
    EXPECT_EQ(ResultLine(user), " |  | ");
  });
}

TEST(EditingJourney, StandsAHugePaste) {
  InControlWindow([](User& user) {
    Retype(user, "N", "30");
    Retype(user, "r", "");
    user.Paste("." + std::string(1'000'000, '3'));
    EXPECT_EQ(FieldText(user, "r").size(), 1'000'001U);
    EXPECT_EQ(FieldText(user, "Fisher's z"), "0.347");
    user.PressKey(kBackspaceKey);
    EXPECT_EQ(FieldText(user, "r").size(), 1'000'000U);
    Retype(user, "r", "5");
    EXPECT_EQ(FieldText(user, "r"), ".5");
  });
}

TEST(EditingJourney, TheUserMovesTheCaretAndSelects) {
  InControlWindow([](User& user) {
    Retype(user, "r", ".1");
    user.Type("3");
    user.PressKey(Arrow(KeyCode::kLeft));
    user.Type("2");
    EXPECT_EQ(FieldText(user, "r"), ".123");
    user.PressKey(Arrow(KeyCode::kHome));
    user.PressKey(kBackspaceKey);
    EXPECT_EQ(FieldText(user, "r"), ".123");
    user.PressKey(Arrow(KeyCode::kEnd, /*shift=*/true));
    EXPECT_EQ(user.Sees(Role::kText, "r").selected_text, ".123");
    user.PressKey(Key::Command("c"));
    EXPECT_EQ(user.Clipboard(), ".123");
    user.Type("7");
    EXPECT_EQ(FieldText(user, "r"), ".7");
    EXPECT_EQ(FieldText(user, "Fisher's z"), "0.867");
    user.PressKey(Key::Command("z"));
    EXPECT_EQ(FieldText(user, "r"), ".123");
    EXPECT_EQ(FieldText(user, "Fisher's z"), "0.124");
    user.PressKey(Arrow(KeyCode::kEnd));
    EXPECT_EQ(user.Sees(Role::kText, "r").selected_text, "");
    user.Click(Role::kText, "N");
    user.Paste("40");
    user.PressKey(kBackTabKey);
    EXPECT_EQ(user.Sees(Role::kText, "r").selected_text, ".123") << "entered by Tab";
    user.PressKey(Key::Command("x"));
    EXPECT_EQ(FieldText(user, "r"), "");
    EXPECT_EQ(user.Clipboard(), ".123");
    EXPECT_EQ(ResultLine(user), ".00 | .99999 | -.312 to +.312");
  });
}

TEST(EditingJourney, ADecimalCommaMeansThePoint) {
  InControlWindow([](User& user) {
    for (const auto& [typed, shown, beeps] :
         {std::tuple{"0,5", ".5", 1}, {"00,37", ".37", 1}, {"0,05", ".05", 1}, {"5,5", ".55", 1}}) {
      Retype(user, "r", "");
      const int before = user.Beeps();
      user.Type(typed);
      EXPECT_EQ(FieldText(user, "r"), shown) << typed;
      EXPECT_EQ(user.Beeps(), before + beeps) << typed;
    }
    for (const auto& [pasted, shown] :
         {std::pair{"0,5", "0.5"}, {" ,37\t", " .37 "}, {",1,2", ",1,2"}}) {
      Retype(user, "r", "");
      user.Paste(pasted);
      EXPECT_EQ(FieldText(user, "r"), shown);
    }
    EXPECT_EQ(FieldText(user, "Fisher's z"), "0.000");
  });
}

// After a drag of the slider the field is full, so a key would be refused or appended.
TEST(EditingJourney, TheClickThatEntersAFieldSelectsItsText) {
  InControlWindow([](User& user) {
    for (const auto& [field, key, shown] : {std::tuple{"r", "4", ".4"}, {"N", "7", "7"}}) {
      user.DragSlider(field, {50});
      user.Click(Role::kText, field);
      user.Type(key);
      EXPECT_EQ(FieldText(user, field), shown);
    }
    // Too late for a double click.
    user.LetTimePass(std::chrono::milliseconds(1000));
    user.Click(Role::kText, "N");
    EXPECT_EQ(user.Sees(Role::kText, "N").selected_text, "") << "the next click places the caret";
    user.Type("5");
    EXPECT_EQ(FieldText(user, "N"), "75");
  });
}

TEST(EditingJourney, AWordIsDeletedOrLeftAsItWas) {
  InControlWindow([](User& user) {
    Key word = kDeleteKey;
    word.word = true;
    Retype(user, "N", "500");
    user.PressKey(Arrow(KeyCode::kHome));
    user.PressKey(kDeleteKey);
    EXPECT_EQ(FieldText(user, "N"), "00");
    user.PressKey(Arrow(KeyCode::kEnd, /*shift=*/true));
    Key cut = kDeleteKey;
    cut.shift = true;
    user.PressKey(cut);
    EXPECT_EQ(FieldText(user, "N"), "");
    EXPECT_EQ(user.Clipboard(), "00") << "with shift it cuts";
    user.Type("12");
    user.PressKey(Arrow(KeyCode::kHome));
    const int beeps = user.Beeps();
    user.PressKey(word);
    EXPECT_EQ(FieldText(user, "N"), "");
    EXPECT_EQ(user.Beeps(), beeps + 1) << "the range alone: no filter sees it";
    user.Type("1500");
    word = kBackspaceKey;
    word.word = true;
    user.PressKey(word);
    EXPECT_EQ(FieldText(user, "N"), "");
  });
}

}  // namespace
}  // namespace vamo
