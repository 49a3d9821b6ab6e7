#include "test_window.h"

#include <stdexcept>

namespace vamo {

void Log::Fail(Ref<Slider> slider) {
  if (slider->Value() == 1) throw EndException();
  if (slider->Value() == 2) throw ThreadEndException();
  if (slider->Value() == 3) throw KeyNotFoundException("the third");
  throw std::logic_error("none of ours");
}

const ClassInfo TestWindow::kClass{"TestWindow.TestWindow", &Window::kClass, {}};

}  // namespace vamo
