#ifndef VAMO_DISPLAYS_WEB_ARRANGEMENT_H_
#define VAMO_DISPLAYS_WEB_ARRANGEMENT_H_

#include <memory>
#include <string_view>
#include <vector>

#include "displays/web/control.h"
#include "displays/web/page.h"
#include "displays/web/reading_order.h"

namespace vamo {

// Puts the elements of a window's controls in reading order, in boxes for rows, for columns, for
// the contents of a rectangle, and for a caption with its control. The style sheet lays these boxes
// out when the window is not shown as designed; otherwise they have no effect.
class Arrangement {
 public:
  // The controls must outlive this object.
  Arrangement(PageElement& content, const std::vector<WebControl*>& controls);

 private:
  // Puts the controls contained in `parent`, or in the window if it is null, into an element.
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
