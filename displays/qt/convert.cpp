#include "displays/qt/convert.h"

#include <QFontDatabase>
#include <QStringDecoder>
#include <algorithm>
#include <cmath>
#include <limits>

#include "toolkit/utf8.h"

namespace vamo {

QString ToQString(std::string_view utf8) {
  // QString::fromUtf8 would drop U+FEFF at the start, and all offsets would be off by one.
  QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::ConvertInitialBom);
  return decoder.decode(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::string ToUtf8(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QColor ToQColor(Colour colour) { return {colour.red, colour.green, colour.blue}; }

QFont ToQFont(const Font& font, double factor) {
  QFont result = font.name == "System" ? QFontDatabase::systemFont(QFontDatabase::GeneralFont)
                                       : QFont(ToQString(font.name));
  result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * factor))));
  result.setBold(font.bold);
  result.setItalic(font.italic);
  result.setUnderline(font.underline);
  return result;
}

Qt::Alignment ToQtAlignment(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::kCentre:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    case TextAlignment::kRight:
      return Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter;
    case TextAlignment::kLeft:
      return Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter;
    case TextAlignment::kDefault:
      break;
  }
  return Qt::AlignLeft | Qt::AlignVCenter;
}

int ToInt(std::int64_t number) {
  return static_cast<int>(std::clamp<std::int64_t>(number, std::numeric_limits<int>::min(),
                                                   std::numeric_limits<int>::max()));
}

int Scaled(std::int64_t length, double factor) {
  constexpr double kLargest = std::numeric_limits<int>::max();
  return static_cast<int>(
      std::lround(std::clamp(static_cast<double>(length) * factor, -kLargest, kLargest)));
}

int ToQtPosition(std::string_view utf8, std::size_t byte_offset) {
  return static_cast<int>(Utf16Offset(utf8, byte_offset));
}

std::size_t ToByteOffset(std::string_view utf8, int position) {
  return ByteOffset(utf8, static_cast<std::size_t>(position));
}

}  // namespace vamo
