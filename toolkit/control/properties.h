// The names and types of the properties that streams carry. The table of each class says which of
// them it has and what they set.
#ifndef VAMO_TOOLKIT_CONTROL_PROPERTIES_H_
#define VAMO_TOOLKIT_CONTROL_PROPERTIES_H_

#include <array>
#include <cstdint>
#include <string_view>

#include "toolkit/object/class_info.h"
#include "toolkit/style.h"

namespace vamo {

// Defined with the timer and the window.
enum class RunMode : std::int64_t;
enum class WindowType : std::int64_t;

namespace property {

using Boolean = PropertyName<bool>;
using Integer = PropertyName<std::int64_t>;
using Double = PropertyName<double>;
using Single = PropertyName<float>;
using ColourValue = PropertyName<Colour>;
using Text = PropertyName<std::string_view>;

inline constexpr Boolean kAllowAutoDeactivate{"AllowAutoDeactivate"};
inline constexpr Boolean kAllowFocus{"AllowFocus"};
inline constexpr Boolean kAllowFocusRing{"AllowFocusRing"};
inline constexpr Boolean kAllowLiveScrolling{"AllowLiveScrolling"};
inline constexpr Boolean kAllowSpellChecking{"AllowSpellChecking"};
inline constexpr Boolean kAllowStyledText{"AllowStyledText"};
inline constexpr Boolean kAllowTabs{"AllowTabs"};
inline constexpr Boolean kBold{"Bold"};
inline constexpr Boolean kCancel{"Cancel"};
inline constexpr Boolean kComposite{"Composite"};
inline constexpr Boolean kDefault{"Default"};
inline constexpr Boolean kDoubleBuffer{"DoubleBuffer"};
inline constexpr Boolean kEnabled{"Enabled"};
inline constexpr Boolean kFontUnit{"FontUnit"};
inline constexpr Boolean kFullScreen{"FullScreen"};
inline constexpr Boolean kHasBackgroundColor{"HasBackgroundColor"};
inline constexpr Boolean kHasBorder{"HasBorder"};
inline constexpr Boolean kHasCloseButton{"HasCloseButton"};
inline constexpr Boolean kHasFullScreenButton{"HasFullScreenButton"};
inline constexpr Boolean kHasHorizontalScrollbar{"HasHorizontalScrollbar"};
inline constexpr Boolean kHasMaximizeButton{"HasMaximizeButton"};
inline constexpr Boolean kHasMinimizeButton{"HasMinimizeButton"};
inline constexpr Boolean kHasVerticalScrollbar{"HasVerticalScrollbar"};
inline constexpr Boolean kHideSelection{"HideSelection"};
inline constexpr Boolean kItalic{"Italic"};
inline constexpr Boolean kLiveResize{"LiveResize"};
inline constexpr Boolean kLockBottom{"LockBottom"};
inline constexpr Boolean kLockLeft{"LockLeft"};
inline constexpr Boolean kLockRight{"LockRight"};
inline constexpr Boolean kLockTop{"LockTop"};
inline constexpr Boolean kMenuBarVisible{"MenuBarVisible"};
inline constexpr Boolean kMultiline{"Multiline"};
inline constexpr Boolean kPassword{"Password"};
inline constexpr Boolean kReadOnly{"ReadOnly"};
inline constexpr Boolean kResizeable{"Resizeable"};
inline constexpr Boolean kSelectable{"Selectable"};
inline constexpr Boolean kTabStop{"TabStop"};
inline constexpr Boolean kTransparent{"Transparent"};
inline constexpr Boolean kUnderline{"Underline"};
inline constexpr Boolean kVisible{"Visible"};

inline constexpr Integer kDefaultLocation{"DefaultLocation"};
inline constexpr Integer kHeight{"Height"};
inline constexpr Integer kIndex{"Index"};
inline constexpr Integer kLeft{"Left"};
inline constexpr Integer kLineStep{"LineStep"};
inline constexpr Integer kMacButtonStyle{"MacButtonStyle"};
inline constexpr Integer kMacProcID{"MacProcID"};
inline constexpr Integer kMaximumCharactersAllowed{"MaximumCharactersAllowed"};
inline constexpr Integer kMaximumHeight{"MaximumHeight"};
inline constexpr Integer kMaximumValue{"MaximumValue"};
inline constexpr Integer kMaximumWidth{"MaximumWidth"};
inline constexpr Integer kMinimumHeight{"MinimumHeight"};
inline constexpr Integer kMinimumValue{"MinimumValue"};
inline constexpr Integer kMinimumWidth{"MinimumWidth"};
inline constexpr Integer kPageStep{"PageStep"};
inline constexpr Integer kPeriod{"Period"};
inline constexpr Integer kTabIndex{"TabIndex"};
inline constexpr Integer kTabPanelIndex{"TabPanelIndex"};
inline constexpr Integer kTickMarkStyle{"TickMarkStyle"};
inline constexpr Integer kTop{"Top"};
inline constexpr Integer kWidth{"Width"};

inline constexpr Double kBorderThickness{"BorderThickness"};
inline constexpr Double kLineHeight{"LineHeight"};
inline constexpr Double kLineSpacing{"LineSpacing"};

inline constexpr Single kFontSize{"FontSize"};

inline constexpr ColourValue kBackgroundColor{"BackgroundColor"};
inline constexpr ColourValue kBottomRightColor{"BottomRightColor"};
inline constexpr ColourValue kFillColor{"FillColor"};
inline constexpr ColourValue kTextColor{"TextColor"};
inline constexpr ColourValue kTopLeftColor{"TopLeftColor"};

inline constexpr Text kCaption{"Caption"};
inline constexpr Text kDataField{"DataField"};
inline constexpr Text kDataSource{"DataSource"};
inline constexpr Text kFontName{"FontName"};
inline constexpr Text kFormat{"Format"};
inline constexpr Text kHint{"Hint"};
inline constexpr Text kInitialParent{"InitialParent"};
inline constexpr Text kName{"Name"};
inline constexpr Text kTitle{"Title"};
inline constexpr Text kTooltip{"Tooltip"};
inline constexpr Text kValidationMask{"ValidationMask"};

inline constexpr PropertyName<RunMode> kRunMode{"RunMode"};
inline constexpr PropertyName<TextAlignment> kTextAlignment{"TextAlignment"};
inline constexpr PropertyName<WindowType> kType{"Type"};
// The text of a control, and the position of a slider.
inline constexpr Text kValue{"Value"};
inline constexpr Integer kPosition{"Value"};

}  // namespace property

// The table rows of a class that keeps its font in the member `kFont`.
template <auto kFont>
constexpr std::array<Property, 6> FontRows() {
  return {Sets<kFont, &Font::name>(property::kFontName),
          Sets<kFont, &Font::size>(property::kFontSize),
          Skipped(property::kFontUnit),
          Sets<kFont, &Font::bold>(property::kBold),
          Sets<kFont, &Font::italic>(property::kItalic),
          Sets<kFont, &Font::underline>(property::kUnderline)};
}

}  // namespace vamo

#endif  // VAMO_TOOLKIT_CONTROL_PROPERTIES_H_
