#include "plain_window.h"

#include <QApplication>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "plain_widgets.h"
#include "stats/interval.h"
#include "stats/significance.h"
#include "toolkit/conversions.h"

namespace vamo {
namespace {

const QColor kOrange(0xFF, 0x80, 0);
const QColor kDarkGrey(0x66, 0x66, 0x66);
const QColor kLightGrey(0xE6, 0xE6, 0xE6);

QString Text(double value, std::string_view mask) {
  return QString::fromStdString(Format(value, mask));
}

double Number(const QLineEdit& field) { return Val(field.text().toStdString()); }

QLabel* AddResult(QWidget& parent, QRect place, const QString& what, Qt::Alignment alignment) {
  QLabel* label = AddLabel(parent, place, QString(), Qt::black, 12, false, alignment);
  label->setAccessibleDescription(what);
  return label;
}

}  // namespace

PlainWindow::PlainWindow() : content_(new QWidget(this)) {
  setWindowTitle(QStringLiteral("Vamo"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(content_);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  content_->setFixedSize(500, 425);
  MakeWhite(*content_);
  AddMenus();
  AddHead();
  AddInput();
  AddResults();
  r_edit_->setFocus();
}

void PlainWindow::AddMenus() {
  auto* bar = new QMenuBar(this);
  QMenu* file = bar->addMenu(QStringLiteral("&File"));
  file->addAction(QStringLiteral("Quit"), QKeySequence(QStringLiteral("Ctrl+Q")), qApp,
                  &QCoreApplication::quit);
  QMenu* edit = bar->addMenu(QStringLiteral("&Edit"));
  edit->addAction(QStringLiteral("Undo"))->setShortcut(QKeySequence::Undo);
  edit->addSeparator();
  edit->addAction(QStringLiteral("Cut"))->setShortcut(QKeySequence::Cut);
  edit->addAction(QStringLiteral("Copy"))->setShortcut(QKeySequence::Copy);
  edit->addAction(QStringLiteral("Paste"))->setShortcut(QKeySequence::Paste);
  QMenu* window = bar->addMenu(QStringLiteral("&Window"));
  window->addAction(QStringLiteral("Control"))->setEnabled(false);
  window->addAction(QStringLiteral("About Vamo"));
  bar->addMenu(QStringLiteral("&Help"))->addAction(QStringLiteral("About Vamo"));
  layout()->setMenuBar(bar);
}

void PlainWindow::AddHead() {
  new Box(*content_, {5, 5, 100, 80}, 1, Qt::white, Qt::white, kDarkRed);
  AddPicture(*content_, {9, 9, 92, 72});
  AddLabel(*content_, {115, -5, 371, 73}, QStringLiteral("Vamo"), kDarkRed, 48, true,
           Qt::AlignHCenter);
  AddLabel(*content_, {115, 66, 371, 20}, QStringLiteral("by Halden Q. Orrin"), kDarkRed, 9, false,
           Qt::AlignHCenter);
  new Box(*content_, {113, 82, 371, 2}, 1, QColor(0xFF, 0x66, 0x66), kDarkRed, kDarkRed);
}

void PlainWindow::AddInput() {
  const auto caption = [&](QRect place, const QString& text, QColor colour) {
    return AddLabel(*content_, place, text, colour, 12, true);
  };
  QLabel* r = caption({25, 192, 20, 20}, QStringLiteral("r ="), Qt::black);
  QLabel* n = caption({25, 257, 20, 20}, QStringLiteral("N ="), Qt::black);
  QLabel* z = caption({325, 192, 70, 20}, QStringLiteral("Fisher's z ="), kDarkGrey);
  r_edit_ = AddField({55, 192, 60, 20}, Qt::AlignHCenter, QStringLiteral("r"), *r);
  n_edit_ = AddField({55, 257, 60, 20}, Qt::AlignLeft, QStringLiteral("N"), *n);
  z_field_ = AddField({400, 192, 70, 20}, Qt::AlignLeft, QStringLiteral("Fisher's z"), *z);
  z_field_->setReadOnly(true);
  z_field_->setEnabled(false);
  n_text_ = AddLabel(*content_, {127, 257, 129, 20}, QStringLiteral("(4 - 1,1000)"), kOrange, 11);
  n_text_->hide();
  QSlider* r_slider = AddSlider({25, 220, 450, 15}, 0, 99, QStringLiteral("r"));
  QSlider* n_slider = AddSlider({25, 285, 450, 15}, 4, 1000, QStringLiteral("N"));
  connect(r_edit_, &QLineEdit::textChanged, this, &PlainWindow::RChanged);
  connect(n_edit_, &QLineEdit::textChanged, this, &PlainWindow::NChanged);
  connect(r_slider, &QSlider::valueChanged, r_edit_,
          [this](int position) { r_edit_->setText(Text(position / 100.0, ".000")); });
  connect(n_slider, &QSlider::valueChanged, n_edit_,
          [this](int position) { n_edit_->setText(QString::number(position)); });
}

void PlainWindow::AddResults() {
  new Box(*content_, {20, 353, 420, 30}, 2, kDarkGrey, QColor(0x80, 0x80, 0x80), kLightGrey);
  const auto caption = [&](QRect place, const QString& text) {
    AddLabel(*content_, place, text, kDarkRed, 12, true);
  };
  caption({35, 358, 30, 20}, QStringLiteral("t ="));
  caption({136, 358, 40, 20}, QStringLiteral("p ="));
  caption({251, 358, 85, 20}, QStringLiteral("95% CI of r ="));
  t_text_ = AddResult(*content_, {60, 358, 60, 20}, QStringLiteral("Student's t"), Qt::AlignLeft);
  p_text_ =
      AddResult(*content_, {164, 358, 60, 20}, QStringLiteral("two-tailed p"), Qt::AlignHCenter);
  ci_text_ = AddResult(*content_, {334, 358, 95, 20},
                       QStringLiteral("95% confidence interval of r"), Qt::AlignHCenter);
  auto* info = new QPushButton(QStringLiteral("?"), content_);
  info->setGeometry(439, 349, 40, 40);
  info->setFont(InterfaceFont(16, true));
  info->setDefault(true);
  info->setFocusPolicy(Qt::NoFocus);
  info->setAccessibleName(QStringLiteral("Info"));
}

QLineEdit* PlainWindow::AddField(QRect place, Qt::Alignment alignment, const QString& name,
                                 QLabel& caption) {
  auto* field = new QLineEdit(content_);
  field->setGeometry(place);
  field->setFont(InterfaceFont(12, false));
  field->setAlignment(alignment | Qt::AlignVCenter);
  field->setAccessibleName(name);
  caption.setBuddy(field);
  return field;
}

QSlider* PlainWindow::AddSlider(QRect place, int minimum, int maximum, const QString& name) {
  auto* slider = new QSlider(Qt::Horizontal, content_);
  slider->setGeometry(place);
  slider->setRange(minimum, maximum);
  slider->setAccessibleName(name);
  return slider;
}

void PlainWindow::RChanged() {
  r_ = std::clamp(Number(*r_edit_), 0.0, 0.99999);
  Calculate();
  z_field_->setText(Text(FisherZ(r_), "##0.000"));
}

void PlainWindow::NChanged() {
  n_text_->setVisible(Number(*n_edit_) < 4);
  Calculate();
}

void PlainWindow::Calculate() {
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
  ci_text_->setText(Text(interval.lo, "+.000") + QStringLiteral(" to ") +
                    Text(interval.hi, "+.000"));
}

}  // namespace vamo
