// A loaded image, and the control that shows one.
#include "toolkit/picture.h"

#include <array>

#include "toolkit/runtime.h"

namespace vamo {

struct Canvas::Properties {
  static constexpr std::array kRows{
      ReadOver<bool>("AllowFocusRing"),
      ReadOver<bool>("AllowFocus"),
      ReadOver<bool>("AllowTabs"),
      ReadOver<bool>("DoubleBuffer"),
  };
};

constinit const ClassInfo Canvas::kClass{"Canvas", &RectControl::kClass, Properties::kRows};

Ref<Picture> Picture::_OpenFromApp(std::string_view file_name) {
  _UITrap();
  auto image = Runtime::Current().GetDisplay().OpenPicture(file_name);
  if (image == nullptr) return nullptr;
  return New<Picture>(std::move(image));
}

void Canvas::SetBackdrop(Ref<Picture> picture) {
  _UITrap();
  backdrop_ = std::move(picture);
  Changed();
}

}  // namespace vamo
