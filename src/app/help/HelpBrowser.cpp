#include "app/help/HelpBrowser.h"

#include "app/help/HelpBook.h"

#include <QImage>

namespace {

// All pages lie in one folder.
const QUrl root(QStringLiteral("help:/"));
constexpr int smallest = -4;
constexpr int largest = 12;

// Around the page, and how wide a picture gets at most, in pixels: it has room in a window of the size that
// it first has.
constexpr int margin = 12;
constexpr int widestPicture = 600;

/// A picture of a whole window is wider than a page: it shows smaller, as sharp as the screen can.
QImage Fitting(const QImage& picture, qreal pixelRatio) {
    if (picture.width() <= widestPicture)
        return picture;
    QImage fitting = picture.scaledToWidth(qRound(widestPicture * pixelRatio), Qt::SmoothTransformation);
    fitting.setDevicePixelRatio(pixelRatio);
    return fitting;
}

QString NameOf(const QUrl& url) {
    return url.path().mid(1);
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
    setOpenExternalLinks(false);
    document()->setDocumentMargin(margin);
}

void HelpBrowser::ShowPage(const QString& name) {
    setSource(root.resolved(QUrl(name)), QTextDocument::HtmlResource);
}

QString HelpBrowser::Page() const {
    return NameOf(source());
}

void HelpBrowser::ZoomBy(int steps) {
    const int zoom = std::clamp(zoom_ + steps, smallest, largest);
    zoomIn(zoom - zoom_);
    zoom_ = zoom;
}

void HelpBrowser::ResetZoom() {
    ZoomBy(-zoom_);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    const auto bytes = book_ ? book_->Read(NameOf(root.resolved(name))) : std::nullopt;
    if (!bytes)
        return type == QTextDocument::HtmlResource ? QVariant(tr("<p>The help has no such page.</p>"))
                                                   : QVariant();
    if (type == QTextDocument::ImageResource)
        return Fitting(QImage::fromData(*bytes), devicePixelRatioF());
    return QString::fromUtf8(*bytes);
}
