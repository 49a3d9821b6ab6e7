// References and delegates.
#include "toolkit/object/object.h"

#include <gtest/gtest.h>

#include "toolkit/control/label.h"
#include "toolkit/control/push_button.h"
#include "toolkit/control/slider.h"
#include "toolkit/object/delegate.h"
#include "toolkit/runtime/application.h"
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

TEST(DelegateTest, TheSignatureIsSpelledOut) {
  EXPECT_EQ((Delegate<bool(Ref<TextField>, std::string)>::Signature()),
            "( TextField, String ) as Boolean");
  EXPECT_EQ((Delegate<void(Ref<Slider>)>::Signature()), "( Slider )");
  EXPECT_EQ((Delegate<bool(Ref<PushButton>, std::int64_t, std::int64_t)>::Signature()),
            "( PushButton, Integer, Integer ) as Boolean");
  EXPECT_EQ((Delegate<void(Ref<Timer>)>::Signature()), "( Timer )");
  EXPECT_EQ(MenuHandler::Signature(), "(  ) as Boolean");
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
