// The control window: its layout, the wiring of its events, its calculation.
#include "controlwnd/control_wnd.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "controlwnd/chart_small.h"
#include "shell/about_wnd.h"
#include "test_program.h"
#include "toolkit/window/text_room.h"

namespace vamo {
namespace {

class ControlWndTest : public testing::Test {
 protected:
  template <class... Accessors>
  std::string NamesOf(Accessors... accessors) {
    return (... + (((*window_).*accessors)()->Name() + ", "));
  }

  TestProgram program_;
  Ref<class ControlWnd> window_ = ControlWnd();
};

TEST_F(ControlWndTest, HasItsControlsInOrderWithTheirParents) {
  std::string order;
  std::string names;
  for (const auto& control : window_->Controls()) {
    const auto parent = window_->ParentOf(*control);
    order += control->Name() + (parent ? " in " + parent->Name() : "") + ", ";
    names += control->Name() + ", ";
    EXPECT_EQ(control->_Index(), INT32_MIN);
    EXPECT_TRUE(control->Window() == window_);
  }
  EXPECT_EQ(
      order,
      "rEdit, nEdit, Rectangle2, Canvas3 in Rectangle2, StaticText4, StaticText9, Rectangle1, "
      "rSlider, nSlider, StaticText2, StaticText3, nText, StaticText8, zFld, Qbtn, Rectangle3, "
      "StaticText5 in Rectangle3, StaticText1 in Rectangle3, pText in Rectangle3, "
      "StaticText7 in Rectangle3, ciText in Rectangle3, tText in Rectangle3, ");
  // Most controls never change, so nothing else in the program uses their accessors.
  using W = class ControlWnd;
  EXPECT_EQ(
      NamesOf(&W::rEdit, &W::nEdit, &W::Rectangle2, &W::Canvas3, &W::StaticText4, &W::StaticText9,
              &W::Rectangle1, &W::rSlider, &W::nSlider, &W::StaticText2, &W::StaticText3, &W::nText,
              &W::StaticText8, &W::zFld, &W::Qbtn, &W::Rectangle3, &W::StaticText5, &W::StaticText1,
              &W::pText, &W::StaticText7, &W::ciText, &W::tText),
      names);
}

TEST_F(ControlWndTest, ALabelsRoomEndsBeforeWhatStandsBesideIt) {
  const struct {
    Ref<Label> label;
    double left, right;
  } kCases[] = {
      {window_->StaticText2(), 20, 5}, {window_->StaticText9(), 5, 9},
      {window_->nText(), 7, 239},      {window_->tText(), 0, 11},
      {window_->ciText(), 0, 5},       {window_->StaticText7(), 22, -7},
  };
  for (const auto& [label, left, right] : kCases) {
    EXPECT_EQ(RoomOfText(*label).left, left) << label->Name();
    EXPECT_EQ(RoomOfText(*label).right, right) << label->Name();
  }
}

TEST_F(ControlWndTest, TheSampleSizeComesFromTheFieldAndROfTheArgument) {
  struct Case {
    double r;
    const char *n, *t, *p, *ci;
  };
  const Case kCases[] = {
      {0.5, "31", "3.11", ".00418", "+.177 to +.726"},
      {0.3, "10", ".89", ".39969", "-.406 to +.782"},
      {0.99999, "1000", "7063.94", ".00001", "+1.000 to +1.000"},
      {0.001, "4", ".00", ".99900", "-.961 to +.961"},
      {0.6, "11", "2.25", ".05100", "+.000 to +.882"},
      {0.5, "-12", ".00", ".99999", "n/a to n/a"},
  };
  for (const Case& test : kCases) {
    window_->nEdit()->SetText(test.n);
    window_->DoIt(test.r, 77);
    EXPECT_EQ(window_->tText()->Text(), test.t) << test.r << " " << test.n;
    EXPECT_EQ(window_->pText()->Text(), test.p) << test.r << " " << test.n;
    EXPECT_EQ(window_->ciText()->Text(), test.ci) << test.r << " " << test.n;
  }
}

TEST_F(ControlWndTest, AboveTheRangeTheModelKeepsItsLastResults) {
  window_->nEdit()->SetText("30");
  window_->DoIt(0.5, 0);
  const double t = window_->t;
  const double p = window_->p;
  for (const std::string& n : {std::string("1001"), std::string(400, '9')}) {
    window_->nEdit()->SetText(n);
    window_->DoIt(0.7, 0);
    EXPECT_EQ(window_->tText()->Text() + window_->pText()->Text() + window_->ciText()->Text(), "");
    EXPECT_TRUE(window_->nText()->Visible());
  }
  EXPECT_EQ(window_->N, INT64_MAX);
  EXPECT_EQ(program_.display().Beeps(), 4);
  EXPECT_EQ(window_->t, t);
  EXPECT_EQ(window_->p, p);
}

TEST_F(ControlWndTest, AnnouncesResultsOnceTheyStopChanging) {
  using std::chrono_literals::operator""ms;
  HeadlessUser& user = program_.user();
  const auto heard_after = [&](std::chrono::milliseconds time) {
    user.LetTimePass(time);
    return user.Hears();
  };
  const std::vector<std::string> nothing;
  EXPECT_EQ(heard_after(1000ms), nothing) << "nothing has been calculated";
  EXPECT_EQ(user.Sees(Role::kButton, "Info").text, "?");
  window_->nEdit()->SetText("30");
  for (const char* r : {".4", ".6", ".5"}) {
    EXPECT_EQ(heard_after(250ms), nothing);
    window_->rEdit()->SetText(r);
  }
  const std::string results =
      "Student's t 3.06, two-tailed p .00490, 95% confidence interval of r +.170 to +.729";
  EXPECT_EQ(heard_after(300ms), std::vector{results + ", Fisher's z 0.549"});
  EXPECT_EQ(program_.display().RunningTimers(), 1U) << "only that of the splash";
  window_->rEdit()->SetText(".6");
  window_->rEdit()->SetText(".5");
  EXPECT_EQ(heard_after(1000ms), nothing) << "it has been announced already";
  window_->nEdit()->SetText("9999");
  EXPECT_EQ(heard_after(1000ms), std::vector<std::string>{"range of N (4 - 1,1000)"});
  window_->nEdit()->SetText("2");
  EXPECT_EQ(heard_after(1000ms).size(), 1U);
  window_->nEdit()->SetText("3");
  EXPECT_EQ(user.Hears(), nothing) << "30 begins with a 3";
  window_->nEdit()->SetText("30");
  EXPECT_EQ(heard_after(1000ms), std::vector{results}) << "Fisher's z has not changed";
  window_->nEdit()->SetText("31");
  user.SwitchAway();
  window_->nEdit()->SetText("9999");
  EXPECT_EQ(heard_after(1000ms), nothing) << "it would be spoken into another program";
}

// Tests the filters directly, because the masks refuse many of the same characters.
TEST_F(ControlWndTest, EachFilterLetsDigitsAndEditingKeysThrough) {
  const std::string both = "0123456789\b\t\x10";
  for (const auto& [field, passing] :
       {std::pair{window_->rEdit(), both + "."}, std::pair{window_->nEdit(), both}}) {
    const int beeps = program_.display().Beeps();
    for (int code = 0; code < 128; ++code) {
      const std::string key(1, static_cast<char>(code));
      const bool passes = passing.find(key) != std::string::npos;
      EXPECT_EQ(field->KeyDown.Invoke(field, key), !passes) << code;
    }
    EXPECT_TRUE(field->KeyDown.Invoke(field, ""));
    EXPECT_EQ(program_.display().Beeps(), beeps + 129 - static_cast<int>(passing.size()));
  }
}

TEST_F(ControlWndTest, ThePictureIsLoadedOnceAndShared) {
  EXPECT_TRUE(window_->Canvas3()->Backdrop());
  EXPECT_TRUE(window_->Canvas3()->Backdrop() == _x_ChartSmall::ChartSmall());
  EXPECT_TRUE(window_->Canvas3()->Backdrop() ==
              Cast<class AboutWnd>(AboutWnd())->Canvas1()->Backdrop());
  TestProgram without;
  without.display().RemovePictures();
  const auto window = ControlWnd();
  EXPECT_FALSE(window->Canvas3()->Backdrop());
  window->nEdit()->SetText("30");
  EXPECT_EQ(window->pText()->Text(), ".99999");
}

}  // namespace
}  // namespace vamo
