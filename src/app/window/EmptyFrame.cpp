#include "app/window/EmptyFrame.h"

#include "app/documents/DocumentPaths.h"
#include "app/documents/FilesThere.h"
#include "app/documents/frmTemplate.h"
#include "app/documents/RecentFiles.h"
#include "app/window/EmptyFrameText.h"
#include "app/window/OpenDocuments.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Frame.h"

#include <QEvent>
#include <QMdiArea>
#include <utility>

EmptyFrame::EmptyFrame(Frame& frame, QMdiArea& area, OpenDocuments& documents)
    : QObject(&area), frame_(frame), window_(*frame.Window()), area_(area), files_(new FilesThere(this)) {
    area_.installEventFilter(this);
    area_.viewport()->installEventFilter(this);
    window_.installEventFilter(this);
    connect(&documents, &OpenDocuments::Activated, this, &EmptyFrame::Hide);
    // A document that goes leaves its path while it is still there.
    connect(&frame_.State<DocumentPaths>(), &DocumentPaths::Left, this, &EmptyFrame::Schedule);
    connect(files_, &FilesThere::Answered, this, [this](const QString& path, bool there) {
        there_[path] = there;
        ShowFiles();
    });
}

void EmptyFrame::TakeFocus() {
    if (text_ && text_->isVisible())
        text_->TakeFocus();
}

bool EmptyFrame::Holds(const QWidget& widget) const {
    return text_ && text_->isAncestorOf(&widget);
}

bool EmptyFrame::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    // Events come while the area goes, too, when it can be asked for nothing any more; no painting does.
    if (type == QEvent::Paint && !painted_ && watched == area_.viewport()) {
        painted_ = true;
        Schedule();
    }
    if (watched == &window_ && type == QEvent::WindowActivate)
        Schedule();
    if (text_ && watched == &area_ && (type == QEvent::Resize || type == QEvent::Move))
        text_->setGeometry(area_.geometry());
    return false;
}

void EmptyFrame::Schedule() {
    if (!std::exchange(scheduled_, true))
        QMetaObject::invokeMethod(this, &EmptyFrame::Update, Qt::QueuedConnection);
}

void EmptyFrame::Update() {
    scheduled_ = false;
    if (frame_.ActiveForm())
        Hide();
    else if (painted_)
        Show();
}

void EmptyFrame::Show() {
    if (!text_) {
        text_ = new EmptyFrameText(area_, [this](const QString& name) { frame_.Commands().Run(name); });
        connect(text_, &EmptyFrameText::FileClicked, this, &EmptyFrame::Open);
        text_->setGeometry(area_.geometry());
    }
    text_->show();
    LookUpFiles();
    ShowFiles();
}

void EmptyFrame::Hide() {
    if (text_)
        text_->hide();
}

QStringList EmptyFrame::RecentPaths() const {
    QStringList paths;
    for (int n = 0; n < RecentFiles::Count; ++n)
        if (const QString path = RecentFiles::Caption(frame_, n); !path.isEmpty())
            paths << path;
    return paths;
}

void EmptyFrame::LookUpFiles() {
    for (const QString& path : RecentPaths())
        files_->Ask(path);
}

void EmptyFrame::ShowFiles() {
    if (!text_ || text_->isHidden())
        return;
    QStringList there;
    for (const QString& path : RecentPaths())
        if (there_.value(path))
            there << path;
    text_->SetFiles(there);
}

void EmptyFrame::Open(const QString& path) {
    for (int n = 0; n < RecentFiles::Count; ++n)
        if (RecentFiles::Caption(frame_, n) == path)
            return frame_.Commands().Run(QStringLiteral("mnuFileArray_%1").arg(n));
}
