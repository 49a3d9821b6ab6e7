#ifndef VAMO_TOOLKIT_WINDOW_PANE_H_
#define VAMO_TOOLKIT_WINDOW_PANE_H_

#include <string>
#include <string_view>
#include <vector>

#include "toolkit/drawing.h"

namespace vamo {

class Window;

// A picture at the right side of a window, which the user opens and closes. It belongs to the
// window: it is not a control, never has the focus, and handles no key and no press. A subclass
// defines what it shows; a display asks for that each time it shows the pane.
class Pane {
 public:
  // Its name in the View menu and for screen readers.
  static constexpr std::string_view kName = "Chart";
  // In logical pixels. If the screen has less room, the pane may be as narrow as kSmallestWidth.
  static constexpr double kWidth = 420;
  static constexpr double kSmallestWidth = 260;

  // `window` must outlive the pane.
  explicit Pane(Window& window) : window_(window) {}
  virtual ~Pane() = default;
  Pane(const Pane&) = delete;
  Pane& operator=(const Pane&) = delete;

  virtual Drawing Draw(double width, double height) const = 0;
  // The picture in words, never empty, and in numbers: rows of cells, the first of them the
  // headings; no row if there are no numbers.
  virtual std::string Description() const = 0;
  virtual std::vector<std::vector<std::string>> Table() const = 0;

  bool IsOpen() const { return open_; }
  // Opens or closes the pane, and announces that and what it shows. If the screen has no room for
  // it, beeps and leaves it closed.
  void Toggle();

 protected:
  // Call this when the content has changed. An open pane is shown again once, at the end of the
  // event.
  void Changed();

 private:
  Window& window_;
  bool open_ = false;
  bool shown_at_end_ = false;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_PANE_H_
