#include "app/help/HelpCommands.h"

#include "app/help/frmHelp.h"
#include "app/help/HelpBook.h"
#include "app/help/HelpTopic.h"
#include "app/run/frmSplash.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

/// The help key goes by no menu and no shortcut: both are shut while a modal dialog is up.
class HelpKey final : public QObject {
  public:
    HelpKey(QWidget& window, Frame& frame) : QObject(&window), frame_(frame) {
        qApp->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
            return false;
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier)
            return false;
        const auto* at = static_cast<const QWidget*>(watched);
        // A menu would stand above the help, and takes all keys for as long as it is open.
        while (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        ShowHelp(frame_, at);
        return true;
    }

  private:
    Frame& frame_;
};

void Raise(frmHelp& window, const QString& page) {
    window.ShowPage(page);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

void FillHelpCommands(Frame& frame) {
    frame.Commands().Set(QStringLiteral("mnuMainHelp"), [&frame] { ShowHelp(frame); });
}

void BindHelpKey(QWidget& window, Frame& frame) {
    new HelpKey(window, frame);
}

void ShowHelp(Frame& frame, const QWidget* about) {
    const auto book = std::make_shared<HelpBook>(FindHelpFile(HelpFolders()));
    if (!book->IsOpen())
        return frame.SetStatusPanel(QStringLiteral("The help file tarnwick.chm is not installed."));
    const QString page = HelpTopicOf(frame, about, *book);
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal)
        return Raise(frame.LoadedForms().Load<frmHelp>(frame, book), page);
    auto* window = modal->findChild<frmHelp*>(QString(), Qt::FindDirectChildrenOnly);
    Raise(window ? *window : *new frmHelp(frame, book, modal), page);
}

void mnuAbout_Click(Frame& frame) {
    frame.LoadedForms().Show<frmSplash>(frame).SetMessage(
        QStringLiteral("See help file for Copyright,\nLicense and Warranty information."));
}
