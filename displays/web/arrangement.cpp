#include "displays/web/arrangement.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "toolkit/control/label.h"
#include "toolkit/control/rectangle.h"
#include "toolkit/window/window.h"

namespace vamo {
namespace {

bool LiesIn(const WebControl& control, const WebControl* parent) {
  return control.Control().InitialParent() ==
         (parent == nullptr ? std::string() : parent->Control().Name());
}

}  // namespace

Arrangement::Arrangement(PageElement& content, const std::vector<WebControl*>& controls)
    : controls_(controls) {
  Place(nullptr, content);
}

PageElement& Arrangement::MakeBox(PageElement& into, std::string_view kind) {
  boxes_.push_back(std::make_unique<PageElement>(into, "div"));
  boxes_.back()->SetAttribute("class", kind);
  return *boxes_.back();
}

void Arrangement::Place(const WebControl* parent, PageElement& into) {
  std::vector<WebControl*> controls;
  std::copy_if(controls_.begin(), controls_.end(), std::back_inserter(controls),
               [&](const WebControl* control) { return LiesIn(*control, parent); });
  if (controls.empty()) return;
  std::vector<Bounds> boxes;
  boxes.reserve(controls.size());
  for (const WebControl* control : controls) boxes.push_back(control->Control().Bounds());
  Place(InReadingOrder(boxes), controls, into);
}

void Arrangement::Place(const Block& block, const std::vector<WebControl*>& controls,
                        PageElement& into) {
  if (block.parts.empty()) return PlaceOne(*controls[block.box], into);
  if (block.beside) return PlaceBeside(block, controls, into);
  // The window itself is a column.
  PageElement& column = boxes_.empty() ? into : MakeBox(into, "column");
  for (const Block& part : block.parts) Place(part, controls, column);
}

void Arrangement::PlaceBeside(const Block& block, const std::vector<WebControl*>& controls,
                              PageElement& into) {
  PageElement& row = MakeBox(into, "row");
  PageElement* pair = nullptr;
  for (std::size_t i = 0; i < block.parts.size(); ++i) {
    const auto control_at = [&](std::size_t part) -> WebControl* {
      const bool is_one = part < block.parts.size() && block.parts[part].parts.empty();
      return is_one ? controls[block.parts[part].box] : nullptr;
    };
    const WebControl* caption = control_at(i);
    const WebControl* next = control_at(i + 1);
    const bool begins_pair =
        caption != nullptr && next != nullptr && next->Control().IsLabelledBy(caption->Control());
    PageElement* const place = begins_pair ? &MakeBox(row, "pair") : pair;
    Place(block.parts[i], controls, place != nullptr ? *place : row);
    pair = begins_pair ? place : nullptr;
  }
}

void Arrangement::PlaceOne(WebControl& control, PageElement& into) {
  const bool holds_others =
      std::any_of(controls_.begin(), controls_.end(),
                  [&](const WebControl* other) { return LiesIn(*other, &control); });
  if (!holds_others) return control.Element().MoveTo(into);
  PageElement& group = MakeBox(into, "group");
  if (const auto* rectangle = dynamic_cast<const Rectangle*>(&control.Control()))
    group.SetStyle("--fill", ToCss(rectangle->FillColour()));
  control.Element().MoveTo(group);
  Place(&control, group);
}

}  // namespace vamo
