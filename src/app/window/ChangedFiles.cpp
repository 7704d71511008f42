#include "app/window/ChangedFiles.h"

#include "app/documents/frmTemplate.h"
#include "app/window/OpenDocuments.h"
#include "app/window/StatusPanels.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/values/Path.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

struct ChangedFiles::File {
    QPointer<frmTemplate> document;
    QString path;
    FileMark known;
    FileMark looked = known; ///< the same after the look
    FileStatus status = {};
    FileMark::Now found = FileMark::Now::Same;

    void Look() {
        status = FileStatus::Of(path);
        found = looked.Compare(path);
    }
    /// It may have been closed, or saved, meanwhile.
    bool IsStillThat() const {
        return document && document->IsOpen() && document->Caption() == path &&
               document->OnDisk().mark == known;
    }
    /// Whether the user is to be told. The document then knows that he was.
    bool IsNews() const {
        KnownFile& file = document->OnDisk();
        if (found == FileMark::Now::Same) {
            file.mark = looked;
            return false;
        }
        return std::exchange(file.told, status) != status;
    }
};

namespace {

QString Sentence(const QString& words, const QStringList& names) {
    return names.isEmpty() ? QString() : words + names.join(u", "_s);
}

} // namespace

ChangedFiles::ChangedFiles(Frame& frame, const OpenDocuments& documents, StatusBar& bar)
    : QObject(frame.Window()), frame_(frame), documents_(documents), bar_(bar) {
    frame_.Window()->installEventFilter(this);
    // The program may come back by one of its dialogs.
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            Look();
    });
}

QList<ChangedFiles::File> ChangedFiles::FilesToLookAt() const {
    QList<File> files;
    if (frame_.Store().ReadFlag(Keys::TellChangedFiles))
        for (frmTemplate* document : documents_.All())
            if (!document->Caption().isEmpty())
                files << File{
                    .document = document, .path = document->Caption(), .known = document->OnDisk().mark};
    return files;
}

void ChangedFiles::Look() {
    again_ = work_.Busy();
    if (again_)
        return;
    const auto files = std::make_shared<QList<File>>(FilesToLookAt());
    if (files->isEmpty())
        return;
    const auto look = [files] {
        for (File& file : *files)
            file.Look();
    };
    work_.Run(look, [this, files] {
        Tell(*files);
        if (again_)
            Look();
    });
}

void ChangedFiles::Tell(const QList<File>& files) {
    QStringList changed, gone;
    for (const File& file : files)
        if (file.IsStillThat() && file.IsNews())
            (file.found == FileMark::Now::Gone ? gone : changed) << Path::FileName(file.path);
    QStringList sentences{Sentence(u"Changed on disk: "_s, changed),
                          Sentence(u"No longer on disk: "_s, gone)};
    sentences.removeAll(QString());
    if (!sentences.isEmpty())
        bar_.ShowNotice(sentences.join(u"; "_s), StandingNotice::Ends::SparesAClick);
}

bool ChangedFiles::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        Look();
    return QObject::eventFilter(watched, event);
}
