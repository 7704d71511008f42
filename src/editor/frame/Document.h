// What the program sees of a document window.
#pragma once

#include "editor/frame/KnownFile.h"
#include "platform/values/TextEncoding.h"

#include <QString>

class DocumentModes;
class QWidget;
class RichTextBox;

/// A document has no object behind it: its window's caption, modified flag, encoding and text control are all
/// there is.
class Document {
  public:
    virtual ~Document() = default;
    /// The full path of its file; empty for a document that was never saved.
    virtual QString Caption() const = 0;
    virtual void SetCaption(const QString& path) = 0;
    /// The window's Tag, "True" or "False": whether the text changed since it was loaded or saved.
    virtual bool Modified() const = 0;
    virtual void SetModified(bool modified) = 0;
    /// How its characters stand in its file: found where the file is read (DocumentFiles), settled anew where
    /// it is written, and asked for by nothing else. Setting it lets txtInput hold the encoding's characters.
    virtual TextEncoding Encoding() const = 0;
    virtual void SetEncoding(TextEncoding encoding) = 0;
    /// What it knows of its file.
    virtual KnownFile& OnDisk() = 0;
    virtual RichTextBox& txtInput() = 0;
    /// The switch between source, design and browser view; null for a document that has none.
    virtual DocumentModes* Modes() { return nullptr; }
    /// The window itself, as the list of loaded forms holds it.
    virtual QWidget& Window() = 0;
    /// Asks about saving as closing the window does, and takes the window down unless the answer was Cancel.
    /// Returns false on Cancel. The document may be gone when it returns true.
    virtual bool Unload() = 0;
};
