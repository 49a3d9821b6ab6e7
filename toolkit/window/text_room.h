// How far the text of a label may reach, and where it is drawn.
#ifndef VAMO_TOOLKIT_WINDOW_TEXT_ROOM_H_
#define VAMO_TOOLKIT_WINDOW_TEXT_ROOM_H_

#include "toolkit/control/control.h"

namespace vamo {

// What the text of a label may cover across the window, in logical pixels beyond its box.
struct TextRoom {
  double left = 0;
  double right = 0;
};

// The room of a label of a live window: up to a gap from what stands beside it.
TextRoom RoomOfText(const RectControl& label);

// Where a text of one line is drawn.
struct FittedText {
  // Its left end, from that of the box.
  double left = 0;
  // How much narrower than usual it is drawn, at most 1.
  double scale = 1;
};

// Fits a text of that width into a box and the room around it: a text that is too wide stands out
// of the box, and is narrowed where the room ends too. All lengths are in one unit.
FittedText FitText(const TextRoom& room, double box, TextAlignment alignment, double width);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_TEXT_ROOM_H_
