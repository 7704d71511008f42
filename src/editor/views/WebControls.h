// The two controls that show a page as a browser does, and where they come from.
#pragma once

#include "platform/store/WriteResult.h"
#include "platform/values/TextEncoding.h"

#include <functional>
#include <optional>
#include <QByteArray>
#include <QString>
#include <QtPlugin>

class QWidget;

/// Edits a page as it looks. It holds one page at a time, read from a file.
class DesignControl {
  public:
    virtual ~DesignControl() = default;
    virtual QWidget& widget() = 0;
    /// The encoding of the document whose page Load takes in next.
    virtual void TakeEncoding(TextEncoding) {}
    /// Begins to load a page; returns before it is shown. A file that can't be read leaves the view empty.
    virtual void Load(const QString& path) = 0;
    /// The path of the page that Load took in; empty for none.
    virtual QString LoadedPath() const = 0;
    /// Writes the page to a file. One that nobody changed stands in its file as it was and is not written
    /// there again. Where nothing came of it the file stands unharmed.
    virtual WriteResult Save(const QString& path) = 0;
    /// What the last Save had and could not bring to the file; nothing where it did, or could not even get
    /// hold of the page.
    virtual std::optional<QByteArray> Unsaved() const { return std::nullopt; }
};

/// Shows a page and follows its links.
class BrowserControl {
  public:
    virtual ~BrowserControl() = default;
    virtual QWidget& widget() = 0;
    /// The encoding of the document whose page Navigate shows next: that of a page that names none.
    virtual void TakeEncoding(TextEncoding) {}
    /// Begins to show the page of a file. Returns false without a path and for a file that can't be read.
    virtual bool Navigate(const QString& path) = 0;
};

/// Makes the controls. Each is hidden at first and is its widget's own: it goes with it, and the widget with
/// its parent.
class WebControlsFactory {
  public:
    virtual ~WebControlsFactory() = default;
    /// Null where the control can't be made.
    virtual DesignControl* MakeDesign(QWidget* parent) = 0;
    virtual BrowserControl* MakeBrowser(QWidget* parent) = 0;
};

Q_DECLARE_INTERFACE(WebControlsFactory, "tarnwick.WebControlsFactory/3")

/// Where a page goes that was changed in the design view and could not be saved: nobody else has it.
struct UnsavedDesign {
    /// Gets the path of its file, and the bytes that this was to hold. Left empty, they are lost.
    std::function<void(const QString& path, const QByteArray& bytes)> Keep;
};

/// The frame's road to the controls: they cost memory and start-up time, so they come with the first document
/// that asks for them.
struct WebControls {
    /// Gives the factory, or null where there is none; left empty, there are no controls.
    std::function<WebControlsFactory*()> Load;

    WebControlsFactory* Factory() const { return Load ? Load() : nullptr; }
};
