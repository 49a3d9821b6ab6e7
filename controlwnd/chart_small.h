// The picture that the control window and the About window show.
#ifndef VAMO_CONTROLWND_CHART_SMALL_H_
#define VAMO_CONTROLWND_CHART_SMALL_H_

#include "toolkit/control/canvas.h"

namespace vamo::_x_ChartSmall {

// Loads the picture at its first use and then shares it. Returns nil if it cannot be loaded; the
// next call tries again.
Ref<Picture> ChartSmall();

}  // namespace vamo::_x_ChartSmall

#endif  // VAMO_CONTROLWND_CHART_SMALL_H_
