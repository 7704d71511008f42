// Files of which only a part was read: an end-of-text byte (26) ends a page, and the rest must not be lost.
#pragma once

#include "app/documents/DocumentFiles.h"

#include <QString>

class Document;
class Frame;
class Settings;

/// Where a file is kept; empty where there was nothing to keep. A failure stops what was to be written.
struct KeptFile {
    WriteResult result;
    QString path;
};

/// With KeepCutPages off nothing is told and nothing kept.
namespace CutPages {

/// Tells in the status bar of a file just opened that was not read whole.
void Tell(Frame& frame, const QString& path, ReadPart part);

/// Keeps the file of a path whole in the recovery folder where the document holds only a part of it: once.
KeptFile Keep(const Settings& store, const QString& path, Document& document);

/// Tells in the status bar where it lies.
void TellKept(Frame& frame, const QString& path, const QString& keptPath);

} // namespace CutPages
