#include "tools/find/frmFindReplace.h"

#include "dialogs/FileDialogs.h"
#include "dialogs/FormFields.h"
#include "editor/color/InsertTag.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Frame.h"
#include "editor/frame/TellFailedSave.h"
#include "platform/desktop/Prompts.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/Twips.h"
#include "tools/find/BytesReplacement.h"
#include "tools/find/FindState.h"
#include "tools/find/ReplaceInFiles.h"
#include "tools/projects/ListRows.h"
#include "tools/projects/ProjectNames.h"
#include "ui_frmFindReplace.h"

#include <QCoreApplication>
#include <QPointer>

namespace {

constexpr int heightInTwips = 3800;
constexpr int top = 0;
/// So many characters behind a replacement are passed over.
constexpr int gapOfReplaceAll = 1;

int Options(const QCheckBox* matchCase, const QCheckBox* wholeWord = nullptr) {
    return (matchCase->isChecked() ? RichTextBox::MatchCase : 0) |
           (wholeWord && wholeWord->isChecked() ? RichTextBox::WholeWord : 0);
}

Compare CompareKind(const QCheckBox* matchCase) {
    return matchCase->isChecked() ? Compare::Exact : Compare::IgnoreCase;
}

/// What a field holds, as the document would hold it.
QString TextFor(const RichTextBox& txtInput, const QLineEdit* field) {
    return txtInput.Incorporated(field->text());
}

/// A search goes on behind what is selected, and with it behind the match before.
int LeaveSelection(RichTextBox& txtInput) {
    txtInput.SetSelStart(txtInput.SelStart() + txtInput.SelLength());
    return txtInput.SelStart();
}

} // namespace

frmFindReplace::frmFindReplace(Frame& frame, Owner owner)
    : TagDialog(frame), ui_(std::make_unique<Ui::frmFindReplace>()), dialog_(frame) {
    if (owner == Owner::None)
        setParent(nullptr, windowFlags());
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    connect(ui_->TabStrip1, &QTabWidget::currentChanged, this, &frmFindReplace::TabStrip1_Click);
    connect(ui_->cmdSelected, &QPushButton::clicked, this, &frmFindReplace::cmdSelected_Click);
    connect(ui_->cmdGetFle, &QPushButton::clicked, this, &frmFindReplace::cmdGetFle_Click);
    Form_Load();
}

frmFindReplace::~frmFindReplace() = default;

void frmFindReplace::Form_Load() {
    ui_->Combo1->addItems(ProjectNamesPastGaps(frame_.Store()));
    ui_->Combo1->setCurrentIndex(-1);
    NamePartsOf(*ui_->Combo1);
    resize(sizeHint().width(), Twips::ToPixels(heightInTwips));
    ui_->TabStrip1->setCurrentIndex(frame_.State<FindState>().StartTab - 1);
    TabStrip1_Click();
    QWidget* const first[] = {ui_->txtFindOnly, ui_->txtWhat, ui_->txtFindGlobal};
    first[ui_->TabStrip1->currentIndex()]->setFocus();
}

void frmFindReplace::TabStrip1_Click() {
    const bool replaces = ui_->TabStrip1->currentWidget() == ui_->Frame_2;
    ui_->cmdSelected->setVisible(replaces);
    ui_->cmdOK->setText(replaces ? tr("&Replace") : tr("&OK"));
}

void frmFindReplace::cmdOK_Click() {
    const QWidget* frame = ui_->TabStrip1->currentWidget();
    if (frame == ui_->Frame_0)
        FindOnly();
    else if (frame == ui_->Frame_2)
        ReplaceOnly();
    else
        FindGlobal();
}

void frmFindReplace::FindOnly() {
    if (RichTextBox* txtInput = ActiveText(frame_)) {
        const int start = LeaveSelection(*txtInput);
        findPosition_ = txtInput->Find(TextFor(*txtInput, ui_->txtFindOnly), start, std::nullopt,
                                       Options(ui_->chkFindCase, ui_->chkFindWW));
    }
    // With no document open the last search still counts.
    if (findPosition_ == -1)
        frame_.Ask().MsgBox(this, QStringLiteral("Cannot Find \"%1\".").arg(ui_->txtFindOnly->text()),
                            MsgButtons::OK, MsgIcon::None, QString());
}

void frmFindReplace::ReplaceOnly() {
    RichTextBox* txtInput = ActiveText(frame_);
    if (txtInput) {
        const int start = LeaveSelection(*txtInput);
        replacePosition_ =
            txtInput->Find(TextFor(*txtInput, ui_->txtWhat), start, std::nullopt, Options(ui_->chkRepCS));
    }
    // A match at the very start counts as none: it stays selected, and is not replaced.
    if (replacePosition_ <= 0) {
        TellNoMore();
        replacePosition_ = 0;
    } else if (txtInput) {
        frame_.Window()->activateWindow();
        txtInput->SetFocus();
        txtInput->SetSelText(TextFor(*txtInput, ui_->txtWith));
    }
}

void frmFindReplace::cmdSelected_Click() {
    if (!ReplaceInTheSelection())
        ReplaceAll();
}

bool frmFindReplace::ReplaceInTheSelection() {
    RichTextBox* txtInput = ActiveText(frame_);
    if (!txtInput || txtInput->SelLength() <= 1 || ui_->txtWhat->text().isEmpty())
        return false;
    ReplaceInSelection(frame_, txtInput->SelText(), TextFor(*txtInput, ui_->txtWhat),
                       TextFor(*txtInput, ui_->txtWith), CompareKind(ui_->chkRepCS));
    return true;
}

// From the top, whatever the caret. A match at the very start ends it at once, selected and not replaced; and
// the search goes on one character behind each replacement, so that a match that touches it stays.
void frmFindReplace::ReplaceAll() {
    if (RichTextBox* txtInput = ActiveText(frame_)) {
        const QString what = TextFor(*txtInput, ui_->txtWhat);
        const int options = Options(ui_->chkRepCS);
        const bool isAtStart = txtInput->Find(what, top, static_cast<int>(what.size()), options) == top;
        if (!isAtStart)
            txtInput->ReplaceEach(what, TextFor(*txtInput, ui_->txtWith), top, gapOfReplaceAll, options);
    }
    TellNoMore();
}

void frmFindReplace::TellNoMore() {
    frame_.Ask().MsgBox(this, QStringLiteral("No more instances of \"%1\" found.").arg(ui_->txtWhat->text()),
                        MsgButtons::OK, MsgIcon::Exclamation, ProgramTitle);
}

void frmFindReplace::cmdGetFle_Click() {
    dialog_.SetMultiSelect(CDialog::Explorer);
    dialog_.SetFilter(FileFilter::AnyFile);
    if (dialog_.ShowOpen(this)) {
        for (int n = 1; n <= dialog_.SelectedFileCount(); ++n)
            ui_->List1->addItem(dialog_.SelectedFile(n));
    } else if (dialog_.ErrorCode() != 0) {
        frame_.Ask().MsgBox(this, QStringLiteral("Error %1 occurred").arg(dialog_.ErrorCode()),
                            MsgButtons::OK, MsgIcon::None, ProgramTitle);
    }
}

void frmFindReplace::FindGlobal() {
    const QStringList paths = Lines(*ui_->List1);
    const BytesReplacement replacement(ui_->txtFindGlobal->text(), ui_->txtReplaceGlobal->text(),
                                       CompareKind(ui_->chkGlobalCS));
    // The events that are let through may end the program, and this form with it.
    const QPointer<frmFindReplace> self(this);
    Frame& frame = frame_;
    const FailedSaves failed = ReplaceInFiles(paths, replacement, [&](int number) {
        frame.SetStatusPanel(tr("File %1 of %2").arg(number).arg(paths.size()), true);
        // What the user presses waits for its turn; windows are painted.
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    });
    frame.SetStatusPanel(QString());
    const QPointer<QWidget> window(frame.Window());
    frame.Ask().MsgBox(self ? self.data() : frame.Window(), QStringLiteral("Finished!"), MsgButtons::OK,
                       MsgIcon::Information, QString());
    // Behind the box: the key that answers it would end the notice.
    if (window)
        TellFailedSaves(frame, failed);
}
