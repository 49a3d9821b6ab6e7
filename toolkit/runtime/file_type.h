#ifndef VAMO_TOOLKIT_RUNTIME_FILE_TYPE_H_
#define VAMO_TOOLKIT_RUNTIME_FILE_TYPE_H_

#include <string>
#include <string_view>

#include "toolkit/object/class_info.h"
#include "toolkit/object/object.h"

namespace vamo {

// An entry of a file type set. It opens and saves nothing. A write to one of its texts deregisters
// it, because the text is no longer what was registered.
class FileType : public Object {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  const std::string& Name() const { return name_; }
  const std::string& Extensions() const { return extensions_; }
  const std::string& MacType() const { return mac_type_; }
  const std::string& MacCreator() const { return mac_creator_; }
  const std::string& MimeType() const { return mime_type_; }
  bool Imported() const { return imported_; }
  const std::string& ConformsTo() const { return conforms_to_; }
  const std::string& UTI() const { return uti_; }
  void SetName(std::string_view name) { Write(name_, name); }
  void SetExtensions(std::string_view extensions) { Write(extensions_, extensions); }
  void SetMacType(std::string_view mac_type) { Write(mac_type_, mac_type); }
  void SetMacCreator(std::string_view mac_creator) { Write(mac_creator_, mac_creator); }
  void SetMimeType(std::string_view mime_type) { Write(mime_type_, mime_type); }
  void SetImported(bool imported) { imported_ = imported; }
  void SetConformsTo(std::string_view conforms_to) { Write(conforms_to_, conforms_to); }

  bool Registered() const { return registered_; }
  // Registers the type with the run time, unless it is registered.
  void Register();
  void Deregister();

  // Returns the type as text, which is its name. This use registers the type.
  std::string Operator_Convert();

 private:
  void Write(std::string& field, std::string_view value);

  std::string name_;
  std::string extensions_;
  std::string mac_type_;
  std::string mac_creator_;
  std::string mime_type_;
  bool imported_ = false;
  std::string conforms_to_;
  std::string uti_;
  bool registered_ = false;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_RUNTIME_FILE_TYPE_H_
