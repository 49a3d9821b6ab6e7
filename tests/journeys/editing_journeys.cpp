// A user's journeys through editing the texts of the control window: keys, pastes, the selection.
// They run on every display.
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <tuple>

#include "journeys/journey_steps.h"

namespace vamo {
namespace {

const Key kDeleteKey{KeyCode::kDelete};

TEST(EditingJourney, KeyFiltersBeepAndSwallow) {
  InControlWindow([&](User& user) {
    for (const auto& [field, typed, shown, refused] :
         {std::tuple{"r", "9a8-/: 7\r\x1b~", ".987", 8},
          {"r", ".6x.5", ".65", 2},
          {"N", "4a5-6.\r\x1b", "456", 5}}) {
      Retype(user, field, "");
      const int beeps = user.Beeps();
      user.Type(typed);
      EXPECT_EQ(FieldText(user, field), shown);
      EXPECT_EQ(user.Beeps(), beeps + refused) << typed;
    }
  });
}

TEST(EditingJourney, PastesGoInAsTheyAre) {
  InControlWindow([&](User& user) {
    for (const auto& [paste, field, z] : {std::tuple{"1.5", ".99999", "6.103"},
                                          {"-.2", ".000", "0.000"},
                                          {"abc", "abc", "0.000"},
                                          {".5\n5\r\n", ".5 5 ", "0.549"},
                                          {"½ é 漢", "½ é 漢", "0.000"}}) {
      PasteOver(user, "r", paste);
      EXPECT_EQ(FieldText(user, "r"), field);
      EXPECT_EQ(FieldText(user, "Fisher's z"), z) << paste;
    }
    EXPECT_EQ(user.Beeps(), 0);
    for (const auto& [paste, results] : {std::pair{"30.9", ".00 | .99999 | -.360 to +.360"},
                                         {"-7", ".00 | .99999 | n/a to n/a"},
                                         {"99999999999999999999", " |  | "}}) {
      PasteOver(user, "N", paste);
      EXPECT_EQ(ResultLine(user), results) << paste;
      EXPECT_EQ(Warned(user), paste[0] != '3');
    }
  });
}

TEST(EditingJourney, StandsAHugePaste) {
  InControlWindow([](User& user) {
    PasteOver(user, "r", "." + std::string(1'000'000, '3'));
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
      PasteOver(user, "r", pasted);
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
