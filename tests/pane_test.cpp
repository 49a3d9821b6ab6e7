// The pane at the side of a window and the View menu: when they are shown, what is announced.
#include "toolkit/window/pane.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controlwnd/control_wnd.h"
#include "displays/headless/window.h"
#include "shell/menu.h"
#include "test_program.h"
#include "toolkit/window/menu_service.h"

namespace vamo {
namespace {

class PaneTest : public testing::Test {
 protected:
  PaneTest() {
    window_->Show();
    // Waits until the window is active.
    program_.user().LetTimePass(std::chrono::milliseconds(1));
  }
  void PressF9() { program_.user().PressKey({KeyCode::kF9, ""}); }
  HeadlessWindow& View() { return program_.display().ActiveWindow(); }

  TestProgram program_;
  Ref<class ControlWnd> window_ = Cast<class ControlWnd>(ControlWnd());
};

TEST_F(PaneTest, IsShownOncePerEventAndNotWhileItIsClosed) {
  HeadlessUser& user = program_.user();
  user.Type("30");
  user.DragSlider("r", {5, 50});
  EXPECT_EQ(View().PaneShowings(), 0);
  PressF9();
  EXPECT_EQ(View().PaneShowings(), 1);
  // The slider writes the field, whose change calculates; then the slider calculates again.
  user.DragSlider("r", {37});
  EXPECT_EQ(View().PaneShowings(), 2);
  EXPECT_EQ(View().ShownPane(), View().PresentPane());
  EXPECT_EQ(View().PaneDrawing().height, 425);
  window_->DoIt(.5, 0);
  EXPECT_EQ(View().ShownPane(), View().PresentPane()) << "outside of an event at once";
  PressF9();
  user.DragSlider("r", {38});
  EXPECT_EQ(View().PaneShowings(), 4);
  EXPECT_TRUE(View().PaneDrawing().marks.empty());
}

TEST_F(PaneTest, AnnouncesItsDescriptionWheneverItOpens) {
  program_.user().Hears();
  PressF9();
  PressF9();
  PressF9();
  EXPECT_EQ(program_.user().Hears(),
            (std::vector<std::string>{"Chart shown. No result yet.", "Chart hidden",
                                      "Chart shown. No result yet."}));
}

TEST_F(PaneTest, StaysClosedIfThereIsNoRoom) {
  program_.display().LeaveNoRoomForPanes();
  program_.user().Hears();
  PressF9();
  EXPECT_EQ(program_.user().Beeps(), 1);
  EXPECT_FALSE(window_->SidePane()->IsOpen());
  EXPECT_TRUE(program_.user().Hears().empty());
}

TEST_F(PaneTest, TheViewMenuIsBeforeWindowAndOutsideTheTree) {
  std::string bar;
  for (const DrawnMenu& menu : DrawnMenus(*window_->MenuBar())) bar += menu.text + ' ';
  EXPECT_EQ(bar, "File Edit View Window Help ");
  EXPECT_FALSE(window_->MenuBar()->_Lookup("Chart"));
  const Ref<MenuItem> item = DrawnMenus(*window_->MenuBar())[2].items.at(0);
  for (const bool open : {false, true}) {
    UserOpensMenu();
    EXPECT_EQ(item->Checked(), open);
    EXPECT_TRUE(program_.user().Choose("View/Chart"));
  }
  // Without a window with a pane the item is disabled.
  window_->Hide();
  UserOpensMenu();
  EXPECT_FALSE(item->Enabled());
  UserChose(item);
  EXPECT_FALSE(window_->SidePane()->IsOpen());
}

}  // namespace
}  // namespace vamo
