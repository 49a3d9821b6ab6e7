// Paints the toolkit's drawings.
#ifndef VAMO_DISPLAYS_QT_PAINTING_H_
#define VAMO_DISPLAYS_QT_PAINTING_H_

class QPaintDevice;

namespace vamo {

struct Drawing;

// Paints a drawing over the whole device, enlarged by `factor` and sharp at every scale: straight
// lines fall on whole pixels of the device; curves, dots and texts have smooth edges.
void Paint(const Drawing& drawing, double factor, QPaintDevice& device);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_PAINTING_H_
