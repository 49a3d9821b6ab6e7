#include "toolkit/control/rectangle.h"

#include <array>

#include "toolkit/control/properties.h"

namespace vamo {

struct Rectangle::Properties {
  static constexpr std::array kRows{
      Sets<&Rectangle::border_thickness_>(property::kBorderThickness),
      Sets<&Rectangle::fill_colour_>(property::kFillColor),
      Sets<&Rectangle::top_left_colour_>(property::kTopLeftColor),
      Sets<&Rectangle::bottom_right_colour_>(property::kBottomRightColor),
  };
};

constinit const ClassInfo Rectangle::kClass{
    "Rectangle", &RectControl::kClass, Properties::kRows, {}, Allocate<Rectangle>};

}  // namespace vamo
