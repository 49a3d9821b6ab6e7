// The picture that the control window and the About window show.
#ifndef VAMO_CONTROLWND_CHART_SMALL_H_
#define VAMO_CONTROLWND_CHART_SMALL_H_

#include "toolkit/control/canvas.h"

namespace vamo::_x_ChartSmall {

// The picture, loaded at the first use and then shared. Nil where it cannot be loaded; the next
// call tries again.
Ref<Picture> ChartSmall();

}  // namespace vamo::_x_ChartSmall

#endif  // VAMO_CONTROLWND_CHART_SMALL_H_
