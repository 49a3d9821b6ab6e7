// How a drawing of the toolkit is painted.
#ifndef VAMO_DISPLAYS_QT_PAINTING_H_
#define VAMO_DISPLAYS_QT_PAINTING_H_

class QPaintDevice;

namespace vamo {

struct Drawing;

// Paints a drawing, so many times larger, on all of a device, sharp at each scale: straight lines
// along the device's pixels, all else with smooth edges.
void Paint(const Drawing& drawing, double factor, QPaintDevice& device);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_PAINTING_H_
