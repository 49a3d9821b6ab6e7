// How large the windows are.
#ifndef VAMO_DISPLAYS_QT_ZOOM_H_
#define VAMO_DISPLAYS_QT_ZOOM_H_

#include <QFont>
#include <QKeyEvent>
#include <QObject>
#include <array>

namespace vamo {

// How many times larger than designed all windows are, and the keys that change it. It is for the
// back row of a class and for a screen that is smaller than the windows, and forgotten when the
// program ends. The toolkit knows nothing of it.
class Zoom {
 public:
  Zoom();

  double Factor() const { return factor_; }

  // Make all windows larger, smaller, or as designed, as far as the screen has the room.
  void Enlarge();
  void Reduce();
  void Restore();
  bool CanEnlarge() const;
  bool CanReduce() const;
  bool CanRestore() const;
  // The keys for it: the command key with plus, minus or 0. False: it is another key.
  bool TakeKey(const QKeyEvent& event);

  // Makes all windows smaller as far as needed for each of them to fit its screen. The screens say
  // themselves when they have become smaller.
  void FitScreen();

 private:
  struct PlatformFont {
    const char* widgets;
    QFont designed;
  };

  void Set(double factor);

  double factor_ = 1;
  // Of what the toolkit names no font for.
  std::array<PlatformFont, 3> fonts_;
  // They end with it.
  QObject connections_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_ZOOM_H_
