#include "toolkit/object/class_info.h"

#include <algorithm>

namespace vamo {

const Property* ClassInfo::Find(std::string_view property) const {
  for (const ClassInfo* info = this; info != nullptr; info = info->base) {
    const auto found = std::find_if(info->properties.begin(), info->properties.end(),
                                    [&](const Property& p) { return p.name == property; });
    if (found != info->properties.end()) return &*found;
  }
  return nullptr;
}

}  // namespace vamo
