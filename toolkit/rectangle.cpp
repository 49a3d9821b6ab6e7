// A drawn frame.
#include "toolkit/rectangle.h"

#include <array>

namespace vamo {

struct Rectangle::Properties {
  static constexpr std::array kRows{
      Declare<&Rectangle::border_thickness_>("BorderThickness"),
      Declare<&Rectangle::fill_color_>("FillColor"),
      Declare<&Rectangle::top_left_color_>("TopLeftColor"),
      Declare<&Rectangle::bottom_right_color_>("BottomRightColor"),
  };
};

constinit const ClassInfo Rectangle::kClass{"Rectangle", &RectControl::kClass, Properties::kRows};

}  // namespace vamo
