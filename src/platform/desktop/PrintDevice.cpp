#include "platform/desktop/PrintDevice.h"

#include "platform/store/WholeFile.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>

namespace {

constexpr double twipsPerPoint = 20;
constexpr double twipsPerInch = 1440;

/// Each copy is a job of its own.
class Printer : public PrintDevice {
  public:
    explicit Printer(const QPrinterInfo& info = {}) : printer_(info, QPrinter::HighResolution) {
        // The caller keeps the margins: here they are what the device itself leaves free.
        QPageLayout layout = printer_.pageLayout();
        layout.setUnits(QPageLayout::Point);
        layout.setMargins(layout.minimumMargins());
        printer_.setPageLayout(layout);
    }

    QSizeF Paper() const override {
        return printer_.pageLayout().fullRect(QPageLayout::Point).size() * twipsPerPoint;
    }
    QPointF Offset() const override {
        const QMarginsF free = printer_.pageLayout().margins(QPageLayout::Point);
        return QPointF(free.left(), free.top()) * twipsPerPoint;
    }
    double PixelsPerTwip() const override { return printer_.resolution() / twipsPerInch; }
    QPainter& Painter() override { return painter_; }

    bool Start() override { return painter_.begin(&printer_) && Works(); }
    bool NewPage() override { return printer_.newPage() && Works(); }
    bool End() override { return painter_.end() && Works(); }
    bool Close() override { return true; }
    void Abort() override {
        printer_.abort();
        Leave();
    }

  protected:
    /// Leaves the page as it is, if there is one.
    void Leave() {
        if (painter_.isActive())
            painter_.end();
    }
    bool Works() const {
        const QPrinter::PrinterState state = printer_.printerState();
        return state != QPrinter::Error && state != QPrinter::Aborted;
    }

    QPrinter printer_;
    QPainter painter_;
};

class PdfFile final : public Printer {
  public:
    explicit PdfFile(QString path) : path_(std::move(path)) {
        printer_.setOutputFormat(QPrinter::PdfFormat);
        printer_.setOutputFileName(Draft());
    }
    ~PdfFile() override { Leave(); }

    bool Start() override { return painter_.isActive() ? NewPage() : Printer::Start(); }
    bool End() override { return Works(); }
    bool Close() override {
        if (!painter_.end() || !Works())
            return false;
        // A disk that is full is told by nothing but a draft without its end.
        const std::optional<QByteArray> pdf = WholeFile::Read(Draft());
        return pdf && pdf->trimmed().endsWith("%%EOF") && WholeFile::Write(path_, *pdf);
    }

  private:
    QString Draft() const { return folder_.filePath(QStringLiteral("print.pdf")); }

    QTemporaryDir folder_;
    QString path_;
};

} // namespace

std::unique_ptr<PrintDevice> DefaultPrinter() {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    return info.isNull() ? nullptr : std::make_unique<Printer>(info);
}

std::unique_ptr<PrintDevice> PdfPrinter(const QString& path) {
    return std::make_unique<PdfFile>(path);
}
