#include "shell/file_types.h"

#include <string_view>

#include "toolkit/runtime/runtime.h"

namespace vamo::FileTypes {

namespace {

Fields& ModuleFields() { return Runtime::Current().ModuleFields<Fields>(); }

void WriteProperties(FileType& type, std::string_view name, std::string_view mac_type,
                     std::string_view mac_creator) {
  type.SetName(name);
  type.SetExtensions("");
  type.SetMacType(mac_type);
  type.SetMacCreator(mac_creator);
  type.SetMimeType("");
  type.SetImported(true);
  type.SetConformsTo("");
}

// Converting a type to text registers it; the text itself is not needed.
void Enter(const Ref<FileType>& type) {
  ModuleFields().pAllFileTypes.push_back(type);
  static_cast<void>(type->Operator_Convert());
}

}  // namespace

void _Initialize() {
  ModuleFields().pText = New<FileType>();
  WriteProperties(*Text(), "text", "TEXT", "R*ch");
  Enter(Text());
  ModuleFields().pUntitledType = New<FileType>();
  WriteProperties(*UntitledType(), "", "", "");
  Enter(UntitledType());
}

Ref<FileType> Text() { return ModuleFields().pText; }

Ref<FileType> UntitledType() { return ModuleFields().pUntitledType; }

const std::vector<Ref<FileType>>& AllFileTypes() { return ModuleFields().pAllFileTypes; }

}  // namespace vamo::FileTypes
