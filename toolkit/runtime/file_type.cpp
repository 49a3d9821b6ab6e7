#include "toolkit/runtime/file_type.h"

#include "toolkit/runtime/runtime.h"

namespace vamo {

constinit const ClassInfo FileType::kClass{"FileType"};

void FileType::Register() {
  if (registered_) return;
  Runtime::Current().RegisterFileType(Self(this));
  registered_ = true;
}

void FileType::Deregister() {
  if (!registered_) return;
  Runtime::Current().DeregisterFileType(*this);
  registered_ = false;
}

std::string FileType::Operator_Convert() {
  Register();
  return name_;
}

void FileType::Write(std::string& field, std::string_view value) {
  Deregister();
  field = value;
}

}  // namespace vamo
