// Announcements to screen readers.
#ifndef VAMO_DISPLAYS_QT_SPEAKER_H_
#define VAMO_DISPLAYS_QT_SPEAKER_H_

#include <QAccessible>
#include <QString>
#include <deque>

namespace vamo {

// Has a screen reader, if one is running, speak sentences about the active window.
class Speaker {
 public:
  Speaker() = default;
  ~Speaker();
  Speaker(const Speaker&) = delete;
  Speaker& operator=(const Speaker&) = delete;

  void Say(const QString& sentence);

 private:
  // The notices of the last sentences, the oldest first. Qt owns them.
  std::deque<QAccessible::Id> notices_;
};

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_SPEAKER_H_
