// Files of a test's own folder.
#pragma once

#include "support/FreshUser.h"

#include <gtest/gtest.h>
#include <QFile>

namespace PageFiles {

/// The full path of the file written.
inline QString Write(const QString& name, const QByteArray& bytes) {
    QFile file(TestFolder() + QLatin1Char('/') + name);
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    file.write(bytes);
    return file.fileName();
}

inline QByteArray Read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::ReadOnly));
    return file.readAll();
}

} // namespace PageFiles
