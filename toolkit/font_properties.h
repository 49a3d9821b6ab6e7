// The properties that set a control's font, for each class of control that has one.
#ifndef VAMO_TOOLKIT_FONT_PROPERTIES_H_
#define VAMO_TOOLKIT_FONT_PROPERTIES_H_

#include <array>

#include "toolkit/class_info.h"
#include "toolkit/control.h"

namespace vamo {

// The table for a class whose font is the member `kFont`.
template <auto kFont>
inline constexpr std::array kFontProperties{
    Declare<kFont, &Font::name>("FontName"),
    Declare<kFont, &Font::size>("FontSize"),
    ReadOver<bool>("FontUnit"),
    Declare<kFont, &Font::bold>("Bold"),
    Declare<kFont, &Font::italic>("Italic"),
    Declare<kFont, &Font::underline>("Underline"),
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_FONT_PROPERTIES_H_
