#include "displays/qt/zoom.h"

#include <QApplication>
#include <QScreen>
#include <algorithm>
#include <iterator>
#include <vector>

#include "displays/qt/placement.h"
#include "displays/qt/style.h"
#include "displays/qt/window.h"

namespace vamo {
namespace {

constexpr std::array kFactors{0.5, 0.6, 0.7, 0.8, 0.9, 1.0, 1.25, 1.5, 1.75,
                              2.0, 2.5, 3.0, 3.5, 4.0, 5.0, 6.0,  8.0};

bool FitsTheScreen(double factor) {
  const std::vector<WindowWidget*> windows = AllWindows();
  return std::all_of(windows.begin(), windows.end(), [&](WindowWidget* window) {
    return !window->ShouldBeVisible() || RoomFor(*window, window->SizeAt(factor));
  });
}

// The largest factor up to `limit` at which the windows fit, or else the smallest factor.
double LargestFitting(double limit) {
  const auto end = std::upper_bound(kFactors.begin(), kFactors.end(), limit);
  const auto found = std::find_if(std::make_reverse_iterator(end), kFactors.rend(), FitsTheScreen);
  return found == kFactors.rend() ? kFactors.front() : *found;
}

// A compositor keeps the top left corner of a window where it is, so that the rest may grow off the
// screen. It places a window only when it is shown. The active window comes last, to have the focus
// again.
void MapAgain() {
  std::vector<WindowWidget*> windows = AllWindows();
  std::erase_if(windows, [](WindowWidget* window) { return !window->isVisible(); });
  std::stable_partition(windows.begin(), windows.end(),
                        [](WindowWidget* window) { return !window->isActiveWindow(); });
  for (WindowWidget* window : windows) window->MapAgain();
}

QFont Enlarged(QFont font, double factor) {
  if (font.pixelSize() > 0) {
    font.setPixelSize(qRound(font.pixelSize() * factor));
  } else {
    font.setPointSizeF(font.pointSizeF() * factor);
  }
  return font;
}

// Sets the font of all widgets of a class. Qt itself updates only some of the existing ones.
void SetFont(const QFont& font, const char* widgets) {
  QApplication::setFont(font, widgets);
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->inherits(widgets)) widget->setFont(font);
  }
}

}  // namespace

Zoom::Zoom()
    : fonts_{{{"QMenuBar", QApplication::font("QMenuBar")},
              {"QMenu", QApplication::font("QMenu")},
              {"QTipLabel", QApplication::font("QTipLabel")}}} {
  const auto watch = [this](const QScreen* screen) {
    QObject::connect(screen, &QScreen::availableGeometryChanged, &connections_, [this] {
      FitScreen();
      for (WindowWidget* window : AllWindows()) {
        if (!window->isVisible()) continue;
        window->ShowPane();
        KeepOnScreen(*window);
      }
    });
  };
  for (const QScreen* screen : QGuiApplication::screens()) watch(screen);
  QObject::connect(qApp, &QGuiApplication::screenAdded, &connections_, watch);
}

void Zoom::FitScreen() {
  // The height of a menu bar is an estimate until it has been scaled.
  while (LargestFitting(factor_) < factor_) Set(LargestFitting(factor_));
}

bool Zoom::HandleKey(const QKeyEvent& event) {
  const auto held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  if (held != Qt::ControlModifier) return false;
  switch (event.key()) {
    case Qt::Key_Plus:
    // The key that many keyboards have where plus needs Shift.
    case Qt::Key_Equal:
      Enlarge();
      return true;
    case Qt::Key_Minus:
      Reduce();
      return true;
    case Qt::Key_0:
      Restore();
      return true;
    default:
      return false;
  }
}

bool Zoom::CanEnlarge() const {
  return factor_ != kFactors.back() &&
         FitsTheScreen(*std::upper_bound(kFactors.begin(), kFactors.end(), factor_));
}

void Zoom::Enlarge() {
  if (CanEnlarge()) Set(*std::upper_bound(kFactors.begin(), kFactors.end(), factor_));
}

bool Zoom::CanReduce() const { return factor_ != kFactors.front(); }

void Zoom::Reduce() {
  if (CanReduce()) Set(*(std::lower_bound(kFactors.begin(), kFactors.end(), factor_) - 1));
}

bool Zoom::CanRestore() const { return factor_ != LargestFitting(1); }

void Zoom::Restore() { Set(LargestFitting(1)); }

void Zoom::Set(double factor) {
  if (factor == factor_) return;
  factor_ = factor;
  if (auto* style = dynamic_cast<OutlinedStyle*>(QApplication::style())) style->SetFactor(factor);
  for (const PlatformFont& font : fonts_) {
    SetFont(Enlarged(font.designed, factor), font.widgets);
  }
  for (WindowWidget* window : AllWindows()) {
    const QPoint middle = window->geometry().center();
    window->Rescale();
    if (window->ShouldBeVisible()) MoveMiddle(*window, middle);
  }
  if (PlatformPlacesWindows()) MapAgain();
}

}  // namespace vamo
