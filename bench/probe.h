// Operates a program from inside and takes one measurement.
#ifndef VAMO_BENCH_PROBE_H_
#define VAMO_BENCH_PROBE_H_

#include <QObject>
#include <QPointer>
#include <QSlider>
#include <QWidget>
#include <chrono>
#include <functional>
#include <string>

namespace vamo {

// A probe in an application whose first window is a splash, which a key replaces with a window that
// has sliders. It sends the events of a user, prints one measurement and ends the process; it
// changes nothing in what the windows do. Create it after the application object and before the
// first window.
//
// The first argument of the program selects the measurement; without one the probe does nothing:
//   splash   the time on the monotonic clock, in milliseconds, at which the splash is on the screen
//   window   milliseconds from a key on the splash to the next window on the screen
//   slide    milliseconds of processor time for a thousand moves of the first slider, each painted
//   chart    the same with the chart open
//   memory   the peak of the resident memory after such a session, in KiB
//   growth   the heap in use and the resident memory, in KiB, after a thousand and a million moves
//            with the chart open
//   texts    the texts of the fields and labels after some moves
class Probe : public QObject {
 public:
  Probe(int argc, char** argv);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Calls `then` when the current painting is on the screen.
  void OncePainted(const std::function<void()>& then);
  // Each of these lets the new window settle, measures and ends the process.
  void SplashShown();
  void WindowShown();

  void OpenChart();
  void MeasureSlide();
  void MeasureMemory();
  void MeasureGrowth();
  void PrintTexts();

  // Moves the knob through the whole range and back, again and again, `moves` times. Paints the
  // window after every `moves_a_paint` moves.
  void Slide(int moves, int moves_a_paint);
  void DragTo(int position);
  void Paint();

  const std::string mode_;
  QPointer<QWidget> splash_;
  QPointer<QWidget> window_;
  QPointer<QSlider> slider_;
  std::chrono::steady_clock::time_point key_pressed_;
  bool painted_ = false;
  int step_ = 1;
};

}  // namespace vamo

#endif  // VAMO_BENCH_PROBE_H_
