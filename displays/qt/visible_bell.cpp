#include "displays/qt/visible_bell.h"

#include <QApplication>
#include <QColor>
#include <QStyle>
#include <chrono>

namespace vamo {
namespace {

constexpr std::chrono::milliseconds kDuration{150};
// Text in black or in the colours of a selection stays legible on this colour.
constexpr QColor kLight(0xff, 0xc0, 0x60);

}  // namespace

VisibleBell::VisibleBell() {
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, [this] { End(); });
}

void VisibleBell::Flash(QWidget* widget) {
  const bool still = QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
  if (widget == nullptr || still) return;
  timer_.start(kDuration);
  if (lit_ == widget) return;
  End();
  lit_ = widget;
  usual_colours_ = widget->palette();
  QPalette lit_colours = usual_colours_;
  // The colours that fill a field, a knob and a groove.
  for (const auto role : {QPalette::Base, QPalette::Button, QPalette::Window}) {
    lit_colours.setColor(role, kLight);
  }
  widget->setPalette(lit_colours);
}

void VisibleBell::End() {
  if (lit_ != nullptr) lit_->setPalette(usual_colours_);
  lit_ = nullptr;
}

}  // namespace vamo
