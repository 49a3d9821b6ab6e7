#include "displays/qt/speaker.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <utility>

namespace vamo {

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)

void Speaker::Say(const QString& sentence) {
  QWidget* window = QApplication::activeWindow();
  if (window == nullptr || !QAccessible::isActive()) return;
  QAccessibleAnnouncementEvent event(window, sentence);
  QAccessible::updateAccessibility(&event);
}

Speaker::~Speaker() = default;

#else

namespace {

// A notice in a window, for assistive technology only. There is no widget behind it.
class Notice : public QAccessibleInterface {
 public:
  Notice(QWidget& window, QString sentence) : window_(&window), sentence_(std::move(sentence)) {}

  bool isValid() const override { return window_ != nullptr; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(window_);
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QString text(QAccessible::Text which) const override {
    return which == QAccessible::Name ? sentence_ : QString();
  }
  void setText(QAccessible::Text /*which*/, const QString& /*text*/) override {}
  QRect rect() const override { return {}; }
  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override { return {}; }

 private:
  const QPointer<QWidget> window_;
  const QString sentence_;
};

}  // namespace

// A screen reader speaks a notice that appears. It may be slow to ask for the text, and may keep
// the text of a notice that it knows. So each sentence has its own notice, which stays for a while.
void Speaker::Say(const QString& sentence) {
  QWidget* window = QApplication::activeWindow();
  if (window == nullptr || !QAccessible::isActive()) return;
  constexpr std::size_t kKept = 4;
  auto* notice = new Notice(*window, sentence);
  notices_.push_back(QAccessible::registerAccessibleInterface(notice));
  QAccessibleEvent event(notice, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&event);
  if (notices_.size() <= kKept) return;
  QAccessible::deleteAccessibleInterface(notices_.front());
  notices_.pop_front();
}

Speaker::~Speaker() {
  for (const QAccessible::Id notice : notices_) QAccessible::deleteAccessibleInterface(notice);
}

#endif

}  // namespace vamo
