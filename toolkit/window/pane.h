#ifndef VAMO_TOOLKIT_WINDOW_PANE_H_
#define VAMO_TOOLKIT_WINDOW_PANE_H_

#include <string>
#include <string_view>
#include <vector>

#include "toolkit/drawing.h"

namespace vamo {

class Window;

// A picture at the right side of a window, which the user opens and closes. It belongs to the
// window: it is none of the controls, never has the focus, and takes no key and no press. A
// subclass says what it shows; a display asks for that as often as it is to be shown.
class Pane {
 public:
  // What the View menu and screen readers call it.
  static constexpr std::string_view kName = "Chart";
  // In logical pixels. Where the screen has less room it may be as narrow as the second.
  static constexpr double kWidth = 420;
  static constexpr double kSmallestWidth = 260;

  // `window` outlives it.
  explicit Pane(Window& window) : window_(window) {}
  virtual ~Pane() = default;
  Pane(const Pane&) = delete;
  Pane& operator=(const Pane&) = delete;

  virtual Drawing Draw(double width, double height) const = 0;
  // The picture in words, never empty, and in numbers: rows of cells, the first one the headings.
  // No row where there are no numbers.
  virtual std::string Description() const = 0;
  virtual std::vector<std::vector<std::string>> Table() const = 0;

  bool IsOpen() const { return open_; }
  // Opens or closes it and has a screen reader say so, and what there is to see. Where the screen
  // has no room for it, beeps and leaves it closed.
  void Toggle();

 protected:
  // To be called when there is something else to show. An open one is shown anew once the event is
  // at its end, however often it has changed by then.
  void Changed();

 private:
  Window& window_;
  bool open_ = false;
  bool shown_at_end_ = false;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_PANE_H_
