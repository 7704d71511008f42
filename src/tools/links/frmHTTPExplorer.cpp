#include "tools/links/frmHTTPExplorer.h"

#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/text/RichTextBox.h"
#include "tools/links/LinkNames.h"
#include "tools/links/LinkTree.h"
#include "ui_frmHTTPExplorer.h"

#include <QApplication>
#include <QHeaderView>
#include <QShortcut>
#include <utility>

namespace {

/// The hourglass, for as long as it lives.
class WaitCursor {
  public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

/// 91: there is no object to read from, as programs of this kind have always numbered it.
const char* const noDocument =
    "An error occurred - #91\r\r"
    "This feature requires a document to be open.\r\r"
    "The error could be caused by an incomplete HTML Tag within the document.\r\r"
    "If the link list shows entries, then the list should be complete and you may ignore this message."
    "  Otherwise, scan the document for HTML Tag errors and try again.";

} // namespace

frmHTTPExplorer::frmHTTPExplorer(Frame& frame)
    : QDialog(frame.Window()), frame_(frame), ui_(std::make_unique<Ui::frmHTTPExplorer>()) {
    ui_->setupUi(this);
    ui_->Tree->setItemDelegate(new LinkNames(ui_->Tree));
    ui_->Tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(ui_->Tree, &QTreeWidget::itemDoubleClicked, this, &frmHTTPExplorer::Tree_DblClick);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        const auto* enter = new QShortcut(QKeySequence(key), ui_->Tree, nullptr, nullptr, Qt::WidgetShortcut);
        connect(enter, &QShortcut::activated, this, &frmHTTPExplorer::Tree_DblClick);
    }
    Form_Load();
}

frmHTTPExplorer::~frmHTTPExplorer() = default;

void frmHTTPExplorer::Form_Load() {
    const Document* document = frame_.ActiveForm();
    const WaitCursor wait;
    const QString text = std::exchange(frame_.State<LinkText>().text, QString());
    FillLinkTree(*ui_->Tree, document ? document->Caption() : QString(), text);
    ui_->Tree->setCurrentItem(ui_->Tree->topLevelItem(0));
}

void frmHTTPExplorer::Tree_DblClick() {
    Document* document = frame_.ActiveForm();
    const QTreeWidgetItem* node = ui_->Tree->currentItem();
    if (!document || !node)
        return;
    RichTextBox& txtInput = document->txtInput();
    // Or the search would be held to the selection.
    txtInput.SetSelLength(0);
    if (txtInput.Find(node->text(0), std::nullopt, std::nullopt, RichTextBox::WholeWord) == -1)
        frame_.Ask().MsgBox(this, QStringLiteral("Tag not found."), MsgButtons::OK, MsgIcon::None,
                            ProgramTitle);
    frame_.Window()->activateWindow();
    txtInput.SetFocus();
}

void frmHTTPExplorer::reject() {
    frame_.LoadedForms().Unload(*this);
}

void mnuShowLinks_Click(Frame& frame) {
    Document* document = frame.ActiveForm();
    if (!document) {
        frame.Ask().MsgBox(frame.Window(), QString::fromLatin1(noDocument), MsgButtons::OK, MsgIcon::None,
                           ProgramTitle);
        return;
    }
    Forms& forms = frame.LoadedForms();
    frame.State<LinkText>().text = document->txtInput().Text();
    if (auto* loaded = forms.Find<frmHTTPExplorer>())
        loaded->Form_Load();
    forms.Show<frmHTTPExplorer>(frame);
}
