#include "toolkit/window/text_room.h"

#include <algorithm>
#include <cstdint>

#include "toolkit/window/window.h"

namespace vamo {

TextRoom RoomOfText(const RectControl& label) {
  constexpr double kGap = 5;
  const Bounds& box = label.Bounds();
  const Ref<Window> window = label.Window();
  const Ref<RectControl> parent = window->ParentOf(label);
  const Bounds whole = parent ? parent->Bounds() : Bounds{0, 0, window->InitialState().width, 0};
  std::int64_t left = whole.left;
  std::int64_t right = whole.left + whole.width;
  for (const Ref<RectControl>& other : window->Controls()) {
    const Bounds& beside = other->Bounds();
    const bool in_line = beside.top < box.top + box.height && box.top < beside.top + beside.height;
    if (!in_line || other == parent) continue;
    const std::int64_t end = beside.left + beside.width;
    if (2 * end <= 2 * box.left + box.width) left = std::max(left, end);
    if (2 * beside.left >= 2 * box.left + box.width) right = std::min(right, beside.left);
  }
  // Where two boxes touch, the gap is at the right end of the left one.
  const auto box_left = static_cast<double>(box.left);
  return {box_left - std::min(box_left, static_cast<double>(left) + kGap),
          static_cast<double>(right) - kGap - static_cast<double>(box.left + box.width)};
}

FittedText FitText(const TextRoom& room, double box, TextAlignment alignment, double width) {
  const double whole = std::max(1.0, room.left + box + room.right);
  const double scale = std::min(1.0, whole / width);
  const double free = box - width * scale;
  double left = 0;
  if (alignment == TextAlignment::kCentre) left = free / 2;
  if (alignment == TextAlignment::kRight) left = free;
  return {std::max(-room.left, std::min(left, free + room.right)), scale};
}

}  // namespace vamo
