#include "displays/qt/picture.h"

#include <QCoreApplication>
#include <QDir>
#include <QImageReader>
#include <array>

#include "displays/qt/convert.h"

namespace vamo {
namespace {

// The resource folders of a build, an installation and a macOS bundle, relative to the program's
// folder.
constexpr std::array kFolders{".", VAMO_RESOURCES_FROM_PROGRAM, "../Resources"};

bool complained = false;
QtMessageHandler usual_handler = nullptr;

// Notes the decoders' warnings without printing them; passes all other messages on.
void NoteComplaint(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  constexpr std::string_view kDecoders = "qt.gui.imageio";
  const std::string_view category = context.category == nullptr ? "" : context.category;
  if (type == QtWarningMsg && category.starts_with(kDecoders)) {
    complained = true;
  } else {
    usual_handler(type, context, text);
  }
}

// Decoders pad a truncated file and report it only by a message.
QImage Read(const QString& path) {
  complained = false;
  usual_handler = qInstallMessageHandler(NoteComplaint);
  QImage image = QImageReader(path).read();
  qInstallMessageHandler(usual_handler);
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
