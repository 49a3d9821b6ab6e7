// The rows of the tables that set the initial state of windows and controls. The defaults are what
// most objects share; a row names only what differs. Lengths are in logical pixels.
#ifndef VAMO_CONTROLWND_STREAM_ROWS_H_
#define VAMO_CONTROLWND_STREAM_ROWS_H_

#include <cstdint>
#include <string_view>

#include "controlwnd/colours.h"
#include "toolkit/style.h"
#include "toolkit/window/timer.h"
#include "toolkit/window/window.h"

namespace vamo {

struct WindowRow {
  std::int64_t width, height;
  std::int64_t maximum_width = 32000, maximum_height = 32000;
  WindowType type = WindowType::kWorking;
  std::string_view title = {};
  bool has_maximize_button = false;
  bool resizeable = false;
  bool composite = false;
  bool has_background_colour = true;
};

inline constexpr Locks kAllLocked{true, true, true, true};

// The properties with which the stream of every visible control begins.
struct PlaceRow {
  std::string_view name;
  std::int64_t left, top, width, height;
  std::int64_t tab_index;
  // The name of the control that contains this one; empty if the window does.
  std::string_view parent = {};
  Locks locks = kAllLocked;
};

struct LabelRow {
  PlaceRow place;
  bool tab_stop = false;
  std::string_view value = {};
  float font_size = 12;
  bool bold = false;
  TextAlignment alignment = TextAlignment::kDefault;
  Colour colour = kBlack;
  bool visible = true;
};

struct TextFieldRow {
  PlaceRow place;
  TextAlignment alignment = TextAlignment::kDefault;
  std::string_view validation_mask = {};
  std::int64_t maximum_characters = 0;
  bool spell_checking = false;
  bool enabled = true;
  bool read_only = false;
};

struct SliderRow {
  PlaceRow place;
  std::int64_t value, minimum, maximum;
};

struct RectangleRow {
  PlaceRow place;
  Colour fill, top_left, bottom_right;
  double border_thickness = 1;
};

struct CanvasRow {
  PlaceRow place;
  bool tab_stop = true;
  bool enabled = true;
};

struct PushButtonRow {
  PlaceRow place;
  std::string_view caption;
  float font_size = 12;
  bool bold = false;
  bool is_default = false;
};

struct TextAreaRow {
  PlaceRow place;
  std::string_view value;
};

struct TimerRow {
  RunMode run_mode;
  // In milliseconds.
  std::int64_t period;
};

}  // namespace vamo

#endif  // VAMO_CONTROLWND_STREAM_ROWS_H_
