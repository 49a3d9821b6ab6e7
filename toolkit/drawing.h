// A picture as a list of marks, for any display to draw.
#ifndef VAMO_TOOLKIT_DRAWING_H_
#define VAMO_TOOLKIT_DRAWING_H_

#include <string>
#include <variant>
#include <vector>

#include "toolkit/style.h"

namespace vamo {

// What is drawn on a ground of one colour, the first mark first. Lengths and positions are logical
// pixels, from the upper left corner. It holds no state of a display and computes nothing.
struct Drawing {
  struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
  };

  // How a line is drawn. A line without a gap is solid.
  struct Pen {
    Colour colour;
    double width = 1;
    double dash = 0;
    double gap = 0;
    bool operator==(const Pen&) const = default;
  };

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

  struct Polygon {
    std::vector<Point> points;
    Colour fill;
    bool operator==(const Polygon&) const = default;
  };

  // A filled circle. Its rim, a line of the ground's colour along its edge, parts it from what lies
  // below it.
  struct Dot {
    Point middle;
    double radius = 0;
    double rim = 0;
    Colour fill;
    bool operator==(const Dot&) const = default;
  };

  // A text in the platform's interface font. `base` lies on the base line, at the text's left end,
  // middle or right end, as `alignment` says. A halo of the ground's colour, so wide as a whole,
  // parts it from the lines below it.
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
  Colour ground;
  std::vector<Mark> marks;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_DRAWING_H_
