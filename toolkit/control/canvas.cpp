#include "toolkit/control/canvas.h"

#include <array>

#include "toolkit/control/properties.h"
#include "toolkit/object/ui_trap.h"
#include "toolkit/runtime/runtime.h"

namespace vamo {

struct Canvas::Properties {
  static constexpr std::array kRows{
      Sets<&Canvas::SetTabStop>(property::kTabStop),
      Skipped(property::kAllowFocusRing),
      Skipped(property::kAllowFocus),
      Skipped(property::kAllowTabs),
      Skipped(property::kDoubleBuffer),
  };
};

constinit const ClassInfo Picture::kClass{"Picture"};
constinit const ClassInfo Canvas::kClass{
    "Canvas", &RectControl::kClass, Properties::kRows, {}, Allocate<Canvas>};

Ref<Picture> Picture::_OpenFromApp(std::string_view file_name) {
  _UITrap();
  auto image = Runtime::Current().Display().OpenPicture(file_name);
  if (image == nullptr) return nullptr;
  return New<Picture>(std::move(image));
}

void Canvas::SetBackdrop(Ref<Picture> picture) {
  _UITrap();
  backdrop_ = std::move(picture);
  Changed();
}

}  // namespace vamo
