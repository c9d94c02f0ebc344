#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tessarondel {

// The engine's UTF-16 texts and Qt's are the same code units.
inline QString ToQString(std::u16string_view text) { return QString::fromUtf16(text.data(), qsizetype(text.size())); }
inline std::u16string ToU16(const QString& text) { return text.toStdU16String(); }

}  // namespace tessarondel
