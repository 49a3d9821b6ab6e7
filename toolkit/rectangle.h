// A drawn frame.
#ifndef VAMO_TOOLKIT_RECTANGLE_H_
#define VAMO_TOOLKIT_RECTANGLE_H_

#include "toolkit/control.h"

namespace vamo {

// A filled rectangle with a border in two colours, which other controls may lie in. It takes no
// input.
class Rectangle : public RectControl {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // In logical pixels, on each side.
  double BorderThickness() const { return border_thickness_; }
  Colour FillColor() const { return fill_color_; }
  // The colours of the border at the left and the top, and at the right and the bottom.
  Colour TopLeftColor() const { return top_left_color_; }
  Colour BottomRightColor() const { return bottom_right_color_; }

 private:
  struct Properties;

  double border_thickness_ = 1;
  Colour fill_color_;
  Colour top_left_color_;
  Colour bottom_right_color_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_RECTANGLE_H_
