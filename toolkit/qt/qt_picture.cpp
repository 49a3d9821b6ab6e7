// An image from the application's resources.
#include "qt_picture.h"

#include <QCoreApplication>
#include <QDir>
#include <QImageReader>
#include <array>

#include "qt_convert.h"

namespace vamo {
namespace {

// Where a build, an installation and a macOS bundle have the resources, from the program's folder.
constexpr std::array kFolders{".", "../share/vamo", "../Resources"};

bool complained = false;

void NoteComplaint(QtMsgType /*type*/, const QMessageLogContext& /*context*/,
                   const QString& /*text*/) {
  complained = true;
}

// Decoders fill up the rest of a file that has been cut off, and tell of it only by a message.
QImage Read(const QString& path) {
  complained = false;
  const QtMessageHandler usual = qInstallMessageHandler(NoteComplaint);
  QImage image = QImageReader(path).read();
  qInstallMessageHandler(usual);
  return complained ? QImage() : image;
}

}  // namespace

std::shared_ptr<QtPicture> FindPicture(std::string_view file_name) {
  const QDir program(QCoreApplication::applicationDirPath());
  for (const char* folder : kFolders) {
    const QDir resources(program.filePath(QString::fromLatin1(folder)));
    QImage image = Read(resources.filePath(ToQString(file_name)));
    if (!image.isNull()) return std::make_shared<QtPicture>(std::move(image));
  }
  return nullptr;
}

}  // namespace vamo
