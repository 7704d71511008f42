// What takes printed pages: the desktop's printer, or a PDF file.
#pragma once

#include <memory>
#include <QPointF>
#include <QSizeF>
#include <QString>

class QPainter;

/// Lengths are twips. A job is Start, NewPage for each further page, End; Close follows the last job.
class PrintDevice {
  public:
    virtual ~PrintDevice() = default;

    /// The whole sheet of paper.
    virtual QSizeF Paper() const = 0;
    /// What can't be printed on at the paper's left and top: the painter's origin lies there.
    virtual QPointF Offset() const = 0;
    virtual double PixelsPerTwip() const = 0;
    /// Draws on the page of the job that is under way.
    virtual QPainter& Painter() = 0;

    // Each is false where the device failed.
    virtual bool Start() = 0;
    virtual bool NewPage() = 0;
    virtual bool End() = 0;
    virtual bool Close() = 0;
    /// Nothing more of this job comes out, as far as that can be helped.
    virtual void Abort() = 0;
};

/// The printer that the desktop prints on by default; null where it has none.
std::unique_ptr<PrintDevice> DefaultPrinter();

/// A PDF file, with the pages of all jobs one behind the other. It is written whole when the device is
/// closed; until then, and where anything fails, what was there stays.
std::unique_ptr<PrintDevice> PdfPrinter(const QString& path);
