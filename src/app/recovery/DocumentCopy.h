// What is kept of a changed document, and the bytes that it is kept in.
#pragma once

#include "app/documents/DocumentFiles.h"

#include <optional>
#include <QByteArray>
#include <QString>

struct DocumentCopy {
    QString path = {}; ///< the document's Caption: the full path of its file, empty for one that has none
    int caret = 0;     ///< its SelStart
    KeptText content = {};
    bool operator==(const DocumentCopy&) const = default;
};

/// A few lines that a person can read, and the text behind them as it is; a sum over all of it comes first.
QByteArray BytesOf(const DocumentCopy& copy);

/// Nothing where the bytes are no copy, or not the very ones that were written.
std::optional<DocumentCopy> CopyFromBytes(const QByteArray& bytes);
