// A picture as a list of marks, for any display to draw.
#ifndef VAMO_TOOLKIT_DRAWING_H_
#define VAMO_TOOLKIT_DRAWING_H_

#include <string>
#include <variant>
#include <vector>

#include "toolkit/style.h"

namespace vamo {

// Marks on a background of one colour, drawn from the first to the last. Lengths and positions are
// in logical pixels from the upper left corner. A drawing holds no state of a display and computes
// nothing.
struct Drawing {
  struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
  };

  // How a line is drawn. Without a gap it is solid.
  struct Pen {
    Colour colour;
    double width = 1;
    double dash = 0;
    double gap = 0;
    bool operator==(const Pen&) const = default;
  };

  // A horizontal or vertical line.
  struct Line {
    Point from;
    Point to;
    Pen pen;
    bool operator==(const Line&) const = default;
  };

  struct Polyline {
    std::vector<Point> points;
    Pen pen;
    bool operator==(const Polyline&) const = default;
  };

  // Lines cover its edges, so a display may draw them without antialiasing.
  struct Polygon {
    std::vector<Point> points;
    Colour fill;
    bool operator==(const Polygon&) const = default;
  };

  // A filled circle. Its rim, a line in the background colour along its edge, separates it from
  // what is below it.
  struct Dot {
    Point middle;
    double radius = 0;
    double rim = 0;
    Colour fill;
    bool operator==(const Dot&) const = default;
  };

  // A text in the platform's interface font. `base` is on the baseline, at the text's left end,
  // middle or right end according to `alignment`. A halo in the background colour, kHalo wide in
  // all, separates the text from the lines below it.
  struct Text {
    static constexpr double kHalo = 4;
    Point base;
    TextAlignment alignment = TextAlignment::kLeft;
    std::string text;
    double size = 12;
    bool bold = false;
    Colour colour;
    bool operator==(const Text&) const = default;
  };

  using Mark = std::variant<Line, Polyline, Polygon, Dot, Text>;

  double width = 0;
  double height = 0;
  Colour background;
  std::vector<Mark> marks;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_DRAWING_H_
