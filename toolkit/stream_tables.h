// Readable rows for the property streams: for each class of object a struct of what differs from
// object to object, and the stream of such a row.
#ifndef VAMO_TOOLKIT_STREAM_TABLES_H_
#define VAMO_TOOLKIT_STREAM_TABLES_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "toolkit/label.h"
#include "toolkit/property_stream.h"

namespace vamo {

inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kWhite{0xFF, 0xFF, 0xFF};

// A window. Lengths in logical pixels.
struct WindowRow {
  std::int64_t width, height;
  std::int64_t maximum_width, maximum_height;
  std::int64_t type;
  std::string_view title;
  bool has_maximize_button;
  bool resizeable;
  bool composite;
  bool has_background_colour;
};

// Which sides keep their distance to the window's.
inline constexpr RectControl::Locks kAllLocked{true, true, true, true};

// What every visible control begins with.
struct PlaceRow {
  std::string_view name;
  std::int64_t left, top, width, height;
  std::int64_t tab_index;
  // The name of the control that this one lies in; empty for the window itself.
  std::string_view parent = {};
  RectControl::Locks locks = kAllLocked;
};

struct LabelRow {
  PlaceRow place;
  bool tab_stop = false;
  std::string_view value = {};
  float font_size = 12;
  bool bold = false;
  TextAlignment alignment = TextAlignment::kDefault;
  Colour colour = {};
  bool visible = true;
};

struct TextFieldRow {
  PlaceRow place;
  TextAlignment alignment;
  std::string_view validation_mask;
  std::int64_t maximum_characters;
  bool spell_checking;
  bool enabled;
  bool read_only;
};

struct SliderRow {
  PlaceRow place;
  std::int64_t value, minimum, maximum;
};

struct RectangleRow {
  PlaceRow place;
  double border_thickness;
  Colour fill, top_left, bottom_right;
};

struct CanvasRow {
  PlaceRow place;
  bool tab_stop;
  bool enabled;
};

struct PushButtonRow {
  PlaceRow place;
  std::string_view caption;
  float font_size;
  bool bold;
  bool is_default;
};

struct TextAreaRow {
  PlaceRow place;
  std::string_view value;
};

struct TimerRow {
  std::int64_t run_mode;
  // In milliseconds.
  std::int64_t period;
};

// Room for the entries of any object of this program, and of one that shows a text of some length.
inline constexpr std::size_t kRoom = 640;
inline constexpr std::size_t kLongRoom = 1592;

namespace internal {

// An index that says: not a member of a control set.
inline constexpr std::int64_t kNoIndex = INT32_MIN;

template <std::size_t kSize>
constexpr EncodedStream<kSize> Head(const PlaceRow& row) {
  return EncodedStream<kSize>()
      .Text("Name", row.name)
      .Integer("Index", kNoIndex)
      .Integer("Left", row.left)
      .Integer("Top", row.top)
      .Integer("Width", row.width)
      .Integer("Height", row.height)
      .Boolean("LockLeft", row.locks.left)
      .Boolean("LockTop", row.locks.top)
      .Boolean("LockRight", row.locks.right)
      .Boolean("LockBottom", row.locks.bottom)
      .Integer("TabIndex", row.tab_index)
      .Integer("TabPanelIndex", 0);
}

}  // namespace internal

// The stream of a row, in the order of its entries. What stands here as a constant is the same for
// every object of the class in this program.

constexpr EncodedStream<kRoom> WindowStream(const WindowRow& row) {
  return EncodedStream<kRoom>()
      .Integer("Width", row.width)
      .Integer("Height", row.height)
      .Integer("MinimumWidth", 64)
      .Integer("MinimumHeight", 64)
      .Integer("MaximumWidth", row.maximum_width)
      .Integer("MaximumHeight", row.maximum_height)
      .Integer("Type", row.type)
      .Text("Title", row.title)
      .Boolean("HasCloseButton", true)
      .Boolean("HasMaximizeButton", row.has_maximize_button)
      .Boolean("HasMinimizeButton", true)
      .Boolean("HasFullScreenButton", false)
      .Boolean("Resizeable", row.resizeable)
      .Boolean("Composite", row.composite)
      .Integer("MacProcID", 0)
      .Boolean("FullScreen", false)
      .Integer("DefaultLocation", 0)
      .Boolean("Visible", true)
      .Boolean("HasBackgroundColor", row.has_background_colour)
      .Colour("BackgroundColor", kWhite)
      .Boolean("MenuBarVisible", true)
      .Boolean("LiveResize", false);
}

constexpr EncodedStream<kRoom> LabelStream(const LabelRow& row) {
  return internal::Head<kRoom>(row.place)
      .Boolean("TabStop", row.tab_stop)
      .Boolean("AllowAutoDeactivate", true)
      .Boolean("Enabled", true)
      .Text("Tooltip")
      .Boolean("Multiline", false)
      .Boolean("Selectable", false)
      .Integer("TextAlignment", static_cast<std::int64_t>(row.alignment))
      .Colour("TextColor", row.colour)
      .Boolean("Transparent", true)
      .Text("Value", row.value)
      .Boolean("Visible", row.visible)
      .Boolean("Bold", row.bold)
      .Boolean("Italic", false)
      .Text("FontName", "System")
      .Boolean("Underline", false)
      .Single("FontSize", row.font_size)
      .Boolean("FontUnit", false)
      .Text("DataSource")
      .Text("DataField")
      .Text("InitialParent", row.place.parent);
}

constexpr EncodedStream<kRoom> TextFieldStream(const TextFieldRow& row) {
  return internal::Head<kRoom>(row.place)
      .Boolean("TabStop", true)
      .Boolean("AllowAutoDeactivate", true)
      .Colour("BackgroundColor", kWhite)
      .Boolean("HasBorder", true)
      .Boolean("Enabled", row.enabled)
      .Text("Format")
      .Text("Tooltip")
      .Boolean("Password", false)
      .Colour("TextColor", kBlack)
      .Boolean("Transparent", true)
      .Boolean("AllowFocusRing", true)
      .Boolean("Visible", true)
      .Text("FontName", "System")
      .Single("FontSize", 12.0F)
      .Boolean("FontUnit", false)
      .Boolean("Bold", false)
      .Boolean("Italic", false)
      .Boolean("Underline", false)
      .Text("Hint")
      .Text("Value")
      .Boolean("AllowTabs", false)
      .Integer("TextAlignment", static_cast<std::int64_t>(row.alignment))
      .Boolean("AllowSpellChecking", row.spell_checking)
      .Integer("MaximumCharactersAllowed", row.maximum_characters)
      .Text("ValidationMask", row.validation_mask)
      .Boolean("ReadOnly", row.read_only)
      .Text("DataSource")
      .Text("DataField")
      .Text("InitialParent", row.place.parent);
}

constexpr EncodedStream<kLongRoom> TextAreaStream(const TextAreaRow& row) {
  return internal::Head<kLongRoom>(row.place)
      .Boolean("TabStop", false)
      .Boolean("AllowAutoDeactivate", true)
      .Colour("BackgroundColor", kWhite)
      .Boolean("HasBorder", true)
      .Boolean("Enabled", true)
      .Text("Format")
      .Text("Tooltip")
      .Boolean("HideSelection", true)
      .Double("LineHeight", 0.0)
      .Double("LineSpacing", 1.0)
      .Boolean("Multiline", true)
      .Boolean("HasHorizontalScrollbar", false)
      .Boolean("HasVerticalScrollbar", false)
      .Boolean("AllowStyledText", true)
      .Colour("TextColor", kBlack)
      .Boolean("Transparent", true)
      .Boolean("AllowFocusRing", false)
      .Boolean("Visible", true)
      .Boolean("Bold", false)
      .Boolean("Italic", false)
      .Text("FontName", "System")
      .Single("FontSize", 12.0F)
      .Boolean("FontUnit", false)
      .Boolean("Underline", false)
      .Text("Value", row.value)
      .Boolean("AllowTabs", false)
      .Integer("TextAlignment", static_cast<std::int64_t>(TextAlignment::kDefault))
      .Boolean("AllowSpellChecking", false)
      .Integer("MaximumCharactersAllowed", 0)
      .Text("ValidationMask")
      .Boolean("ReadOnly", true)
      .Text("DataSource")
      .Text("DataField")
      .Text("InitialParent", row.place.parent);
}

constexpr EncodedStream<kRoom> SliderStream(const SliderRow& row) {
  return internal::Head<kRoom>(row.place)
      .Boolean("TabStop", true)
      .Boolean("AllowAutoDeactivate", true)
      .Boolean("Enabled", true)
      .Text("Tooltip")
      .Boolean("Transparent", true)
      .Boolean("Visible", true)
      .Integer("Value", row.value)
      .Integer("MinimumValue", row.minimum)
      .Integer("MaximumValue", row.maximum)
      .Integer("LineStep", 1)
      .Boolean("AllowLiveScrolling", true)
      .Integer("PageStep", 1)
      .Integer("TickMarkStyle", 0)
      .Text("InitialParent", row.place.parent);
}

constexpr EncodedStream<kRoom> RectangleStream(const RectangleRow& row) {
  return internal::Head<kRoom>(row.place)
      .Boolean("AllowAutoDeactivate", true)
      .Double("BorderThickness", row.border_thickness)
      .Colour("BottomRightColor", row.bottom_right)
      .Boolean("Enabled", true)
      .Colour("FillColor", row.fill)
      .Text("Tooltip")
      .Colour("TopLeftColor", row.top_left)
      .Boolean("Transparent", true)
      .Boolean("Visible", true)
      .Text("InitialParent", row.place.parent);
}

constexpr EncodedStream<kRoom> CanvasStream(const CanvasRow& row) {
  return internal::Head<kRoom>(row.place)
      .Boolean("TabStop", row.tab_stop)
      .Boolean("AllowAutoDeactivate", true)
      .Boolean("Enabled", row.enabled)
      .Text("Tooltip")
      .Boolean("AllowFocusRing", false)
      .Boolean("Visible", true)
      .Boolean("AllowFocus", false)
      .Boolean("AllowTabs", false)
      .Boolean("Transparent", true)
      .Boolean("DoubleBuffer", false)
      .Boolean("Transparent", true)
      .Text("InitialParent", row.place.parent);
}

constexpr EncodedStream<kRoom> PushButtonStream(const PushButtonRow& row) {
  return internal::Head<kRoom>(row.place)
      .Boolean("TabStop", false)
      .Boolean("AllowAutoDeactivate", true)
      .Integer("MacButtonStyle", 0)
      .Boolean("Cancel", false)
      .Text("Caption", row.caption)
      .Boolean("Default", row.is_default)
      .Boolean("Enabled", true)
      .Text("Tooltip")
      .Boolean("Transparent", false)
      .Boolean("Visible", true)
      .Text("FontName", "System")
      .Single("FontSize", row.font_size)
      .Boolean("FontUnit", false)
      .Boolean("Bold", row.bold)
      .Boolean("Italic", false)
      .Boolean("Underline", false)
      .Text("InitialParent", row.place.parent);
}

constexpr EncodedStream<kRoom> TimerStream(const TimerRow& row) {
  return EncodedStream<kRoom>().Integer("RunMode", row.run_mode).Integer("Period", row.period);
}

}  // namespace vamo

#endif  // VAMO_TOOLKIT_STREAM_TABLES_H_
