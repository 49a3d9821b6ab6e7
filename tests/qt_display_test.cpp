// What only the Qt display has: input methods, drops, assistive technology.
#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>
#include <set>

#include "controlwnd/control_wnd.h"
#include "journeys/journey_steps.h"
#include "qt_steps.h"

namespace vamo {
namespace {

TEST(QtDisplayTest, AnInputMethodsTextIsTakenAsKeys) {
  InControlWindow([](User& user) {
    EXPECT_EQ(Named<QLineEdit>("r").inputMethodHints(), Qt::ImhFormattedNumbersOnly);
    EXPECT_EQ(Named<QLineEdit>("N").inputMethodHints(), Qt::ImhDigitsOnly);
    EXPECT_EQ(Named<QLineEdit>("Fisher's z").inputMethodHints(), Qt::ImhNone);
    QInputMethodEvent event;
    event.setCommitString("5x7");
    QCoreApplication::sendEvent(&Named<QLineEdit>("r"), &event);
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".57");
    EXPECT_EQ(user.Beeps(), 1);
    // Arabic digits, and the decimal keys of a keypad and of an on-screen keyboard.
    Retype(user, "r", "");
    QTest::sendKeyEvent(QTest::Click, &Named<QLineEdit>("r"), Qt::Key_Comma, QStringLiteral(","),
                        Qt::KeypadModifier);
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".");
    event.setCommitString("\u0663");
    QCoreApplication::sendEvent(&Named<QLineEdit>("r"), &event);
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".3");
    for (const auto& [text, shown] : {std::pair{u",", "."}, {u"0,57", ".57"}}) {
      Retype(user, "r", "");
      event.setCommitString(QString::fromUtf16(text));
      QCoreApplication::sendEvent(&Named<QLineEdit>("r"), &event);
      EXPECT_EQ(user.Sees(Role::kText, "r").text, shown);
    }
    QInputMethodEvent replaced;
    replaced.setCommitString("8", /*replaceFrom=*/-1, /*replaceLength=*/1);
    QCoreApplication::sendEvent(&Named<QLineEdit>("r"), &replaced);
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".58");
    const int beeps = user.Beeps();
    QInputMethodEvent refused;
    refused.setCommitString("x", /*replaceFrom=*/-1, /*replaceLength=*/1);
    QCoreApplication::sendEvent(&Named<QLineEdit>("r"), &refused);
    EXPECT_EQ(user.Beeps(), beeps + 1);
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".58");
    EXPECT_EQ(user.Sees(Role::kText, "r").selected_text, "");
  });
}

TEST(QtDisplayTest, ADropActsAsAPaste) {
  InControlWindow([](User& user) {
    auto& field = Named<QLineEdit>("r");
    QMimeData dropped;
    dropped.setText("1.\n5");
    QDragEnterEvent enter(field.rect().center(), Qt::CopyAction, &dropped, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event(QPointF(field.rect().center()), Qt::CopyAction, &dropped, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &event);
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".99999");
    EXPECT_EQ(user.Sees(Role::kText, "Fisher's z").text, "6.103");
    // However a text gets into the widget, the program learns of it.
    field.selectAll();
    field.insert("0.2");
    EXPECT_EQ(user.Sees(Role::kText, "Fisher's z").text, "0.203");
  });
}

TEST(QtDisplayTest, AssistiveTechnologyMovesASlider) {
  InControlWindow([](User& user) {
    auto* slider = QAccessible::queryAccessibleInterface(&Named<QSlider>("r"));
    slider->valueInterface()->setCurrentValue(.57);
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".570");
    EXPECT_EQ(slider->valueInterface()->currentValue(), .57);
    slider->valueInterface()->setCurrentValue(1000);
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".990");
    auto* other = QAccessible::queryAccessibleInterface(&Named<QSlider>("N"));
    other->valueInterface()->setCurrentValue(30);
    other->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    user.PressKey(Arrow(KeyCode::kRight));
    EXPECT_EQ(user.Sees(Role::kText, "N").text, "31");
    auto* field = QAccessible::queryAccessibleInterface(&Named<QLineEdit>("N"));
    field->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    user.PressKey(Key::Command("a"));
    user.Type("7");
    EXPECT_EQ(user.Sees(Role::kText, "N").text, "7");
    // However a position gets into the widget, the program learns of it.
    Named<QSlider>("r").setValue(7);
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".070");
  });
}

TEST(QtDisplayTest, ABeepIsSeen) {
  InControlWindow([](User& user) {
    auto& field = Named<QLineEdit>("r");
    const QPalette usual = field.palette();
    for (const Qt::Key refused : {Qt::Key_X, Qt::Key_Minus}) {
      QTest::keyClick(&field, refused);
      EXPECT_NE(field.palette().color(QPalette::Base), usual.color(QPalette::Base));
    }
    user.LetTimePass(std::chrono::milliseconds(300));
    EXPECT_EQ(field.palette(), usual);
    EXPECT_EQ(user.Beeps(), 2);
  });
}

// Counts how often a window appears on the screen.
class Appearances : public QObject {
 public:
  explicit Appearances(const char* window) : window_(window) { qApp->installEventFilter(this); }
  int count = 0;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show && watched->objectName() == QLatin1String(window_)) ++count;
    return false;
  }
  const char* window_;
};

TEST(QtDisplayTest, AssistiveTechnologyReadsTheKeyOfTheButtonAndTheNoticeOfAbout) {
  InControlWindow([](User& user) {
    auto* button = QAccessible::queryAccessibleInterface(&Named<QPushButton>("Info"));
    const QString press = QAccessibleActionInterface::pressAction();
    EXPECT_EQ(button->actionInterface()->keyBindingsForAction(press), QStringList{"F1"});
    user.Choose("Help/About Vamo");
    auto* about = QAccessible::queryAccessibleInterface(QApplication::activeWindow());
    EXPECT_EQ(about->role(), QAccessible::Dialog);
    EXPECT_TRUE(about->text(QAccessible::Description).contains("Halden Q. Orrin"));
  });
}

TEST(QtDisplayTest, AWindowThatIsHiddenWithinTheEventIsNeverShown) {
  InControlWindow([](User& user) {
    user.Choose("Help/About Vamo");
    user.Close("");
    Appearances splash("AboutWnd.AboutWnd");
    user.Click(Role::kButton, "Info");
    user.ActivateWindow("Vamo");
    EXPECT_EQ(user.Windows().size(), 2U);
    EXPECT_EQ(splash.count, 0);
    user.Choose("Help/About Vamo");
    EXPECT_EQ(splash.count, 1);
  });
}

TEST(QtDisplayTest, WhileAWindowWaitsForTheFocusNoOtherIsActivated) {
  InControlWindow([](User& user) {
    QWidget& control = *QApplication::activeWindow();
    user.Click(Role::kButton, "Info");
    AboutWnd()->Show();
    // The splash is on the screen, but nothing has reported yet that it has the focus.
    QCoreApplication::sendPostedEvents();
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&control, &activation);
    EXPECT_TRUE(AboutWnd()->Visible()) << "the control window hides it when it is activated";
  });
}

TEST(QtDisplayTest, AWindowThatIsActivatedAgainHasTheFocusAndNotItsMenuBar) {
  InControlWindow([](User& user) {
    QWidget& control = *QApplication::activeWindow();
    user.Click(Role::kButton, "Info");
    QTest::mouseClick(control.windowHandle(), Qt::LeftButton, {}, control.rect().center());
    EXPECT_EQ(user.ActiveTitle(), "Vamo") << "a press activates";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10);
    QWidget* menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    menu->close();
    QApplication::activeWindow()->findChild<QMenuBar*>()->setFocus();
    user.Close("Info");
    EXPECT_EQ(user.ActiveTitle(), "Vamo");
    EXPECT_EQ(user.Focused().name, "r");
  });
}

TEST(QtDisplayTest, APasteOfNoTextLeavesTheSelectionAlone) {
  InControlWindow([](User& user) {
    user.Type("5");
    user.PressKey(Key::Command("a"));
    QGuiApplication::clipboard()->clear();
    user.PressKey(Key::Command("v"));
    EXPECT_EQ(user.Sees(Role::kText, "r").text, ".5");
    QGuiApplication::clipboard()->setImage(QImage(4, 4, QImage::Format_RGB32));
    user.PressKey(Key::Command("v"));
    EXPECT_EQ(user.Sees(Role::kText, "r").selected_text, ".5");
  });
}

TEST(QtDisplayTest, AMinimisedWindowStaysMinimisedWhenTheTimerOfTheSplashFires) {
  InControlWindow([](User& user) {
    QWidget& window = *QApplication::activeWindow();
    window.showMinimized();
    user.LetTimePass(std::chrono::milliseconds(4500));
    EXPECT_TRUE(window.isMinimized());
  });
}

// When the focus has moved to another window, Qt reports the first repeat as a new key press.
TEST(QtDisplayTest, AKeyThatIsHeldDownOnTheSplashTypesNothing) {
  FromTheStart([](User& user) {
    const auto send = [](QEvent::Type type, quint64 time) {
      QKeyEvent event(type, Qt::Key_5, Qt::NoModifier, /*nativeScanCode=*/14, 0, 0, "5");
      event.setTimestamp(time);
      QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    };
    send(QEvent::KeyPress, 1000);
    user.LetTimePass(std::chrono::milliseconds(100));
    send(QEvent::KeyPress, 1660);
    send(QEvent::KeyRelease, 1700);
    send(QEvent::KeyPress, 1700);
    EXPECT_EQ(FieldText(user, "r"), "");
    send(QEvent::KeyRelease, 1730);
    send(QEvent::KeyPress, 1800);
    EXPECT_EQ(FieldText(user, "r"), ".5");
  });
}

TEST(QtDisplayTest, TheSecondPressOfADoubleClickOnTheSplashIsIgnored) {
  FromTheStart([](User& user) {
    const auto press = [&](QEvent::Type type, const QPoint& at) {
      QWidget* window = QApplication::activeWindow();
      const QPoint on_screen = window->mapToGlobal(at);
      QMouseEvent event(type, at, on_screen, Qt::LeftButton, Qt::LeftButton, {});
      QCoreApplication::sendEvent(window->windowHandle(), &event);
      QMouseEvent end(QEvent::MouseButtonRelease, at, on_screen, Qt::LeftButton, {}, {});
      QCoreApplication::sendEvent(window->windowHandle(), &end);
      user.LetTimePass(std::chrono::milliseconds(100));
    };
    press(QEvent::MouseButtonPress, {150, 100});
    auto& slider = Named<QSlider>("r");
    const QPoint middle = slider.mapTo(slider.window(), slider.rect().center());
    press(QEvent::MouseButtonDblClick, middle);
    EXPECT_EQ(FieldText(user, "r"), "");
    press(QEvent::MouseButtonPress, middle);
    EXPECT_NE(FieldText(user, "r"), "");
  });
}

TEST(QtDisplayTest, TheButtonIgnoresKeys) {
  InControlWindow([](User& user) {
    auto& button = Named<QPushButton>("Info");
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) QTest::keyClick(&button, key);
    EXPECT_EQ(user.Windows(), std::vector<std::string>{"Vamo"});
    EXPECT_EQ(user.Focused().name, "r");
    static int presses = 0;
    ControlWnd()->Qbtn()->MouseDown = Delegate<bool(Ref<PushButton>, std::int64_t, std::int64_t)>(
        +[](Ref<PushButton>, std::int64_t, std::int64_t) { return ++presses == 0; });
    user.Click(Role::kButton, "Info");
    EXPECT_EQ(presses, 1);
  });
}

TEST(QtDisplayTest, AMenuLeavesTheSelectionToCut) {
  InControlWindow([](User& user) {
    user.Type("5");
    user.PressKey(Key::Command("a"));
    QFocusEvent to_menu(QEvent::FocusOut, Qt::MenuBarFocusReason);
    QCoreApplication::sendEvent(&Named<QLineEdit>("r"), &to_menu);
    EXPECT_EQ(user.Sees(Role::kText, "r").selected_text, ".5");
  });
}

TEST(QtDisplayTest, ARightToLeftDesktopChangesNothing) {
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  InControlWindow([](User&) {
    for (const QWidget* widget : QApplication::activeWindow()->findChildren<QWidget*>()) {
      EXPECT_EQ(widget->layoutDirection(), Qt::LeftToRight) << widget->metaObject()->className();
    }
  });
}

TEST(QtDisplayTest, EachItemOfAMenuHasItsOwnMnemonic) {
  InControlWindow([](User& user) {
    user.CanChoose("Edit/Cut");
    for (const auto* menu : QApplication::activeWindow()->findChildren<QMenu*>()) {
      std::set<QKeySequence> letters;
      for (const QAction* entry : menu->actions()) {
        if (!entry->isVisible() || entry->isSeparator()) continue;
        const QKeySequence letter = QKeySequence::mnemonic(entry->text());
        EXPECT_TRUE(!letter.isEmpty() && letters.insert(letter).second)
            << entry->text().toStdString();
      }
    }
  });
}

TEST(QtDisplayTest, ClosingTheSplashEndsAProgramThatTheUserCouldNotReach) {
  bool reached = false;
  EXPECT_EQ(RunProgram([&](User& user) {
              user.Close("");
              user.LetTimePass(std::chrono::milliseconds(5000));
              reached = !user.Windows().empty();
            }),
            0);
  EXPECT_FALSE(reached);
}

}  // namespace
}  // namespace vamo
