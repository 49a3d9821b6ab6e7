// References, class tables and delegates.
#include "toolkit/object/object.h"

#include <gtest/gtest.h>

#include "shell/handle_about_menu.h"
#include "toolkit/control/canvas.h"
#include "toolkit/control/label.h"
#include "toolkit/control/push_button.h"
#include "toolkit/control/rectangle.h"
#include "toolkit/control/slider.h"
#include "toolkit/object/delegate.h"
#include "toolkit/runtime/file_type.h"
#include "toolkit/text/text_area.h"
#include "toolkit/text/text_field.h"
#include "toolkit/window/timer.h"

namespace vamo {
namespace {

struct Receiver : Object {
  bool Take() { return true; }
};

TEST(RefTest, NilAndWrongCastsRaiseBeforeAnythingIsTouched) {
  Ref<Label> nil;
  EXPECT_THROW(nil->SetText("x"), NilObjectException);
  EXPECT_FALSE(Cast<Slider>(Ref<Object>(nil)));
  const Ref<Object> label = New<Label>();
  EXPECT_TRUE(Cast<RectControl>(label) == label);
  EXPECT_THROW(Cast<Slider>(label), IllegalCastException);
  WeakRef<Object> weak{label};
  EXPECT_TRUE(weak.Value() == label);
  weak = WeakRef<Object>(New<Label>());
  EXPECT_FALSE(weak.Value());
}

TEST(ClassInfoTest, TheClassesAreDerivedAsDesigned) {
  std::string tree;
  for (const ClassInfo* info :
       {&RectControl::kClass, &TextEdit::kClass, &TextField::kClass, &TextArea::kClass,
        &Label::kClass, &Slider::kClass, &PushButton::kClass, &Canvas::kClass, &Rectangle::kClass,
        &_wrapper_Timer1::kClass, &Picture::kClass, &FileType::kClass, &MenuBar::kClass,
        &HandleAboutMenu::kClass}) {
    (tree += info->name) += info->base == nullptr ? "" : ":" + std::string(info->base->name);
    tree += ' ';
  }
  EXPECT_EQ(tree,
            "RectControl:Control TextEdit:RectControl TextField:TextEdit TextArea:TextEdit "
            "Label:RectControl Slider:RectControl PushButton:RectControl Canvas:RectControl "
            "Rectangle:RectControl _wrapper_Timer1:Timer Picture FileType MenuBar:MenuItem "
            "HandleAboutMenu:Application ");
}

TEST(DelegateTest, OnlyAStrongReceiverIsKeptAlive) {
  auto receiver = New<Receiver>();
  const MenuHandler strong(receiver, &Receiver::Take, ReceiverFlag::kStrong);
  const MenuHandler weak(receiver, &Receiver::Take, ReceiverFlag::kWeak);
  EXPECT_TRUE(weak.Invoke());
  receiver = New<Receiver>();
  EXPECT_TRUE(strong.Invoke());
  EXPECT_TRUE(weak.Invoke()) << "the strong delegate keeps the receiver";
  const MenuHandler dangling(New<Receiver>(), &Receiver::Take, ReceiverFlag::kWeak);
  EXPECT_THROW(dangling.Invoke(), NilObjectException);
  EXPECT_THROW(MenuHandler().Invoke(), NilObjectException);
}

}  // namespace
}  // namespace vamo
