// From the toolkit's values to Qt's and back.
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
// Half a surrogate pair, which no UTF-8 can hold, becomes U+FFFD or a question mark.
std::string ToUtf8(const QString& text);

QColor ToQColor(Colour colour);
// The font of that size in pixels, which is rounded to whole ones and at least 1.
QFont ToQFont(const Font& font, double factor);
// The text's place, centred vertically.
Qt::Alignment ToQtAlignment(TextAlignment alignment);
// The nearest number that an int can hold.
int ToInt(std::int64_t number);
// Length times factor, rounded.
int Scaled(std::int64_t length, double factor);

// A byte offset into valid UTF-8 as Qt counts, and the other way round.
int ToQtPosition(std::string_view utf8, std::size_t byte_offset);
std::size_t ToByteOffset(std::string_view utf8, int position);

}  // namespace vamo

#endif  // VAMO_DISPLAYS_QT_CONVERT_H_
