// Text controls: what typing accepts, the effect of a write and a paste, the undo history.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "test_window.h"
#include "toolkit/control/properties.h"
#include "toolkit/object/property_stream.h"
#include "toolkit/runtime/key.h"
#include "toolkit/text/received_text.h"
#include "toolkit/text/text_area.h"
#include "toolkit/text/typing_rule.h"
#include "toolkit/utf8.h"

namespace vamo {
namespace {

TEST(TypingRuleTest, TheMaskIsAPrefixPattern) {
  struct Case {
    const char *mask, *before, *typed, *after;
    // The text before the caret afterwards; nothing if the character is refused.
    std::optional<std::string> result;
  };
  const Case kCases[] = {
      {".###", "", "5", "", ".5"},
      {".###", "", ".", "", "."},
      {".###", ".", ".", "", {}},
      {".###", ".555", "5", "", {}},
      {".###", "", "3", ".5", {}},
      {".###", ".1", "2", "3", ".12"},
      {".###", "", "a", "", {}},
      {"####", "1000", "1", "", {}},
      {"(##) #", "(12", "3", "", "(12) 3"},
      {"é#", "", "7", "", "é7"},
      {"", "any", "ü", "thing", "anyü"},
      {"1#", "", "2", "", "12"},
      {".###", ".00", ".", "5", "."},
      {".###", ".05", ".", "", {}},
      {".###", ".0", ".", "555", "."},
      {"(##) #", "(00) 0", ")", "", {}},
  };
  for (const Case& test : kCases) {
    EXPECT_EQ(Typed(test.before, test.after, test.typed, {test.mask, 0}), test.result)
        << test.mask << " " << test.before << "|" << test.typed << "|" << test.after;
  }
  EXPECT_EQ(Typed("ab", "é", "x", {"", 4}), "abx");
  EXPECT_EQ(Typed("ab", "éc", "x", {"", 4}), std::nullopt) << "characters count, not bytes";
}

TEST(TypingRuleTest, TheMaskChoosesTheKeyboardOnTheScreen) {
  EXPECT_EQ(KeyboardFor({"", 4}), KeyboardKind::kAll);
  EXPECT_EQ(KeyboardFor({"####", 0}), KeyboardKind::kDigits);
  EXPECT_EQ(KeyboardFor({"-#.###", 0}), KeyboardKind::kNumber);
  EXPECT_EQ(KeyboardFor({"##:##", 0}), KeyboardKind::kAll);
}

TEST(TextAreaTest, LinesHaveAsManyCharactersAsTheText) {
  TestProgram program;
  const auto area = New<TextArea>();
  area->SetText("a\rb\r\nc\n\r");
  EXPECT_EQ(area->TextInLines(), "a\nb\u200B\nc\n\n");
}

TEST(Utf8Test, EachByteOfABrokenSequenceBecomesAReplacementCharacter) {
  const std::string kBad = "\xEF\xBF\xBD";
  EXPECT_EQ(ValidUtf8("aé漢😀\x80z\xC0\xAF\xC3("), "aé漢😀" + kBad + "z" + kBad + kBad + kBad + "(");
  EXPECT_EQ(ValidUtf8(std::string_view("a\0b", 3)).size(), 3U);
  // The first and the last of each length and range, and what lies beside them.
  for (const char* valid :
       {"\xC2\x80", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_EQ(ValidUtf8(valid), valid);
  }
  for (const std::string broken : {"\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
                                   "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xEF\xBF"}) {
    EXPECT_EQ(ValidUtf8(broken).size(), kBad.size() * broken.size());
  }
  const std::string text = "é😀b";
  EXPECT_EQ(Utf16Offset(text, 6), 3U);
  EXPECT_EQ(ByteOffset(text, 2), 6U) << "inside a character: the next one";
  EXPECT_EQ(ByteOffset(text, 3), 6U);
  EXPECT_EQ(ByteOffset(text, 9), text.size());
}

TEST(ReceivedTextTest, DigitsSpacesAndADecimalCommaBecomePlain) {
  EXPECT_EQ(WithAsciiDigits("٠٫٣٧ ०९ ４ 𝟗𝟘𝟿 é²"), "0.37 09 4 909 é²");
  EXPECT_EQ(WithPlainSpaces("a\tb\u00A0c\u202Fd\u3000e\u0085f\u200Bg"), "a b c d e f\u200Bg");
  for (const auto& [text, number] : {std::pair{"0,5", "0.5"},
                                     {"  -,37 ", "  -.37 "},
                                     {"1,", "1."},
                                     {",", ","},
                                     {"1,2,3", "1,2,3"},
                                     {"1.2,3", "1.2,3"},
                                     {"r = 0,5", "r = 0,5"},
                                     {"0 ,5", "0 ,5"}}) {
    EXPECT_EQ(WithDecimalPoint(text), number);
  }
}

class TextFieldTest : public testing::Test {
 protected:
  TextFieldTest() {
    field_->TextChange =
        Delegate<void(Ref<TextField>)>(recorder_, &Recorder::TakeChange, ReceiverFlag::kStrong);
  }

  void Press(std::string text) { field_->HandleKey(Key::Character(std::move(text))); }

  // Records the text of each change; corrects one text and throws at another.
  struct Recorder : Object {
    void TakeChange(Ref<TextField> field) {
      changes.push_back(field->Text());
      if (field->Text() == "wrong") field->SetText("right");
      if (field->Text() == "failing") throw OutOfBoundsException("made to fail");
    }
    std::vector<std::string> changes;
  };

  TestProgram program_;
  Ref<TextField> field_ = New<TextField>();
  Ref<Recorder> recorder_ = New<Recorder>();
};

TEST_F(TextFieldTest, AWriteRaisesTheChangeInsideTheWriteAndOnlyForAnotherText) {
  field_->SetText("wrong");
  EXPECT_EQ(recorder_->changes, (std::vector<std::string>{"wrong", "right"}));
  EXPECT_EQ(field_->Text(), "right");
  EXPECT_EQ(field_->Selection(), (Selection{5, 5}));
  field_->SetText("right");
  EXPECT_EQ(recorder_->changes.size(), 2U);
}

TEST_F(TextFieldTest, AUsersEditRaisesTheChangeForTheSameTextToo) {
  field_->SetText("7");
  for (const auto& edit : {+[](TextField& field) { field.HandleKey(Key::Character("7")); },
                           +[](TextField& field) { field.UserPasted("7"); }}) {
    field_->UserSelected(0, 1);
    const std::size_t changes = recorder_->changes.size();
    edit(*field_);
    EXPECT_EQ(recorder_->changes.size(), changes + 1);
    EXPECT_EQ(field_->Text(), "7");
    EXPECT_FALSE(field_->CanUndo()) << "there is nothing to go back to";
  }
}

TEST_F(TextFieldTest, APasteIsOneChangeAndOneUndoStep) {
  field_->SetText("ab");
  field_->UserSelected(1, 1);
  field_->UserPasted("x\r\ny\xFFz\n\r");
  EXPECT_EQ(recorder_->changes.size(), 2U);
  EXPECT_EQ(field_->Text(), "ax y\xEF\xBF\xBDz  b");
  field_->Undo();
  EXPECT_EQ(field_->Text(), "ab");
  EXPECT_FALSE(field_->CanUndo());
}

TEST_F(TextFieldTest, UndoOfACorrectedEditRestoresTheTextBeforeIt) {
  field_->SetText("before");
  field_->UserSelected(0, 6);
  field_->UserPasted("wrong");
  EXPECT_EQ(field_->Text(), "right");
  field_->Undo();
  EXPECT_EQ(field_->Text(), "before");
  field_->UserPasted("!");
  field_->SetText("written");
  EXPECT_FALSE(field_->CanUndo()) << "the program's own write cannot be undone";
}

TEST_F(TextFieldTest, AFieldWorksOnAfterItsHandlerHasFailed) {
  const auto app = New<TestApplication>();
  app->takes = true;
  program_.runtime().RegisterApp(app);
  field_->UserPasted("failing");
  EXPECT_EQ(app->taken, "made to fail");
  EXPECT_EQ(field_->Text(), "failing");
  EXPECT_TRUE(field_->CanUndo());
  field_->SetText("written");
  EXPECT_FALSE(field_->CanUndo()) << "a write outside the user's edit is not undone";
}

// "0,5" means ".5", whether a filter or the mask refuses the comma.
TEST_F(TextFieldTest, ADigitAfterACommaAfterZerosTakesTheirPlace) {
  _SetProperties(*field_, EncodedStream<640>().Set(property::kValidationMask, ".###"));
  // "<" is the arrow key to the left, then a click at the end.
  const auto typed = [&](std::string_view keys) {
    field_->SetText("");
    for (const char key : keys) {
      field_->HandleKey(key == '<' ? Key{KeyCode::kLeft} : Key::Character(std::string(1, key)));
      if (key == '<') field_->UserSelected(field_->Text().size(), field_->Text().size());
    }
    return field_->Text();
  };
  for (const auto& [keys, text] : {std::pair{"0,5", ".5"},
                                   {"000,5", ".5"},
                                   {"0,,5", ".5"},
                                   {"0,0,5", ".05"},
                                   {"0,05", ".05"},
                                   {",5", ".5"},
                                   {".0,5", ".05"},
                                   {"1,5", ".15"},
                                   {"0,<5", ".05"},
                                   {"0<,5", ".05"},
                                   {"0,x5", ".05"},
                                   {"00,\b5", ".05"}}) {
    EXPECT_EQ(typed(keys), text) << keys;
  }
  typed("0,");
  field_->SetText(".00");
  Press("5");
  EXPECT_EQ(field_->Text(), ".005") << "the program has written the zeros";
  field_->KeyDown = Delegate<bool(Ref<TextField>, std::string)>(
      +[](Ref<TextField>, std::string key) { return key == ","; });
  EXPECT_EQ(typed("0,5"), ".5");
  _SetProperties(*field_, EncodedStream<640>().Set(property::kValidationMask, "#.##"));
  EXPECT_EQ(typed("0,5"), "0.5");
  _SetProperties(*field_, EncodedStream<640>().Set(property::kValidationMask, "####"));
  EXPECT_EQ(typed("0,5"), "05");
}

TEST_F(TextFieldTest, DeletingRemovesWholeCharactersOrTheSelection) {
  field_->SetText("aé漢b");
  Press("\b");
  Press("\b");
  EXPECT_EQ(field_->Text(), "aé");
  field_->UserSelected(0, 2);  // inside the second character: moved to its start
  EXPECT_EQ(field_->SelectedText(), "a");
  field_->HandleKey({KeyCode::kDelete});
  EXPECT_EQ(field_->Text(), "é");
  field_->HandleKey({KeyCode::kDelete});
  EXPECT_EQ(field_->Text(), "");
  const std::size_t changes = recorder_->changes.size();
  Press("\b");
  field_->HandleKey({KeyCode::kDelete});
  field_->Delete();
  EXPECT_EQ(recorder_->changes.size(), changes) << "nothing was deleted";
  field_->UserPasted("");
  EXPECT_EQ(recorder_->changes.size(), changes);
}

TEST_F(TextFieldTest, DeletingAWordDeletesTheSpacesInBetween) {
  const Key kBackwards = Key::Character("\b");
  const Key kForwards{KeyCode::kDelete};
  const auto after = [&](Key key, std::size_t caret) {
    field_->SetText("one  two ");
    field_->UserSelected(caret, caret);
    key.word = true;
    field_->HandleKey(key);
    return field_->Text();
  };
  EXPECT_EQ(after(kBackwards, 9), "one  ");
  EXPECT_EQ(after(kBackwards, 5), "two ");
  EXPECT_EQ(after(kBackwards, 0), "one  two ");
  EXPECT_EQ(after(kForwards, 0), "  two ");
  EXPECT_EQ(after(kForwards, 3), "one ");
  EXPECT_EQ(after(kForwards, 8), "one  two");
}

TEST_F(TextFieldTest, AReadOnlyOrDisabledFieldKeepsItsText) {
  _SetProperties(
      *field_, EncodedStream<640>().Set(property::kValue, "fixed").Set(property::kReadOnly, true));
  field_->UserSelected(0, 5);
  Press("x");
  Press("\b");
  field_->UserPasted("x");
  field_->Cut();
  EXPECT_EQ(field_->Text(), "fixed");
  field_->Copy();
  EXPECT_EQ(program_.display().Clipboard(), "fixed");
  EXPECT_FALSE(field_->CanPaste());

  const auto disabled = New<TextField>();
  disabled->SetEnabled(false);
  disabled->UserPasted("x");
  EXPECT_EQ(disabled->Text(), "");
}

TEST_F(TextFieldTest, TheUndoHistoryIsBoundedInStepsAndMemory) {
  const auto steps_back = [](TextField& field) {
    int steps = 0;
    for (; field.CanUndo(); ++steps) field.Undo();
    return steps;
  };
  const auto field = New<TextField>();
  for (int i = 0; i < 300; ++i) field->UserPasted("x");
  EXPECT_EQ(steps_back(*field), 100);
  for (int i = 0; i < 6; ++i) field->UserPasted(std::string(std::size_t{1} << 22U, 'x'));
  EXPECT_EQ(steps_back(*field), 1);
}

}  // namespace
}  // namespace vamo
