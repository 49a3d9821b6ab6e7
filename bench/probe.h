// Works a program from inside and takes one measurement.
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

// Sits in an application whose first window is a splash that makes way for a window with sliders at
// a key. It sends the events that a user causes, prints one measurement and ends the process; it
// takes no part in what the windows do. Made after the application object, before the first window.
//
// What it measures goes by the first argument of the program; there is nothing to do without one:
//   splash   the time on the monotonic clock, in milliseconds, at which the splash is on the screen
//   window   milliseconds from a key on the splash to the next window on the screen
//   slide    milliseconds of processor time of a thousand moves of the first slider, each repainted
//   memory   the peak of the resident memory after such a session, in KiB
//   growth   KiB of the heap in use, and resident: after a thousand and a million moves
//   texts    what the fields and labels read after some moves
class Probe : public QObject {
 public:
  Probe(int argc, char** argv);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Calls a function when what is being painted is on the screen.
  void OncePainted(const std::function<void()>& then);
  // Has the window in front settle, measures and ends the process.
  void SplashShown();
  void WindowShown();

  void MeasureSlide();
  void MeasureMemory();
  void MeasureGrowth();
  void PrintTexts();

  // Takes the knob through the whole range and back, over and over, for so many moves. The window
  // is painted after each of `moves_a_paint`.
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
