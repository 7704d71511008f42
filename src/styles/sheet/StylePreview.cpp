#include "styles/sheet/StylePreview.h"

#include "editor/frame/Frame.h"
#include "editor/views/WebControls.h"
#include "platform/store/ProgramFolder.h"
#include "platform/store/Settings.h"
#include "platform/store/WholeFile.h"
#include "platform/values/Twips.h"
#include "styles/sheet/PreviewPage.h"
#include "styles/sheet/PrintedLine.h"

#include <QWidget>

QWidget* StylePreview::MakeBrowser(QWidget& form) {
    WebControlsFactory* factory =
        frame_.Store().ReadFlag(Keys::UseMSIE) ? frame_.State<WebControls>().Factory() : nullptr;
    browser_ = factory ? factory->MakeBrowser(&form) : nullptr;
    if (!browser_)
        return nullptr;
    QWidget& pane = browser_->widget();
    pane.setObjectName(QStringLiteral("WebBrowser1"));
    pane.setAccessibleName(QObject::tr("Preview"));
    pane.setMinimumSize(Twips::ToPixels(6600), Twips::ToPixels(1500));
    // It is there to be looked at: a page that comes while the user is in a list must not take the keys.
    pane.setFocusPolicy(Qt::NoFocus);
    pane.show();
    return &pane;
}

void StylePreview::Show(const QString& element, const QString& rule) {
    if (!frame_.Store().ReadFlag(Keys::UseMSIE))
        return;
    const QString file = InProgramFolder(QStringLiteral("_css.htm"));
    const QString page = PreviewPage(element, rule);
    if (WholeFile::Write(file, PrintedLine(page)) && browser_)
        browser_->Navigate(file);
}
