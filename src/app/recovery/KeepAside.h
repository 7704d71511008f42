// A whole file kept aside, before something is written over it.
#pragma once

#include <optional>
#include <QByteArrayView>
#include <QString>

/// Keeps the bytes of a file in the recovery folder, for nobody but the user to read (mode 0600), under the
/// first free name "kept-1-index.htm", "kept-2-index.htm" and so on. Nothing offers it at a start and nothing
/// takes it away. Returns where it lies; nothing where it could not be brought to the disk.
std::optional<QString> KeepAside(const QString& path, QByteArrayView bytes);
