// The file type set of the program.
#ifndef VAMO_SHELL_FILE_TYPES_H_
#define VAMO_SHELL_FILE_TYPES_H_

#include <vector>

#include "toolkit/object/object.h"
#include "toolkit/runtime/file_type.h"

// The set is registered at start-up; nothing in the program opens or saves a file of these types.
namespace vamo::FileTypes {

// The module-level fields, nil and empty before the set is made.
struct Fields {
  std::vector<Ref<FileType>> pAllFileTypes;
  Ref<FileType> pText;
  Ref<FileType> pUntitledType;
};

// Makes the two types and registers them, in the order of their names here. Called once.
void _Initialize();

Ref<FileType> Text();
Ref<FileType> UntitledType();

// All types of the set.
const std::vector<Ref<FileType>>& AllFileTypes();

}  // namespace vamo::FileTypes

#endif  // VAMO_SHELL_FILE_TYPES_H_
