#include "app/documents/Preview.h"

#include "app/run/ProgramState.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/StartProgram.h"

void FillPreviewCommands(Frame& frame) {
    frame.Commands().Set(QStringLiteral("mnuReload"), [&frame] { PreviewInBrowser(frame); });
}

void PreviewInBrowser(Frame& frame, const QString& path) {
    frame.SaveActiveDocument();
    QString target = path;
    if (target.isEmpty()) {
        const Document* document = frame.ActiveForm();
        if (!document)
            return;
        target = document->Caption();
    }
    const QString& browser = frame.State<ProgramState>().WebPath;
    // Of a command line without a browser the page itself would be the first word, and be started.
    if (browser.trimmed().isEmpty())
        return;
    QStringList words = BrowserCommandLine(browser, target);
    const QString program = words.takeFirst();
    StartProgram(program, words);
}

QStringList BrowserCommandLine(const QString& browser, const QString& target) {
    QStringList words = browser.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QStringList pages = target.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& page : pages)
        words << (page.startsWith(QLatin1Char('-')) ? QLatin1String("./") + page : page);
    return words;
}
