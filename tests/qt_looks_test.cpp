// How the Qt display looks: compared with stored pictures, at each size, and whether text is cut
// off.
//
// VAMO_RENEW_PICTURES=1 in the environment stores new pictures.
#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>
#include <algorithm>
#include <cstdlib>
#include <string>

#include "controlwnd/interval_chart.h"
#include "displays/qt/painting.h"
#include "journeys/journey_steps.h"
#include "qt_steps.h"

namespace vamo {
namespace {

// Draws a widget, on white if it has no background of its own.
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

// The smallest rectangle that contains everything that a label draws.
QRect Ink(QLabel& label) {
  QRect ink;
  ForEachPixel(Drawn(label), label.rect(), [&](const QPoint& place, const QColor& colour) {
    if (colour != Qt::white) ink |= QRect(place, QSize(1, 1));
  });
  return ink;
}

// Whether a widget shows the highlight of a selection.
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

void ExpectNoTextCutOff() {
  for (auto* label : QApplication::activeWindow()->findChildren<QLabel*>()) {
    const QRect ink = Ink(*label);
    const std::string text = label->text().toStdString();
    ASSERT_FALSE(text.empty() || ink.isEmpty()) << text;
    // A left-aligned text begins in the first column.
    const int left = label->alignment().testFlag(Qt::AlignHCenter) ? 1 : 0;
    EXPECT_TRUE(label->rect().adjusted(left, 0, -1, 0).contains(ink)) << text;
  }
}

// Expects that something looks like its stored picture; some pixels of a letter may differ.
void ExpectPicture(const std::string& name, const QImage& shown) {
  const std::string kept_in = VAMO_PICTURES "/" + name + ".png";
  const auto save = [&](const std::string& file) { shown.save(QString::fromStdString(file)); };
  if (std::getenv("VAMO_RENEW_PICTURES") != nullptr) save(kept_in);
  const QImage kept(QString::fromStdString(kept_in));
  ASSERT_EQ(shown.size(), kept.size()) << name;
  int differing = 0;
  ForEachPixel(shown, shown.rect(), [&](const QPoint& place, const QColor& colour) {
    const QColor other = kept.pixelColor(place);
    const auto differs = [](int one, int two) { return std::abs(one - two) > 30; };
    differing += differs(colour.red(), other.red()) || differs(colour.green(), other.green()) ||
                 differs(colour.blue(), other.blue());
  });
  const std::string shown_in = testing::TempDir() + "vamo_" + name + ".png";
  if (differing > 12) save(shown_in);
  EXPECT_LE(differing, 12) << shown_in << " is not as " << kept_in;
}

void ExpectPicture(const std::string& name) {
  ExpectPicture(name, QApplication::activeWindow()->grab().toImage());
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

TEST(QtLooksTest, TheWindowsLookAsTheyDid) {
  FromTheStart([](User& user) {
    QApplication::setCursorFlashTime(0);
    ExpectPicture("splash");
    user.PressKey(Key::Character(" "));
    user.DragSlider("r", {37});
    user.DragSlider("N", {200});
    Retype(user, "r", ".5");
    ExpectPicture("control_window");
    Retype(user, "N", "2");
    user.LetTimePass(std::chrono::milliseconds(300));  // The flash of the beep ends.
    ExpectPicture("control_window_warned");
    MakeWindowsLarger(user, 4);
    user.Click(Role::kSlider, "r");
    ExpectPicture("control_window_at_twice_its_size");
    user.PressKey(Key::Command("0"));
    user.Click(Role::kButton, "Info");
    ExpectPicture("info_window");
  });
}

TEST(QtLooksTest, TheChartsLookAsInTheirKeptPictures) {
  InControlWindow([](User&) {
    for (const int factor : {1, 2}) {
      QImage charts(QSize(3 * 420, 425) * factor, QImage::Format_RGB32);
      QPainter painter(&charts);
      int left = 0;
      for (const Calculation& last : {Calculation{.37, 30}, {.06, 1000}, {.37, 2}}) {
        QImage chart(QSize(420, 425) * factor, QImage::Format_RGB32);
        chart.setDevicePixelRatio(factor);
        Paint(DrawIntervalChart(last, 420, 425), 1, chart);
        chart.setDevicePixelRatio(1);
        painter.drawImage(left, 0, chart);
        left += chart.width();
      }
      ExpectPicture("charts_at_" + std::to_string(factor), charts);
    }
  });
}

int MenuLetters() {
  return QFontInfo(QApplication::activeWindow()->findChild<QMenu*>()->font()).pixelSize();
}

TEST(QtLooksTest, KeysEnlargeAllWindowsAndRestoreTheirSize) {
  InControlWindow([](User& user) {
    QApplication::setCursorFlashTime(0);
    QWidget& control = *QApplication::activeWindow();
    const QImage before = Drawn(control);
    const int menu_letters = MenuLetters();
    user.PressKey(Key::Command("-"));
    EXPECT_EQ(control.width(), 450);
    MakeWindowsLarger(user, 1);
    EXPECT_EQ(Drawn(control), before);
    MakeWindowsLarger(user, 4);
    const int bar = control.findChild<QMenuBar*>()->height();
    EXPECT_EQ(control.size(), QSize(1000, 850 + bar));
    EXPECT_EQ(Named<QSlider>("r").geometry(), QRect(50, 440, 900, 30));
    EXPECT_EQ(Named<QLineEdit>("r").font().pixelSize(), 24);
    EXPECT_EQ(MenuLetters(), 2 * menu_letters);
    user.Click(Role::kButton, "Info");
    EXPECT_EQ(QApplication::activeWindow()->width(), 900);
    EXPECT_EQ(MenuLetters(), 2 * menu_letters);
    EXPECT_TRUE(user.Choose("View/Original Size"));
    EXPECT_EQ(QApplication::activeWindow()->width(), 450);
    user.ActivateWindow("Vamo");
    EXPECT_EQ(Drawn(control), before);
    MakeWindowsLarger(user, 20);
    EXPECT_TRUE(control.screen()->availableGeometry().contains(control.frameGeometry()));
    EXPECT_FALSE(user.CanChoose("View/Larger"));
    EXPECT_TRUE(user.Choose("View/Smaller"));
    EXPECT_TRUE(user.Choose("View/Larger"));
  });
}

void MoveTo(QScreen& screen, QWidget& window) {
  window.move(screen.availableGeometry().topLeft());
  // Some versions of Qt report the new screen a few events later.
  QTest::qWait(50);
}

TEST(QtLooksTest, NoWindowIsLargerThanItsScreen) {
  FromTheStart([](User& user) {
    QScreen& large = *QGuiApplication::screens().front();
    QScreen& small = *QGuiApplication::screens().back();
    MoveTo(small, *QApplication::activeWindow());
    user.PressKey(Key::Character(" "));
    QWidget& control = *QApplication::activeWindow();
    const auto expect_small = [&] {
      EXPECT_EQ(control.width(), 350);
      EXPECT_TRUE(small.availableGeometry().contains(control.frameGeometry()));
    };
    expect_small();
    for (const char* larger : {"0", "+"}) user.PressKey(Key::Command(larger));
    expect_small();
    MoveTo(large, control);
    user.PressKey(Key::Command("0"));
    EXPECT_EQ(control.width(), 500);
    MoveTo(small, control);
    expect_small();
  });
}

TEST(QtLooksTest, TheWindowGrowsByTheChartAndStaysOnItsScreen) {
  InControlWindow([](User& user) {
    const Key f9{KeyCode::kF9, ""};
    QApplication::setCursorFlashTime(0);
    QWidget& control = *QApplication::activeWindow();
    const QImage before = Drawn(control);
    user.PressKey(f9);
    EXPECT_EQ(control.width(), 920);
    EXPECT_TRUE(control.screen()->availableGeometry().contains(control.frameGeometry()));
    user.Click(Role::kChart, "Chart");
    EXPECT_EQ(user.Focused().name, "r");
    // There the chart becomes narrower; the windows do not become smaller.
    for (int step = 0; step < 10; ++step) {
      MakeWindowsLarger(user, 1);
      EXPECT_TRUE(control.screen()->availableGeometry().contains(control.frameGeometry()));
    }
    EXPECT_EQ(control.frameGeometry().width(), 1280);
    EXPECT_EQ(Named<QSlider>("r").width(), 675);
    user.PressKey(Key::Command("0"));
    user.PressKey(f9);
    EXPECT_EQ(Drawn(control), before);
    MoveTo(*QGuiApplication::screens()[1], control);
    user.PressKey(f9);
    EXPECT_EQ(control.width(), 350) << "there is no room for the chart";
    EXPECT_EQ(user.Beeps(), 1);
    QScreen& small = *QGuiApplication::screens().back();
    MoveTo(small, control);
    user.PressKey(f9);
    EXPECT_EQ(control.frameGeometry().width(), small.availableGeometry().width());
    EXPECT_TRUE(small.availableGeometry().contains(control.frameGeometry()));
  });
}

}  // namespace
}  // namespace vamo
