// The program written by hand in plain Qt: the splash, and the control window after a key.
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <memory>

#include "displays/qt/start.h"
#include "plain_widgets.h"
#include "plain_window.h"
#include "probe.h"
#include "shell/rights.h"

namespace vamo {
namespace {

// The splash as one would write it for Qt alone. It makes way for the control window.
class PlainSplash : public QWidget {
 public:
  PlainSplash() : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint) {
    resize(300, 200);
    MakeWhite(*this);
    AddLabel(*this, {0, 181, 298, 15},
             QString::fromUtf8(kRightsNotice.data(), static_cast<qsizetype>(kRightsNotice.size())),
             kDarkRed, 9, false, Qt::AlignHCenter);
    AddPicture(*this, {104, 60, 92, 72});
    AddLabel(*this, {0, 0, 298, 55}, QStringLiteral("Vamo"), kDarkRed, 42, true, Qt::AlignHCenter);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [this] { HandOver(); });
    timer_.start(4000);
    move(screen()->availableGeometry().center() - rect().center());
  }

 protected:
  void keyPressEvent(QKeyEvent* /*event*/) override { HandOver(); }
  void mousePressEvent(QMouseEvent* /*event*/) override { HandOver(); }
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }

 private:
  void HandOver() {
    timer_.stop();
    hide();
    if (window_ == nullptr) window_ = std::make_unique<PlainWindow>();
    window_->show();
  }

  QTimer timer_;
  std::unique_ptr<PlainWindow> window_;
};

}  // namespace
}  // namespace vamo

int main(int argc, char** argv) {
  const std::unique_ptr<QApplication> application = vamo::StartApplication(argc, argv);
  const vamo::Probe probe(argc, argv);
  vamo::PlainSplash splash;
  splash.show();
  return QApplication::exec();
}
