// How far a label's text may extend beyond its box, and where it is drawn.
#ifndef VAMO_TOOLKIT_WINDOW_TEXT_ROOM_H_
#define VAMO_TOOLKIT_WINDOW_TEXT_ROOM_H_

#include "toolkit/control/control.h"

namespace vamo {

// How far a label's text may extend beyond its box on both sides, in logical pixels.
struct TextRoom {
  double left = 0;
  double right = 0;
};

// How far a label's text may extend in a live window: it keeps a gap to the neighbours and to the
// edges of what contains it.
TextRoom RoomOfText(const RectControl& label);

// Where a line of text is drawn.
struct FittedText {
  // Its left end, measured from that of the box.
  double left = 0;
  // The horizontal scale of the text, at most 1.
  double scale = 1;
};

// Fits a line of text of that width into a box and the room around it. A text wider than the box
// extends beyond it; a text wider than the room too is narrowed. All lengths have the same unit.
FittedText FitText(const TextRoom& room, double box, TextAlignment alignment, double width);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_TEXT_ROOM_H_
