#ifndef VAMO_DISPLAYS_WEB_PANE_H_
#define VAMO_DISPLAYS_WEB_PANE_H_

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "displays/web/page.h"
#include "toolkit/drawing.h"
#include "toolkit/runtime/display.h"
#include "toolkit/window/pane.h"

namespace vamo {

// The pane of a window: its picture as SVG, which is sharp at every size, and its numbers as a
// table for screen readers only, which follows a little later. In both, only what has changed is
// written.
class WebPane {
 public:
  // Creates the elements at the end of `parent`. `height` is that of the window's content.
  WebPane(const PageElement& parent, const Pane& pane, double height);

  // Shows the pane's current state.
  void Update();

 private:
  void ShowDrawing(Drawing drawing);
  void ShowTable();

  const Pane& pane_;
  const double height_;
  PageElement box_;
  PageElement picture_;
  Drawing drawing_;
  // The elements of its marks.
  std::vector<std::unique_ptr<PageElement>> marks_;
  PageElement table_;
  std::unique_ptr<RunningTimer> table_timer_;
  std::vector<std::unique_ptr<PageElement>> rows_;
  std::vector<std::unique_ptr<PageElement>> cells_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_PANE_H_
