#include "controlwnd/chart_small.h"

#include "toolkit/runtime/runtime.h"

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
