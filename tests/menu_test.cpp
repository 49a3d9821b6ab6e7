// The toolkit's rules for menus: which handler is asked, what is enabled, what a shortcut does.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "test_window.h"
#include "toolkit/window/menu_service.h"

namespace vamo {
namespace {

class MenuTest : public testing::Test {
 protected:
  MenuTest() {
    const auto edit = New<MenuItem>();
    edit->SetName("Edit");
    edit->SetValue("Edit");
    bar_->AddMenu(edit);
    for (const auto& [name, shortcut] : {std::pair{"Own", "Cmd+O"}, {"EditCopy", "Cmd+C"}}) {
      const auto item = New<MenuItem>();
      item->SetName(name);
      item->SetValue(name);
      item->SetShortcut(shortcut);
      item->SetAutoEnabled(false);
      edit->AddMenu(item);
    }
    app_->SetMenuBar(bar_);
    program_.runtime().RegisterApp(app_);
    window_ = ImplicitInstance<TestWindow>();
    program_.user().PressKey(Key::Character("x"));
  }

  MenuHandler Handler(bool (CallLog::*method)()) { return {log_, method, ReceiverFlag::kStrong}; }

  TestProgram program_;
  Ref<TestApplication> app_ = New<TestApplication>();
  Ref<MenuBar> bar_ = New<MenuBar>();
  Ref<CallLog> log_ = New<CallLog>();
  Ref<TestWindow> window_;
};

TEST_F(MenuTest, AnItemIsInOneMenu) {
  EXPECT_THROW(bar_->AddMenu(bar_->_Lookup("Own")), MenuHasParentException);
  EXPECT_FALSE(bar_->Child("Own"));
  EXPECT_FALSE(bar_->_Lookup("Nowhere"));
}

TEST_F(MenuTest, TheWindowsHandlerComesFirstAndCanTakeTheItem) {
  bar_->_Lookup("Own")->SetAutoEnabled(true);
  EnableMenuItems();
  app_->_AddMenuHandler("Own", Handler(&CallLog::Take));
  window_->_AddMenuHandler("Own", Handler(&CallLog::Pass));
  UserChose(bar_->_Lookup("Own"));
  EXPECT_EQ(log_->entries, (std::vector<std::string>{"pass", "take"}));
  window_->Close();
  window_ = ImplicitInstance<TestWindow>();
  program_.user().PressKey(Key::Character("x"));
  window_->_AddMenuHandler("Own", Handler(&CallLog::Take));
  UserChose(bar_->_Lookup("Own"));
  EXPECT_EQ(log_->entries, (std::vector<std::string>{"pass", "take", "take"}));
}

TEST_F(MenuTest, ADisabledItemsShortcutDoesNothing) {
  window_->_AddMenuHandler("Own", Handler(&CallLog::Take));
  const int enablings = window_->enablings;
  program_.user().PressKey(Key::Command("o"));
  EXPECT_EQ(window_->enablings, enablings + 1);
  EXPECT_TRUE(log_->entries.empty());
  EXPECT_FALSE(program_.user().CanChoose("Edit/Own"));
  bar_->_Lookup("Own")->SetAutoEnabled(true);
  program_.user().PressKey(Key::Command("o"));
  EXPECT_EQ(log_->entries.size(), 1U);
  program_.user().PressKey({KeyCode::kCharacter, "o", /*shift=*/true, /*command=*/true});
  EXPECT_EQ(log_->entries.size(), 1U) << "with shift it is another key";
}

TEST_F(MenuTest, TheEditItemsServeTheFocusedTextUnlessAHandlerTakesThem) {
  window_->field()->SetText("text");
  program_.user().Click(Role::kText, "field");
  program_.user().Select("field", 2, 2);
  EXPECT_FALSE(program_.user().CanChoose("Edit/EditCopy"));
  program_.user().Select("field", 0, 2);
  EXPECT_TRUE(program_.user().Choose("Edit/EditCopy"));
  EXPECT_EQ(program_.display().Clipboard(), "te");
  EXPECT_TRUE(window_->field()->CanPaste());
  EXPECT_EQ(program_.display().ClipboardReads(), 0) << "enabling the items reads no clipboard";
  window_->field()->Paste();
  EXPECT_EQ(program_.display().ClipboardReads(), 1);
  app_->_AddMenuHandler("EditCopy", Handler(&CallLog::Take));
  program_.user().Select("field", 0, 3);
  program_.user().PressKey(Key::Command("c"));
  EXPECT_EQ(program_.display().Clipboard(), "te");
}

TEST_F(MenuTest, WhatIsInvisibleIsNotDrawn) {
  EXPECT_FALSE(program_.user().CanChoose("Edit/Own"));
  bar_->_Lookup("Own")->SetVisible(false);
  EXPECT_THROW(program_.user().CanChoose("Edit/Own"), InvalidArgumentException);
}

}  // namespace
}  // namespace vamo
