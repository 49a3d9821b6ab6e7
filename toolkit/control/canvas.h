#ifndef VAMO_TOOLKIT_CONTROL_CANVAS_H_
#define VAMO_TOOLKIT_CONTROL_CANVAS_H_

#include <memory>
#include <string_view>
#include <utility>

#include "toolkit/control/control.h"
#include "toolkit/runtime/display.h"

namespace vamo {

// An image that the display has decoded. The program cannot draw into it.
class Picture : public Object {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  explicit Picture(std::shared_ptr<DisplayPicture> image) : image_(std::move(image)) {}

  // Opens the image of that file name in the application's resources; nil if there is none or it
  // cannot be decoded.
  static Ref<Picture> _OpenFromApp(std::string_view file_name);

  const std::shared_ptr<DisplayPicture>& Image() const { return Trapped(image_); }

 private:
  std::shared_ptr<DisplayPicture> image_;
};

// An area with a picture as its background. It takes no input.
class Canvas : public RectControl {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }

  // Nil shows nothing.
  const Ref<Picture>& Backdrop() const { return Trapped(backdrop_); }
  void SetBackdrop(Ref<Picture> picture);

 protected:
  AnyControl AsAny() override { return this; }

 private:
  struct Properties;

  Ref<Picture> backdrop_;
};

}  // namespace vamo

#endif  // VAMO_TOOLKIT_CONTROL_CANVAS_H_
