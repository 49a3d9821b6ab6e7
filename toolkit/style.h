// Positions, colours and fonts on a window.
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

// The font of a control's text. The name "System" means the platform's interface font.
struct Font {
  std::string name = "System";
  float size = 12;
  bool bold = false;
  bool italic = false;
  bool underline = false;
};

// How text is aligned in its control. The numbers are those of the property TextAlignment.
enum class TextAlignment : std::int64_t { kDefault = 0, kLeft = 1, kCentre = 2, kRight = 3 };

// A rectangle on a window, in logical pixels from the top left corner of the content area.
struct Bounds {
  std::int64_t left = 0;
  std::int64_t top = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;
};

// Which sides of a control keep their distance from the same side of a resized window. No window of
// the program can be resized.
struct Locks {
  bool left = false;
  bool top = false;
  bool right = false;
  bool bottom = false;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_STYLE_H_
