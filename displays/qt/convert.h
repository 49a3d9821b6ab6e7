// Converts the toolkit's values to Qt's and back.
#ifndef VAMO_DISPLAYS_QT_CONVERT_H_
#define VAMO_DISPLAYS_QT_CONVERT_H_

#include <QColor>
#include <QFont>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "toolkit/style.h"

namespace vamo {

QString ToQString(std::string_view utf8);
// Half a surrogate pair, which UTF-8 cannot hold, becomes U+FFFD or a question mark.
std::string ToUtf8(const QString& text);

QColor ToQColor(Colour colour);
// The font at that size in pixels, rounded to a whole number and at least 1.
QFont ToQFont(const Font& font, double factor);
// The horizontal alignment, centred vertically.
Qt::Alignment ToQtAlignment(TextAlignment alignment);
// The nearest value that an int can hold.
int ToInt(std::int64_t number);
// Length times factor, rounded.
int Scaled(std::int64_t length, double factor);

// Convert a byte offset in valid UTF-8 to Qt's position and back.
int ToQtPosition(std::string_view utf8, std::size_t byte_offset);
std::size_t ToByteOffset(std::string_view utf8, int position);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_CONVERT_H_
