// How far the text of a label may reach.
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

}  // namespace vamo

#endif  // VAMO_TOOLKIT_WINDOW_TEXT_ROOM_H_
