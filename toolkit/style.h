// Where things lie on a window, and how they look.
#ifndef VAMO_TOOLKIT_STYLE_H_
#define VAMO_TOOLKIT_STYLE_H_

#include <cstdint>
#include <string>

namespace vamo {

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Colour&) const = default;
};

// How text on a control is drawn. "System" as the name is the platform's interface font.
struct Font {
  std::string name = "System";
  float size = 12;
  bool bold = false;
  bool italic = false;
  bool underline = false;
};

// How a text lies in its control. The numbers are those of the property TextAlignment.
enum class TextAlignment : std::int64_t { kDefault = 0, kLeft = 1, kCentre = 2, kRight = 3 };

// A rectangle on a window, from the top left corner of its content area.
struct Bounds {
  std::int64_t left = 0;
  std::int64_t top = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;
};

// Whether each side of a control keeps its distance to the window's side when the window changes
// its size.
struct Locks {
  bool left = false;
  bool top = false;
  bool right = false;
  bool bottom = false;
};

// Where a control designed for `bounds` lies once its window has grown by `wider` and `taller`:
// locked on both sides it stretches, to no length below 0; locked at the right or the bottom alone
// it moves; else it stays.
Bounds Stretched(const Bounds& bounds, const Locks& locks, std::int64_t wider, std::int64_t taller);

}  // namespace vamo

#endif  // VAMO_TOOLKIT_STYLE_H_
