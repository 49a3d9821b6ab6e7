#include "toolkit/object/object.h"

#include "toolkit/object/class_info.h"

namespace vamo {

std::string ClassName(const Object& object) {
  const ClassInfo* info = object.Class();
  return std::string(info == nullptr ? "Object" : info->name);
}

}  // namespace vamo
