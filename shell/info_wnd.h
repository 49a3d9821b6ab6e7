#ifndef VAMO_SHELL_INFO_WND_H_
#define VAMO_SHELL_INFO_WND_H_

#include <span>
#include <string_view>

#include "controlwnd/accessors.h"
#include "controlwnd/menu_accessors.h"
#include "toolkit/text/text_area.h"
#include "toolkit/window/window.h"

namespace vamo {

// The window with a fixed text: purpose, terms, citation and disclaimer. It has no logic of its
// own.
class InfoWnd : public Window {
 public:
  static const ClassInfo kClass;
  const ClassInfo* Class() const override { return &kClass; }
  bool IsEventImplemented(std::string_view event) const;

  void Layout() override;
  void CreateControls() override;
  virtual void _CreateControls0();
  virtual Ref<TextArea> StaticText1();
  VAMO_MENU_ACCESSORS
  std::span<const AccessibleText> AccessibleTexts() const override;
  void Event_EnableMenuItems() override;
};

}  // namespace vamo

#endif  // VAMO_SHELL_INFO_WND_H_
