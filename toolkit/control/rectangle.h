#ifndef VAMO_TOOLKIT_CONTROL_RECTANGLE_H_
#define VAMO_TOOLKIT_CONTROL_RECTANGLE_H_

#include "toolkit/control/control.h"

namespace vamo {

// A filled rectangle with a border in two colours. Other controls may lie in it. It takes no input.
class Rectangle : public RectControl {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // In logical pixels, on each side.
  double BorderThickness() const { return Trapped(border_thickness_); }
  Colour FillColour() const { return Trapped(fill_colour_); }
  // The colours of the border: left and top, and right and bottom.
  Colour TopLeftColour() const { return Trapped(top_left_colour_); }
  Colour BottomRightColour() const { return Trapped(bottom_right_colour_); }

 protected:
  AnyControl AsAny() override { return this; }

 private:
  struct Properties;

  double border_thickness_ = 1;
  Colour fill_colour_;
  Colour top_left_colour_;
  Colour bottom_right_colour_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_CONTROL_RECTANGLE_H_
