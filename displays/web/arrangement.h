#ifndef VAMO_DISPLAYS_WEB_ARRANGEMENT_H_
#define VAMO_DISPLAYS_WEB_ARRANGEMENT_H_

#include <memory>
#include <string_view>
#include <vector>

#include "displays/web/control.h"
#include "displays/web/page.h"
#include "displays/web/reading_order.h"

namespace vamo {

// Puts the elements of a window's controls in the order in which one reads them, in boxes for those
// that stand beside each other, below each other, in a rectangle, or at their caption. The style
// sheet lets these boxes flow where the window is not shown as designed; else they do nothing.
class Arrangement {
 public:
  // The controls outlive this.
  Arrangement(PageElement& content, const std::vector<WebControl*>& controls);

 private:
  // Puts the controls that lie in `parent`, null for the window, into an element.
  void Place(const WebControl* parent, PageElement& into);
  void Place(const Block& block, const std::vector<WebControl*>& controls, PageElement& into);
  void PlaceBeside(const Block& block, const std::vector<WebControl*>& controls, PageElement& into);
  void PlaceOne(WebControl& control, PageElement& into);
  PageElement& MakeBox(PageElement& into, std::string_view kind);

  const std::vector<WebControl*>& controls_;
  std::vector<std::unique_ptr<PageElement>> boxes_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_ARRANGEMENT_H_
