#pragma once
#include <QString>

#include <optional>
#include <string>

// The records keep their text as UTF-8 std::string; the screens show QString. These are the
// only two ways across.
inline QString qs(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// An absent text shows as an empty field.
inline QString qs(const std::optional<std::string>& text) {
    return text ? qs(*text) : QString();
}

inline std::string utf8(const QString& text) {
    return text.toUtf8().toStdString();
}
