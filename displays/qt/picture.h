#ifndef VAMO_DISPLAYS_QT_PICTURE_H_
#define VAMO_DISPLAYS_QT_PICTURE_H_

#include <QImage>
#include <memory>
#include <string_view>
#include <utility>

#include "toolkit/runtime/display.h"

namespace vamo {

// A decoded image.
class QtPicture : public DisplayPicture {
 public:
  explicit QtPicture(QImage image) : image_(std::move(image)) {}
  const QImage& Image() const { return image_; }

 private:
  QImage image_;
};

// Finds the image of that file name beside the program or in its installed resources. Returns null
// if there is none or if it is damaged; prints nothing.
std::shared_ptr<QtPicture> FindPicture(std::string_view file_name);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_PICTURE_H_
