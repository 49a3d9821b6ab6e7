// What the Qt display looks like: sizes, colours, what is cut off.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <utility>

#include "journeys/journey_steps.h"
#include "qt_steps.h"
#include "toolkit/control/label.h"
#include "toolkit/control/properties.h"
#include "toolkit/object/property_stream.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

TEST(QtLooksTest, TheContentIsExactlyAsLargeAsItSays) {
  InControlWindow([](User&) {
    const QWidget& window = *QApplication::activeWindow();
    const int bar = window.findChild<QMenuBar*>()->height();
    EXPECT_EQ(window.size(), QSize(500, 425 + bar));
    EXPECT_EQ(window.minimumSize(), window.maximumSize());
    const auto& slider = Named<QSlider>("r");
    EXPECT_EQ(slider.mapTo(&window, QPoint()), QPoint(25, 220 + bar));
    EXPECT_EQ(slider.size(), QSize(450, 15));
  });
}

// What a widget draws, on white, where it draws no background of its own.
QImage Drawn(QWidget& widget) {
  QImage image(widget.size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  return image;
}

template <class Act>
void ForEachPixel(const QImage& image, const QRect& part, const Act& act) {
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) act(QPoint(x, y), image.pixelColor(x, y));
  }
}

// The smallest rectangle that holds all that a label has drawn.
QRect Ink(QLabel& label) {
  QRect ink;
  ForEachPixel(Drawn(label), label.rect(), [&](const QPoint& place, const QColor& colour) {
    if (colour != Qt::white) ink |= QRect(place, QSize(1, 1));
  });
  return ink;
}

// Whether the highlight of a selection is among what a widget shows.
bool ShowsHighlight(QWidget& widget) {
  const QColor highlight = widget.palette().color(QPalette::Active, QPalette::Highlight);
  bool shows = false;
  ForEachPixel(widget.grab().toImage(), widget.rect(),
               [&](const QPoint&, const QColor& colour) { shows |= colour == highlight; });
  return shows;
}

TEST(QtLooksTest, TheInfoTextsSelectionShowsOnlyWhileItsWindowIsActive) {
  InControlWindow([](User& user) {
    user.Click(Role::kButton, "Info");
    user.Click(Role::kText, "Info");
    user.PressKey(Key::Command("a"));
    QWidget& info = *QApplication::activeWindow();
    EXPECT_TRUE(ShowsHighlight(info));
    user.ActivateWindow("Vamo");
    EXPECT_FALSE(ShowsHighlight(info));
    user.ActivateWindow("Info");
    EXPECT_TRUE(ShowsHighlight(info));
    QMenu& menu = *info.findChild<QMenu*>();
    menu.popup(info.mapToGlobal(QPoint(10, 300)));
    QCoreApplication::processEvents();
    EXPECT_TRUE(ShowsHighlight(info)) << "under a menu of its own";
    menu.hide();
  });
}

double Luminance(const QColor& colour) {
  const auto linear = [](double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

// The greatest contrast to white among the pixels of a part.
double Contrast(const QImage& image, const QRect& part) {
  double contrast = 0;
  ForEachPixel(image, part, [&](const QPoint&, const QColor& colour) {
    contrast = std::max(contrast, 1.05 / (Luminance(colour) + 0.05));
  });
  return contrast;
}

void ExpectNoTextCutOff() {
  for (auto* label : QApplication::activeWindow()->findChildren<QLabel*>()) {
    const QRect ink = Ink(*label);
    const std::string text = label->text().toStdString();
    ASSERT_FALSE(text.empty() || ink.isEmpty()) << text;
    // A text that begins at the left begins in the first column.
    const int left = label->alignment().testFlag(Qt::AlignHCenter) ? 1 : 0;
    EXPECT_TRUE(label->rect().adjusted(left, 0, -1, 0).contains(ink)) << text;
  }
}

void MakeWindowsLarger(User& user, int steps) {
  for (int step = 0; step < steps; ++step) user.PressKey(Key::Command("+"));
}

TEST(QtLooksTest, NoTextIsCutOffAtAnySize) {
  InControlWindow([](User& user) {
    user.Type("99");
    user.Click(Role::kText, "N");
    user.Type("1000");
    for (int size = 0; size < 5; ++size) {
      ExpectNoTextCutOff();
      MakeWindowsLarger(user, 1);
    }
  });
}

// What the label of that text has drawn, in the coordinates of the fields, and how much narrower
// that is than the font has it.
QRect InkOf(const QString& text, double* lost_width) {
  for (auto* label : QApplication::activeWindow()->findChildren<QLabel*>()) {
    if (label->text() != text) continue;
    const QRect ink = Ink(*label);
    *lost_width = QFontMetricsF(label->font()).tightBoundingRect(text).width() - ink.width();
    return ink.translated(label->pos());
  }
  throw std::runtime_error(text.toStdString());
}

// With a wide font, that is; these tests run with DejaVu Sans.
TEST(QtLooksTest, CaptionsAreNeitherSqueezedNorTouchWhatTheyStandBeside) {
  InControlWindow([](User& user) {
    user.Type("50");
    user.Click(Role::kText, "N");
    user.Type("200");
    for (const double factor : {1.0, 2.0}) {
      double lost_width = 0;
      const int interval = InkOf("+.388 to +.597", &lost_width).left();
      const std::pair<const char*, int> kCaptions[] = {
          {"r =", Named<QLineEdit>("r").x()},
          {"N =", Named<QLineEdit>("N").x()},
          {"Fisher's z =", Named<QLineEdit>("Fisher's z").x()},
          {"95% CI of r =", interval}};
      for (const auto& [text, next] : kCaptions) {
        const QRect ink = InkOf(QString::fromUtf8(text), &lost_width);
        EXPECT_LE(lost_width, 1.5) << text;
        EXPECT_GE(next - ink.right() - 1, 4 * factor) << text;
      }
      MakeWindowsLarger(user, 4);
    }
  });
}

int MenuLetters() {
  return QFontInfo(QApplication::activeWindow()->findChild<QMenu*>()->font()).pixelSize();
}

TEST(QtLooksTest, KeysMakeAllWindowsLargerAndThenAsTheyWere) {
  InControlWindow([](User& user) {
    QApplication::setCursorFlashTime(0);
    QWidget& control = *QApplication::activeWindow();
    const QImage before = Drawn(control);
    const int menu_letters = MenuLetters();
    user.PressKey(Key::Command("-"));
    EXPECT_EQ(Drawn(control), before);
    MakeWindowsLarger(user, 4);
    const int bar = control.findChild<QMenuBar*>()->height();
    EXPECT_EQ(control.size(), QSize(1000, 850 + bar));
    EXPECT_EQ(Named<QSlider>("r").geometry(), QRect(50, 440, 900, 30));
    EXPECT_EQ(Named<QLineEdit>("r").font().pixelSize(), 24);
    // The upper edge of a knob that has grown as well.
    EXPECT_GE(Contrast(Drawn(Named<QSlider>("r")), QRect(14, 0, 1, 6)), 3);
    EXPECT_EQ(MenuLetters(), 2 * menu_letters);
    user.Click(Role::kButton, "Info");
    EXPECT_EQ(QApplication::activeWindow()->width(), 900);
    EXPECT_EQ(MenuLetters(), 2 * menu_letters);
    user.PressKey(Key::Command("0"));
    EXPECT_EQ(QApplication::activeWindow()->width(), 450);
    user.ActivateWindow("Vamo");
    EXPECT_EQ(Drawn(control), before);
    MakeWindowsLarger(user, 20);
    EXPECT_TRUE(control.screen()->availableGeometry().contains(control.frameGeometry()));
  });
}

TEST(QtLooksTest, OutlinesStandOutAndShowWhereTheKeysGo) {
  InControlWindow([](User& user) {
    constexpr double kLeast = 3;
    auto& field = Named<QLineEdit>("r");
    auto& slider = Named<QSlider>("r");
    auto& button = Named<QPushButton>("Info");
    const QImage field_with_keys = Drawn(field);
    const QImage slider_without = Drawn(slider);
    user.Click(Role::kSlider, "r");
    const QRect edge(0, field.height() / 2, 2, 1);
    for (const QImage& drawn : {field_with_keys, Drawn(field), Drawn(button)}) {
      EXPECT_GE(Contrast(drawn, edge), kLeast);
    }
    EXPECT_NE(Drawn(field).copy(edge), field_with_keys.copy(edge));
    user.PressKey({KeyCode::kHome, "", false, false});
    for (const QImage& drawn : {slider_without, Drawn(slider)}) {
      EXPECT_GE(Contrast(drawn, QRect(drawn.width() / 2, 0, 1, drawn.height())), kLeast);
      // Above the groove there is nothing but the knob's upper edge.
      EXPECT_GE(Contrast(drawn, QRect(7, 0, 1, 3)), kLeast);
    }
    EXPECT_NE(Drawn(slider), slider_without);
    const int groove = slider.height() / 2;
    const QColor ahead = Drawn(slider).pixelColor(100, groove);
    user.PressKey({KeyCode::kEnd, "", false, false});
    EXPECT_NE(Drawn(slider).pixelColor(100, groove), ahead) << "how far the knob has come";
  });
}

// A window that its user can resize, with one control locked to all of its sides.
class ElasticWindow : public Window {
 public:
  void Layout() override {
    _SetProperties(*this, EncodedStream<640>()
                              .Set(property::kWidth, 300)
                              .Set(property::kHeight, 200)
                              .Set(property::kMinimumWidth, 64)
                              .Set(property::kResizeable, true));
  }
  bool Event_MouseDown(std::int64_t x, std::int64_t y) override {
    pressed = {x, y};
    return false;
  }
  std::pair<std::int64_t, std::int64_t> pressed;
  void CreateControls() override {
    _AddControl("label", __New<Label>());
    _SetProperties(*ControlNamed<Label>("label"), EncodedStream<640>()
                                                      .Set(property::kTop, 180)
                                                      .Set(property::kWidth, 298)
                                                      .Set(property::kHeight, 15)
                                                      .Set(property::kLockLeft, true)
                                                      .Set(property::kLockTop, true)
                                                      .Set(property::kLockRight, true)
                                                      .Set(property::kLockBottom, true));
  }
};

TEST(QtLooksTest, AWindowThatIsResizedStretchesItsControls) {
  InControlWindow([](User& user) {
    MakeWindowsLarger(user, 4);
    const Ref<ElasticWindow> elastic = New<ElasticWindow>();
    elastic->Constructor();
    user.LetTimePass(std::chrono::milliseconds(0));
    QWidget& window = *QApplication::activeWindow();
    EXPECT_EQ(window.size(), QSize(600, 400));
    window.resize(720, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.findChild<QLabel*>()->geometry(), QRect(0, 360, 716, 130));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(100, 50));
    EXPECT_EQ(elastic->pressed, std::pair(std::int64_t{50}, std::int64_t{25}));
    user.PressKey(Key::Command("0"));
    EXPECT_EQ(window.size(), QSize(360, 250));
    EXPECT_EQ(window.findChild<QLabel*>()->geometry(), QRect(0, 180, 358, 65));
    window.resize(10, 250);
    EXPECT_EQ(window.width(), 64);
    elastic->Close();
  });
}

TEST(QtLooksTest, TheSplashHasOneSizeAndAName) {
  RunProgram([](User&) {
    const QWidget& window = *QApplication::activeWindow();
    EXPECT_EQ(window.minimumSize(), QSize(300, 200));
    EXPECT_EQ(window.maximumSize(), QSize(300, 200));
    EXPECT_EQ(window.windowTitle(), "Vamo") << "for lists of windows";
  });
}

}  // namespace
}  // namespace vamo
