// Writes property streams from rows.
#ifndef VAMO_CONTROLWND_STREAMS_H_
#define VAMO_CONTROLWND_STREAMS_H_

#include <cstddef>
#include <cstdint>

#include "controlwnd/stream_rows.h"
#include "toolkit/control/properties.h"
#include "toolkit/object/property_stream.h"

namespace vamo {

// kCapacity is enough for the entries of every object except the Info text, which takes exactly
// kLongCapacity.
inline constexpr std::size_t kCapacity = 640;
inline constexpr std::size_t kLongCapacity = 1592;

namespace internal {

// Marks a control that is in no control set.
inline constexpr std::int64_t kNoIndex = INT32_MIN;

template <std::size_t kSize>
constexpr EncodedStream<kSize> Head(const PlaceRow& row) {
  return EncodedStream<kSize>()
      .Set(property::kName, row.name)
      .Set(property::kIndex, kNoIndex)
      .Set(property::kLeft, row.left)
      .Set(property::kTop, row.top)
      .Set(property::kWidth, row.width)
      .Set(property::kHeight, row.height)
      .Set(property::kLockLeft, row.locks.left)
      .Set(property::kLockTop, row.locks.top)
      .Set(property::kLockRight, row.locks.right)
      .Set(property::kLockBottom, row.locks.bottom)
      .Set(property::kTabIndex, row.tab_index)
      .Set(property::kTabPanelIndex, 0);
}

}  // namespace internal

// Each function writes a row as a stream, in the order of the entries. The constants are the same
// for all objects of the class in this program.

constexpr EncodedStream<kCapacity> WindowStream(const WindowRow& row) {
  return EncodedStream<kCapacity>()
      .Set(property::kWidth, row.width)
      .Set(property::kHeight, row.height)
      .Set(property::kMinimumWidth, 64)
      .Set(property::kMinimumHeight, 64)
      .Set(property::kMaximumWidth, row.maximum_width)
      .Set(property::kMaximumHeight, row.maximum_height)
      .Set(property::kType, row.type)
      .Set(property::kTitle, row.title)
      .Set(property::kHasCloseButton, true)
      .Set(property::kHasMaximizeButton, row.has_maximize_button)
      .Set(property::kHasMinimizeButton, true)
      .Set(property::kHasFullScreenButton, false)
      .Set(property::kResizeable, row.resizeable)
      .Set(property::kComposite, row.composite)
      .Set(property::kMacProcID, 0)
      .Set(property::kFullScreen, false)
      .Set(property::kDefaultLocation, 0)
      .Set(property::kVisible, true)
      .Set(property::kHasBackgroundColor, row.has_background_colour)
      .Set(property::kBackgroundColor, kWhite)
      .Set(property::kMenuBarVisible, true)
      .Set(property::kLiveResize, false);
}

constexpr EncodedStream<kCapacity> LabelStream(const LabelRow& row) {
  return internal::Head<kCapacity>(row.place)
      .Set(property::kTabStop, row.tab_stop)
      .Set(property::kAllowAutoDeactivate, true)
      .Set(property::kEnabled, true)
      .Set(property::kTooltip, "")
      .Set(property::kMultiline, false)
      .Set(property::kSelectable, false)
      .Set(property::kTextAlignment, row.alignment)
      .Set(property::kTextColor, row.colour)
      .Set(property::kTransparent, true)
      .Set(property::kValue, row.value)
      .Set(property::kVisible, row.visible)
      .Set(property::kBold, row.bold)
      .Set(property::kItalic, false)
      .Set(property::kFontName, "System")
      .Set(property::kUnderline, false)
      .Set(property::kFontSize, row.font_size)
      .Set(property::kFontUnit, false)
      .Set(property::kDataSource, "")
      .Set(property::kDataField, "")
      .Set(property::kInitialParent, row.place.parent);
}

constexpr EncodedStream<kCapacity> TextFieldStream(const TextFieldRow& row) {
  return internal::Head<kCapacity>(row.place)
      .Set(property::kTabStop, true)
      .Set(property::kAllowAutoDeactivate, true)
      .Set(property::kBackgroundColor, kWhite)
      .Set(property::kHasBorder, true)
      .Set(property::kEnabled, row.enabled)
      .Set(property::kFormat, "")
      .Set(property::kTooltip, "")
      .Set(property::kPassword, false)
      .Set(property::kTextColor, kBlack)
      .Set(property::kTransparent, true)
      .Set(property::kAllowFocusRing, true)
      .Set(property::kVisible, true)
      .Set(property::kFontName, "System")
      .Set(property::kFontSize, 12.0F)
      .Set(property::kFontUnit, false)
      .Set(property::kBold, false)
      .Set(property::kItalic, false)
      .Set(property::kUnderline, false)
      .Set(property::kHint, "")
      .Set(property::kValue, "")
      .Set(property::kAllowTabs, false)
      .Set(property::kTextAlignment, row.alignment)
      .Set(property::kAllowSpellChecking, row.spell_checking)
      .Set(property::kMaximumCharactersAllowed, row.maximum_characters)
      .Set(property::kValidationMask, row.validation_mask)
      .Set(property::kReadOnly, row.read_only)
      .Set(property::kDataSource, "")
      .Set(property::kDataField, "")
      .Set(property::kInitialParent, row.place.parent);
}

constexpr EncodedStream<kLongCapacity> TextAreaStream(const TextAreaRow& row) {
  return internal::Head<kLongCapacity>(row.place)
      .Set(property::kTabStop, false)
      .Set(property::kAllowAutoDeactivate, true)
      .Set(property::kBackgroundColor, kWhite)
      .Set(property::kHasBorder, true)
      .Set(property::kEnabled, true)
      .Set(property::kFormat, "")
      .Set(property::kTooltip, "")
      .Set(property::kHideSelection, true)
      .Set(property::kLineHeight, 0.0)
      .Set(property::kLineSpacing, 1.0)
      .Set(property::kMultiline, true)
      .Set(property::kHasHorizontalScrollbar, false)
      .Set(property::kHasVerticalScrollbar, false)
      .Set(property::kAllowStyledText, true)
      .Set(property::kTextColor, kBlack)
      .Set(property::kTransparent, true)
      .Set(property::kAllowFocusRing, false)
      .Set(property::kVisible, true)
      .Set(property::kBold, false)
      .Set(property::kItalic, false)
      .Set(property::kFontName, "System")
      .Set(property::kFontSize, 12.0F)
      .Set(property::kFontUnit, false)
      .Set(property::kUnderline, false)
      .Set(property::kValue, row.value)
      .Set(property::kAllowTabs, false)
      .Set(property::kTextAlignment, TextAlignment::kDefault)
      .Set(property::kAllowSpellChecking, false)
      .Set(property::kMaximumCharactersAllowed, 0)
      .Set(property::kValidationMask, "")
      .Set(property::kReadOnly, true)
      .Set(property::kDataSource, "")
      .Set(property::kDataField, "")
      .Set(property::kInitialParent, row.place.parent);
}

constexpr EncodedStream<kCapacity> SliderStream(const SliderRow& row) {
  return internal::Head<kCapacity>(row.place)
      .Set(property::kTabStop, true)
      .Set(property::kAllowAutoDeactivate, true)
      .Set(property::kEnabled, true)
      .Set(property::kTooltip, "")
      .Set(property::kTransparent, true)
      .Set(property::kVisible, true)
      .Set(property::kPosition, row.value)
      .Set(property::kMinimumValue, row.minimum)
      .Set(property::kMaximumValue, row.maximum)
      .Set(property::kLineStep, 1)
      .Set(property::kAllowLiveScrolling, true)
      .Set(property::kPageStep, 1)
      .Set(property::kTickMarkStyle, 0)
      .Set(property::kInitialParent, row.place.parent);
}

constexpr EncodedStream<kCapacity> RectangleStream(const RectangleRow& row) {
  return internal::Head<kCapacity>(row.place)
      .Set(property::kAllowAutoDeactivate, true)
      .Set(property::kBorderThickness, row.border_thickness)
      .Set(property::kBottomRightColor, row.bottom_right)
      .Set(property::kEnabled, true)
      .Set(property::kFillColor, row.fill)
      .Set(property::kTooltip, "")
      .Set(property::kTopLeftColor, row.top_left)
      .Set(property::kTransparent, true)
      .Set(property::kVisible, true)
      .Set(property::kInitialParent, row.place.parent);
}

constexpr EncodedStream<kCapacity> CanvasStream(const CanvasRow& row) {
  return internal::Head<kCapacity>(row.place)
      .Set(property::kTabStop, row.tab_stop)
      .Set(property::kAllowAutoDeactivate, true)
      .Set(property::kEnabled, row.enabled)
      .Set(property::kTooltip, "")
      .Set(property::kAllowFocusRing, false)
      .Set(property::kVisible, true)
      .Set(property::kAllowFocus, false)
      .Set(property::kAllowTabs, false)
      .Set(property::kTransparent, true)
      .Set(property::kDoubleBuffer, false)
      .Set(property::kTransparent, true)  // This stream has the entry twice.
      .Set(property::kInitialParent, row.place.parent);
}

constexpr EncodedStream<kCapacity> PushButtonStream(const PushButtonRow& row) {
  return internal::Head<kCapacity>(row.place)
      .Set(property::kTabStop, false)
      .Set(property::kAllowAutoDeactivate, true)
      .Set(property::kMacButtonStyle, 0)
      .Set(property::kCancel, false)
      .Set(property::kCaption, row.caption)
      .Set(property::kDefault, row.is_default)
      .Set(property::kEnabled, true)
      .Set(property::kTooltip, "")
      .Set(property::kTransparent, false)
      .Set(property::kVisible, true)
      .Set(property::kFontName, "System")
      .Set(property::kFontSize, row.font_size)
      .Set(property::kFontUnit, false)
      .Set(property::kBold, row.bold)
      .Set(property::kItalic, false)
      .Set(property::kUnderline, false)
      .Set(property::kInitialParent, row.place.parent);
}

constexpr EncodedStream<kCapacity> TimerStream(const TimerRow& row) {
  return EncodedStream<kCapacity>()
      .Set(property::kRunMode, row.run_mode)
      .Set(property::kPeriod, row.period);
}

}  // namespace vamo

#endif  // VAMO_CONTROLWND_STREAMS_H_
