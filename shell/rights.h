// The program's rights notice, terms and citation.
#ifndef VAMO_SHELL_RIGHTS_H_
#define VAMO_SHELL_RIGHTS_H_

#include <string_view>

#include "shell/version.h"

namespace vamo {

// One line, for the About window and the version data.
inline constexpr std::string_view kRightsNotice =
    "© 2026 Halden Q. Orrin. Free for teaching and research.";

// The terms of distribution and the citation, for the Info window.
inline constexpr std::string_view kTerms =
    "Copyright © 2026 Halden Q. Orrin. Vamo is free for teaching and research. It may be used and "
    "passed on free of charge, to anyone and in any number of copies, as long as the notice stays "
    "with it unchanged. All other rights are reserved.";
inline constexpr std::string_view kCitation =
    "Please cite as: Orrin, H. Q. (2026). Vamo (Version " VAMO_SHORT_VERSION
    ") [Computer software].";

}  // namespace vamo

#endif  // VAMO_SHELL_RIGHTS_H_
