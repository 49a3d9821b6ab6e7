// The scale of the windows.
#ifndef VAMO_DISPLAYS_QT_ZOOM_H_
#define VAMO_DISPLAYS_QT_ZOOM_H_

#include <QFont>
#include <QKeyEvent>
#include <QObject>
#include <array>

namespace vamo {

// The factor by which all windows are scaled, and the keys that change it. It is for the back row
// of a class and for a screen that is smaller than the windows, and it is forgotten when the
// program ends. The toolkit does not know it.
class Zoom {
 public:
  Zoom();

  double Factor() const { return factor_; }

  // Make all windows larger, smaller or as designed, as far as the screen has room.
  void Enlarge();
  void Reduce();
  void Restore();
  bool CanEnlarge() const;
  bool CanReduce() const;
  bool CanRestore() const;
  // Handles their keys, the command key with plus, minus or 0. Returns false for any other key.
  bool HandleKey(const QKeyEvent& event);

  // Makes all windows smaller until each fits its screen. Also called when a screen changes.
  void FitScreen();

 private:
  struct PlatformFont {
    const char* widgets;
    QFont designed;
  };

  void Set(double factor);

  double factor_ = 1;
  // The fonts of the widgets for which the toolkit names none.
  std::array<PlatformFont, 3> fonts_;
  // The connections end with this object.
  QObject connections_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_ZOOM_H_
