// The picture that the control window and the About window show.
#include "controlwnd/chart_small.h"

#include "toolkit/runtime.h"

namespace vamo::_x_ChartSmall {

struct Fields {
  Ref<Picture> pic;
};

Ref<Picture> ChartSmall() {
  Ref<Picture>& pic = Runtime::Current().ModuleFields<Fields>().pic;
  if (!pic) pic = Picture::_OpenFromApp("ChartSmall.jpg");
  return pic;
}

}  // namespace vamo::_x_ChartSmall
