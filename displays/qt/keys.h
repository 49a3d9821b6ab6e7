#ifndef VAMO_DISPLAYS_QT_KEYS_H_
#define VAMO_DISPLAYS_QT_KEYS_H_

#include <QKeyEvent>
#include <QObject>
#include <optional>

#include "toolkit/runtime/key.h"

namespace vamo {

class WindowWidget;

// The key of an event; nothing for a bare modifier.
std::optional<Key> ToKey(const QKeyEvent& event);

// The key that was pressed last, with its times in milliseconds.
struct HeldKey {
  quint32 code = 0;
  quint64 pressed_at = 0;
  std::optional<quint64> released_at;
};

// Gets the keys of all widgets of one window before the widgets do, and gives them to the toolkit.
// A key that carries a character goes no further; one that carries none and that the toolkit does
// not handle goes on to the widget.
class KeyRouter : public QObject {
 public:
  explicit KeyRouter(WindowWidget& window);

  void Watch(QObject& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool HandleKey(const QKeyEvent& event);
  // Whether the press is an automatic repeat. Qt does not always know if the focus has moved to
  // another window meanwhile.
  static bool Repeats(const QKeyEvent& press);
  static void NoteRelease(const QKeyEvent& release);

  // Shared by all windows, since there is one keyboard.
  inline static HeldKey held_;

  WindowWidget& window_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_KEYS_H_
