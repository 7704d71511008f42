// Shows Qt's texts in test failures, with line ends and control characters written out.
#pragma once

#include <ostream>
#include <QString>

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"';
    for (const QChar c : text) {
        if (c == u'\r')
            *out << "\\r";
        else if (c == u'\n')
            *out << "\\n";
        else
            *out << QString(c).toStdString();
    }
    *out << '"';
}
QT_END_NAMESPACE
