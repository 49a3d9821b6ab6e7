// The program's file type set.
#ifndef VAMO_SHELL_FILE_TYPES_H_
#define VAMO_SHELL_FILE_TYPES_H_

#include <vector>

#include "toolkit/object/object.h"
#include "toolkit/runtime/file_type.h"

// The set is registered at start-up; nothing in the program opens or saves a file of these types.
namespace vamo::FileTypes {

// The module-level fields: nil and empty before _Initialize.
struct Fields {
  std::vector<Ref<FileType>> pAllFileTypes;
  Ref<FileType> pText;
  Ref<FileType> pUntitledType;
};

// Creates the two types and registers them, Text first. Called once.
void _Initialize();

Ref<FileType> Text();
Ref<FileType> UntitledType();

// All types in the set.
const std::vector<Ref<FileType>>& AllFileTypes();

}  // namespace vamo::FileTypes

#endif  // VAMO_SHELL_FILE_TYPES_H_
