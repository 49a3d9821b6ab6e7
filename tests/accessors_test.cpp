// The windows' own names for their controls, and what is asked of them by name alone.
#include <gtest/gtest.h>

#include <string>

#include "controlwnd/control_wnd.h"
#include "shell/about_wnd.h"
#include "shell/handle_about_menu.h"
#include "test_program.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {
namespace {

class AccessorsTest : public testing::Test {
 protected:
  // The names of what the accessors give, each with a comma behind it.
  template <class... Accessors>
  std::string NamesOf(Accessors... accessors) {
    return (... + (((*window_).*accessors)()->Name() + ","));
  }

  TestProgram program_;
  Ref<class ControlWnd> window_ = Cast<class ControlWnd>(ControlWnd());
};

// Most controls are fixed, so nothing else of the program would miss them.
TEST_F(AccessorsTest, EachControlIsFoundUnderItsOwnName) {
  using W = class ControlWnd;
  EXPECT_EQ(NamesOf(&W::rEdit, &W::nEdit, &W::zFld, &W::rSlider, &W::nSlider, &W::Qbtn),
            "rEdit,nEdit,zFld,rSlider,nSlider,Qbtn,");
  EXPECT_EQ(NamesOf(&W::Rectangle1, &W::Rectangle2, &W::Rectangle3, &W::Canvas3),
            "Rectangle1,Rectangle2,Rectangle3,Canvas3,");
  EXPECT_EQ(NamesOf(&W::StaticText1, &W::StaticText2, &W::StaticText3, &W::StaticText4,
                    &W::StaticText5, &W::StaticText7, &W::StaticText8, &W::StaticText9),
            "StaticText1,StaticText2,StaticText3,StaticText4,StaticText5,StaticText7,StaticText8,"
            "StaticText9,");
  EXPECT_EQ(NamesOf(&W::tText, &W::pText, &W::ciText, &W::nText), "tText,pText,ciText,nText,");
}

TEST_F(AccessorsTest, EachMenuItemIsFoundUnderItsOwnName) {
  using W = class ControlWnd;
  EXPECT_EQ(NamesOf(&W::UntitledMenu0, &W::UntitledMenu1, &W::UntitledMenu2, &W::UntitledMenu3,
                    &W::UntitledMenu4, &W::UntitledMenu5, &W::UntitledMenu6, &W::UntitledMenu7,
                    &W::UntitledMenu8),
            "UntitledMenu0,UntitledMenu1,UntitledMenu2,UntitledMenu3,UntitledMenu4,UntitledMenu5,"
            "UntitledMenu6,UntitledMenu7,UntitledMenu8,");
  EXPECT_EQ(
      NamesOf(&W::WindowMenu, &W::AboutKEL, &W::AboutMenuItem, &W::ControlMenuItem, &W::EditClear,
              &W::EditPaste, &W::EditCopy, &W::EditCut, &W::EditUndo, &W::FileQuit),
      "WindowMenu,AboutKEL,AboutMenuItem,ControlMenuItem,EditClear,EditPaste,EditCopy,EditCut,"
      "EditUndo,FileQuit,");
}

TEST_F(AccessorsTest, EachHandlerPassesItsEventOn) {
  for (const auto& [name, handler] : window_->MenuHandlers()) EXPECT_FALSE(handler.Invoke());
  EXPECT_EQ(window_->MenuHandlers().size(), 2U);
  EXPECT_FALSE(window_->Qbtn()->MouseDown.Invoke(window_->Qbtn(), 1, 1));
  EXPECT_FALSE(AboutWnd()->Event_KeyDown("x"));
  EXPECT_FALSE(AboutWnd()->Event_MouseDown(1, 1));
  const auto app = New<HandleAboutMenu>();
  EXPECT_FALSE(app->_AboutKEL_Action() || app->_AboutMenuItem_Action());
}

TEST_F(AccessorsTest, BothWindowsShowTheOnePicture) {
  const auto about = Cast<class AboutWnd>(AboutWnd());
  EXPECT_TRUE(about->Canvas1()->Backdrop());
  EXPECT_TRUE(about->Canvas1()->Backdrop() == window_->Canvas3()->Backdrop());
}

TEST_F(AccessorsTest, AClassThatIsNoneOfTheObjectsHandlesNoEvent) {
  EXPECT_TRUE(_RuntimeIsEventHandled(*window_, "ControlWnd.ControlWnd", "Layout", true));
  EXPECT_FALSE(_RuntimeIsEventHandled(*window_, "InfoWnd.InfoWnd", "Layout", true));
  // The base implements no event, the class that is derived from it does.
  EXPECT_FALSE(_RuntimeIsEventHandled(*window_, "Window", "Layout", false));
  EXPECT_TRUE(_RuntimeIsEventHandled(*window_, "ControlWnd.ControlWnd", "Layout", false));
}

}  // namespace
}  // namespace vamo
