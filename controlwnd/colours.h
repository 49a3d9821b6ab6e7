// The colours that the windows and the chart share.
#ifndef VAMO_CONTROLWND_COLOURS_H_
#define VAMO_CONTROLWND_COLOURS_H_

#include "toolkit/style.h"

namespace vamo {

inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kWhite{0xFF, 0xFF, 0xFF};
inline constexpr Colour kDarkRed{0x80, 0, 0};
inline constexpr Colour kDarkGrey{0x66, 0x66, 0x66};

}  // namespace vamo

#endif  // VAMO_CONTROLWND_COLOURS_H_
