// A drawn frame.
#include "toolkit/rectangle.h"

#include <array>

namespace vamo {

const ClassInfo Rectangle::kClass{"Rectangle", &RectControl::kClass, Properties()};

std::span<const Property> Rectangle::Properties() {
  static constexpr std::array kProperties{
      Declare<&Rectangle::border_thickness_>("BorderThickness"),
      Declare<&Rectangle::fill_color_>("FillColor"),
      Declare<&Rectangle::top_left_color_>("TopLeftColor"),
      Declare<&Rectangle::bottom_right_color_>("BottomRightColor"),
  };
  return kProperties;
}

}  // namespace vamo
