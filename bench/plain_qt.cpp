// The program written by hand in plain Qt: the splash and, after a key, the control window. It has
// the same controls in the same places and computes the same texts with the same statistics, once
// per change. It has no key filters and none of the other rules that moving a slider does not need.
#include <QApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

#include "displays/qt/start.h"
#include "probe.h"
#include "shell/rights.h"
#include "stats/interval.h"
#include "stats/significance.h"
#include "toolkit/conversions.h"

namespace vamo {
namespace {

const QColor kDarkRed(0x80, 0, 0);
const QColor kOrange(0xFF, 0x80, 0);
const QColor kDarkGrey(0x66, 0x66, 0x66);

QFont InterfaceFont(int size, bool bold) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  font.setPixelSize(size);
  font.setBold(bold);
  return font;
}

void SetColour(QWidget& widget, QPalette::ColorRole role, QColor colour) {
  QPalette colours = widget.palette();
  colours.setColor(role, colour);
  widget.setPalette(colours);
}

void Fill(QWidget& widget, QColor colour) {
  SetColour(widget, QPalette::Window, colour);
  widget.setAutoFillBackground(true);
}

void AddBox(QWidget& parent, QRect place, QColor colour) {
  auto* box = new QWidget(&parent);
  box->setGeometry(place);
  Fill(*box, colour);
}

QLabel* AddLabel(QWidget& parent, QRect place, const QString& text, QColor colour, int size = 12,
                 bool bold = false, Qt::Alignment alignment = Qt::AlignLeft) {
  auto* label = new QLabel(text, &parent);
  label->setGeometry(place);
  label->setTextFormat(Qt::PlainText);
  label->setFont(InterfaceFont(size, bold));
  label->setAlignment(alignment | Qt::AlignVCenter);
  SetColour(*label, QPalette::WindowText, colour);
  return label;
}

void AddPicture(QWidget& parent, QRect place) {
  const QPixmap picture(QCoreApplication::applicationDirPath() + "/ChartSmall.jpg");
  auto* label = new QLabel(&parent);
  label->setGeometry(place);
  label->setPixmap(picture.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

QString Text(double value, std::string_view mask) {
  return QString::fromStdString(Format(value, mask));
}

double Number(const QLineEdit& field) { return Val(field.text().toStdString()); }

class PlainWindow : public QWidget {
 public:
  PlainWindow() {
    setWindowTitle("Vamo");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content_);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    content_->setFixedSize(500, 425);
    Fill(*content_, Qt::white);
    AddMenus();
    AddHead();
    AddInput();
    AddResults();
    r_edit_->setFocus();
  }

 private:
  void AddMenus() {
    auto* bar = new QMenuBar(this);
    bar->addMenu("&File")->addAction("Quit", QKeySequence("Ctrl+Q"), qApp, &QApplication::quit);
    QMenu* edit = bar->addMenu("&Edit");
    edit->addAction("Undo")->setShortcut(QKeySequence::Undo);
    edit->addSeparator();
    edit->addAction("Cut")->setShortcut(QKeySequence::Cut);
    edit->addAction("Copy")->setShortcut(QKeySequence::Copy);
    edit->addAction("Paste")->setShortcut(QKeySequence::Paste);
    QMenu* view = bar->addMenu("&View");
    view->addAction("Chart")->setShortcut(Qt::Key_F9);
    for (const char* item : {"Larger", "Smaller", "Original Size"}) view->addAction(item);
    QMenu* window = bar->addMenu("&Window");
    window->addAction("Control")->setEnabled(false);
    window->addAction("About Vamo");
    bar->addMenu("&Help")->addAction("About Vamo");
    layout()->setMenuBar(bar);
  }

  void AddHead() {
    AddBox(*content_, {6, 6, 98, 78}, kDarkRed);
    AddPicture(*content_, {9, 9, 92, 72});
    AddLabel(*content_, {115, -5, 371, 73}, "Vamo", kDarkRed, 48, true, Qt::AlignHCenter);
    AddLabel(*content_, {115, 66, 371, 20}, "by Halden Q. Orrin", kDarkRed, 9, false,
             Qt::AlignHCenter);
    AddBox(*content_, {113, 82, 371, 2}, kDarkRed);
  }

  void AddInput() {
    r_edit_ = AddField({55, 192, 60, 20}, Qt::AlignHCenter, "r", {25, 192, 20, 20}, Qt::black);
    n_edit_ = AddField({55, 257, 60, 20}, Qt::AlignLeft, "N", {25, 257, 20, 20}, Qt::black);
    z_field_ =
        AddField({400, 192, 70, 20}, Qt::AlignLeft, "Fisher's z", {325, 192, 70, 20}, kDarkGrey);
    z_field_->setReadOnly(true);
    z_field_->setEnabled(false);
    n_text_ = AddLabel(*content_, {127, 257, 129, 20}, "(4 - 1,1000)", kOrange, 11);
    n_text_->hide();
    QSlider* r_slider = AddSlider({25, 220, 450, 15}, 0, 99, "r");
    QSlider* n_slider = AddSlider({25, 285, 450, 15}, 4, 1000, "N");
    connect(r_edit_, &QLineEdit::textChanged, this, &PlainWindow::RChanged);
    connect(n_edit_, &QLineEdit::textChanged, this, &PlainWindow::NChanged);
    connect(r_slider, &QSlider::valueChanged, r_edit_,
            [this](int position) { r_edit_->setText(Text(position / 100.0, ".000")); });
    connect(n_slider, &QSlider::valueChanged, n_edit_,
            [this](int position) { n_edit_->setText(QString::number(position)); });
  }

  void AddResults() {
    AddBox(*content_, {20, 353, 420, 30}, kDarkGrey);
    AddBox(*content_, {22, 355, 416, 26}, QColor(0xE6, 0xE6, 0xE6));
    AddLabel(*content_, {35, 358, 30, 20}, "t =", kDarkRed, 12, true);
    AddLabel(*content_, {136, 358, 40, 20}, "p =", kDarkRed, 12, true);
    AddLabel(*content_, {251, 358, 85, 20}, "95% CI of r =", kDarkRed, 12, true);
    t_text_ = AddResult({60, 358, 60, 20}, "Student's t", Qt::AlignLeft);
    p_text_ = AddResult({164, 358, 60, 20}, "two-tailed p", Qt::AlignHCenter);
    ci_text_ = AddResult({334, 358, 95, 20}, "95% confidence interval of r", Qt::AlignHCenter);
    auto* info = new QPushButton("?", content_);
    info->setGeometry(439, 349, 40, 40);
    info->setFont(InterfaceFont(16, true));
    info->setDefault(true);
    info->setFocusPolicy(Qt::NoFocus);
    info->setAccessibleName("Info");
  }

  // A field with the caption that names it.
  QLineEdit* AddField(QRect place, Qt::Alignment alignment, const QString& name,
                      QRect caption_place, QColor colour) {
    QLabel* caption = AddLabel(*content_, caption_place, name + " =", colour, 12, true);
    auto* field = new QLineEdit(content_);
    field->setGeometry(place);
    field->setFont(InterfaceFont(12, false));
    field->setAlignment(alignment | Qt::AlignVCenter);
    field->setAccessibleName(name);
    caption->setBuddy(field);
    return field;
  }

  QSlider* AddSlider(QRect place, int minimum, int maximum, const QString& name) {
    auto* slider = new QSlider(Qt::Horizontal, content_);
    slider->setGeometry(place);
    slider->setRange(minimum, maximum);
    slider->setAccessibleName(name);
    return slider;
  }

  QLabel* AddResult(QRect place, const QString& what, Qt::Alignment alignment) {
    QLabel* label = AddLabel(*content_, place, "", Qt::black, 12, false, alignment);
    label->setAccessibleDescription(what);
    return label;
  }

  void RChanged() {
    r_ = std::clamp(Number(*r_edit_), 0.0, 0.99999);
    Calculate();
    z_field_->setText(Text(FisherZ(r_), "##0.000"));
  }

  void NChanged() {
    n_text_->setVisible(Number(*n_edit_) < 4);
    Calculate();
  }

  void Calculate() {
    const std::int64_t n = Truncate(Number(*n_edit_));
    if (n > 1000) {
      QApplication::beep();
      n_text_->show();
      for (QLabel* result : {t_text_, p_text_, ci_text_}) result->clear();
      return;
    }
    const double t = ComputeT(r_, n);
    t_text_->setText(Text(t, "#####.00"));
    p_text_->setText(Text(ComputeP(t, n), ".00000"));
    const Interval interval = ComputeInterval(r_, n);
    ci_text_->setText(Text(interval.lo, "+.000") + " to " + Text(interval.hi, "+.000"));
  }

  QWidget* content_ = new QWidget(this);
  QLineEdit *r_edit_ = nullptr, *n_edit_ = nullptr, *z_field_ = nullptr;
  QLabel *n_text_ = nullptr, *t_text_ = nullptr, *p_text_ = nullptr, *ci_text_ = nullptr;
  double r_ = 0;
};

// The splash, which the control window replaces.
class PlainSplash : public QWidget {
 public:
  PlainSplash() : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint) {
    resize(300, 200);
    Fill(*this, Qt::white);
    AddLabel(*this, {0, 181, 298, 15}, QString::fromStdString(std::string(kRightsNotice)), kDarkRed,
             9, false, Qt::AlignHCenter);
    AddPicture(*this, {104, 60, 92, 72});
    AddLabel(*this, {0, 0, 298, 55}, "Vamo", kDarkRed, 42, true, Qt::AlignHCenter);
    QTimer::singleShot(4000, this, [this] { HandOver(); });
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
    hide();
    if (window_ == nullptr) window_ = std::make_unique<PlainWindow>();
    window_->show();
  }

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
