#ifndef VAMO_DISPLAYS_WEB_KEYS_H_
#define VAMO_DISPLAYS_WEB_KEYS_H_

#include <optional>

#include "displays/web/page.h"
#include "toolkit/runtime/key.h"

namespace vamo {

// The key of a report, with the command and word keys of the browser's platform; nothing for a bare
// modifier.
std::optional<Key> ToKey(const PageReport& report, bool on_mac);

// Converts an ASCII letter to lower case. std::tolower would depend on the locale.
char LowerCase(char c);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_WEB_KEYS_H_
