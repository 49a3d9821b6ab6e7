// The control window, written by hand.
#ifndef VAMO_BENCH_PLAIN_WINDOW_H_
#define VAMO_BENCH_PLAIN_WINDOW_H_

#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QWidget>

namespace vamo {

// The control window as one would write it for Qt alone: the same controls in the same places, with
// the same texts, from the same statistics, calculated once a change. It has no filters on typing
// and none of the other rules that no slider meets.
class PlainWindow : public QWidget {
 public:
  PlainWindow();

 private:
  void AddMenus();
  void AddHead();
  void AddInput();
  void AddResults();
  QLineEdit* AddField(QRect place, Qt::Alignment alignment, const QString& name, QLabel& caption);
  QSlider* AddSlider(QRect place, int minimum, int maximum, const QString& name);

  void RChanged();
  void NChanged();
  void Calculate();

  QWidget* content_;
  QLineEdit* r_edit_ = nullptr;
  QLineEdit* n_edit_ = nullptr;
  QLineEdit* z_field_ = nullptr;
  QLabel* n_text_ = nullptr;
  QLabel* t_text_ = nullptr;
  QLabel* p_text_ = nullptr;
  QLabel* ci_text_ = nullptr;
  double r_ = 0;
};

}  // namespace vamo

#endif  // VAMO_BENCH_PLAIN_WINDOW_H_
