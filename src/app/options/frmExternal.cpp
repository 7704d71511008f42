#include "app/options/frmExternal.h"

#include "app/documents/WordWrap.h"
#include "app/options/BrowserLookup.h"
#include "app/run/ProgramState.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/FormFields.h"
#include "editor/color/ColoredTags.h"
#include "editor/color/ColorizeText.h"
#include "editor/color/PickColor.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Document.h"
#include "editor/frame/EditorFont.h"
#include "editor/frame/EditorOptions.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "editor/views/Modes.h"
#include "platform/desktop/FaceNames.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/Settings.h"
#include "platform/text/ColorNumber.h"
#include "platform/text/RichTextBox.h"
#include "platform/text/UndoAction.h"
#include "platform/values/Cp1252.h"
#include "platform/values/Values.h"
#include "ui_frmExternal.h"

#include <QShortcut>

namespace {

constexpr int smallestSize = 6;
constexpr int largestSize = 64;
constexpr int sizeStep = 2;

/// A stored colour: 0 where the setting holds no number, its default where the number is no colour's.
ColorNumber StoredColor(const Settings& store, const SettingsKey& key) {
    constexpr ColorNumber ends = 0x1000000;
    const ColorNumber color = store.ReadNumber(key);
    return color >= 0 && color < ends ? color : key.StandardNumber();
}

void SetVisible(Frame& frame, const QString& strip, bool visible) {
    if (auto* widget = frame.Window()->findChild<QWidget*>(strip))
        widget->setVisible(visible);
}

} // namespace

frmExternal::frmExternal(Frame& frame)
    : QDialog(frame.Window()), ui_(std::make_unique<Ui::frmExternal>()), frame_(frame) {
    ui_->setupUi(this);
    lblTag_ = {ui_->lblTag_0, ui_->lblTag_1, ui_->lblTag_2, ui_->lblTag_3, ui_->lblTag_4, ui_->lblTag_5};
    WirePages();
    WireFlags();
    WireSamples();
    connect(ui_->cmdBrowse, &QPushButton::clicked, this, &frmExternal::cmdBrowse_Click);
    connect(ui_->cmdFTPBrowse, &QPushButton::clicked, this, &frmExternal::cmdFTPBrowse_Click);
    connect(ui_->Command2, &QPushButton::clicked, this, &frmExternal::Command2_Click);
    connect(ui_->Command3, &QPushButton::clicked, this, &frmExternal::Unload);
    Form_Load();
}

frmExternal::~frmExternal() = default;

void frmExternal::WirePages() {
    // Two of the captions end in a blank.
    ui_->TabStrip1->addTab(QStringLiteral("External Programs "));
    ui_->TabStrip1->addTab(QStringLiteral("Editor Options "));
    ui_->TabStrip1->addTab(QStringLiteral("General"));
    ui_->TabStrip1->setTabToolTip(0, QStringLiteral("Location of external Web Browser"));
    ui_->TabStrip1->setTabToolTip(1, QStringLiteral("Location of external FTP program"));
    ui_->TabStrip1->setExpanding(false);
    connect(ui_->TabStrip1, &QTabBar::currentChanged, ui_->Frames, &QStackedWidget::setCurrentIndex);
    const auto turn = [this](int by) {
        const int count = ui_->TabStrip1->count();
        ui_->TabStrip1->setCurrentIndex((ui_->TabStrip1->currentIndex() + count + by) % count);
    };
    connect(new QShortcut(QKeySequence::NextChild, this), &QShortcut::activated, this, [turn] { turn(1); });
    connect(new QShortcut(QKeySequence::PreviousChild, this), &QShortcut::activated, this,
            [turn] { turn(-1); });
}

void frmExternal::WireFlags() {
    connect(ui_->chkAutoFill, &QCheckBox::toggled, this, &frmExternal::chkAutoFill_Click);
    connect(ui_->chkWordWrap, &QCheckBox::toggled, this, &frmExternal::chkWordWrap_Click);
    connect(ui_->chkMSIEInstalled, &QCheckBox::toggled, this, &frmExternal::chkMSIEInstalled_Click);
    connect(ui_->chkShowButtons, &QCheckBox::toggled, this, &frmExternal::chkShowButtons_Click);
    connect(ui_->chkLocFTP, &QCheckBox::toggled, this, &frmExternal::chkLocFTP_Click);
    Flag(*ui_->chkColoredTags, Keys::ColoredTags);
    Flag(*ui_->chkConvertCharacters, Keys::ConvertChar);
    Flag(*ui_->chkLowerCaseTags, Keys::LowerCaseTags);
    Flag(*ui_->chkUseHTM, Keys::UseHTM);
    Flag(*ui_->chkUseWebTimer, Keys::UseWebTimer);
}

/// A box that does nothing but write its value.
void frmExternal::Flag(QCheckBox& box, const SettingsKey& key) {
    connect(&box, &QCheckBox::toggled, this, [this, key](bool on) { frame_.Store().WriteFlag(key, on); });
}

void frmExternal::WireSamples() {
    for (int index = 0; index < static_cast<int>(lblTag_.size()); ++index)
        connect(lblTag_[static_cast<size_t>(index)], &ClickLabel::Click, this,
                [this, index] { lblTag_Click(index); });
    connect(ui_->lblTagBG, &ClickLabel::DblClick, this, &frmExternal::lblTagBG_DblClick);
}

void frmExternal::Form_Load() {
    LoadFlags();
    LoadFonts();
    LoadColors();
}

void frmExternal::LoadFlags() {
    // A box that is switched on here acts as if it were clicked, and so writes its value back.
    const Settings& store = frame_.Store();
    ui_->chkMSIEInstalled->setChecked(store.ReadFlag(Keys::UseMSIE));
    ui_->chkShowButtons->setChecked(store.ReadFlag(Keys::ShowUserButtons));
    ui_->chkColoredTags->setChecked(ColoredTagsChecked(store));
    ui_->chkConvertCharacters->setChecked(store.ReadFlag(Keys::ConvertChar));
    ui_->chkUseWebTimer->setChecked(store.ReadFlag(Keys::UseWebTimer));
    ui_->chkWordWrap->setChecked(store.ReadFlag(Keys::WordWrap));
    ui_->chkLowerCaseTags->setChecked(store.ReadFlag(Keys::LowerCaseTags));
    ui_->chkUseHTM->setChecked(store.ReadFlag(Keys::UseHTM));
    ui_->chkAutoFill->setChecked(store.ReadFlag(Keys::UseAutoFill));
}

void frmExternal::LoadFonts() {
    const QString stored = frame_.Store().Read(Keys::EditorFont);
    ui_->List1->addItems(FaceNames(stored));
    const auto found = ui_->List1->findItems(stored, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (!found.isEmpty())
        ui_->List1->setCurrentItem(found.first());
    else
        ui_->List1->setCurrentRow(0);
    for (int size = smallestSize; size <= largestSize; size += sizeStep)
        ui_->cboFontSize->addItem(QString::number(size));
    NamePartsOf(*ui_->cboFontSize);
    ui_->cboFontSize->setEditText(frame_.Store().Read(Keys::EditorFontSize));
}

void frmExternal::LoadColors() {
    ui_->lblTagBG->SetBackNumber(frame_.State<EditorOptions>().Background2);
    for (size_t index = 0; index < lblTag_.size(); ++index)
        lblTag_[index]->SetForeNumber(StoredColor(frame_.Store(), Keys::TextColor[index]));
}

void frmExternal::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    // Once, as the dialog comes up: a user who sizes it later keeps what was typed.
    if (!std::exchange(resized_, true))
        ShowPrograms();
}

void frmExternal::ShowPrograms() {
    const ProgramState& state = frame_.State<ProgramState>();
    if (state.WebPath.isEmpty() && ui_->txtBrowser->text().isEmpty()) {
        const QString browser = BrowserLookup::Find();
        if (browser.isEmpty()) {
            ui_->lblUpdate->setText(QStringLiteral("Netscape not found on system."));
        } else {
            ui_->txtBrowser->setText(browser);
            ui_->lblUpdate->setText(
                QStringLiteral("Please verify that the correct filename is shown above."));
        }
    }
    if (!state.WebPath.isEmpty())
        ui_->txtBrowser->setText(state.WebPath);
    if (!state.FtpPath.isEmpty())
        ui_->txtFTP->setText(state.FtpPath);
    if (state.LocalFTP)
        ui_->chkLocFTP->setChecked(true);
}

void frmExternal::chkAutoFill_Click(bool on) {
    frame_.Store().WriteFlag(Keys::UseAutoFill, on);
    frame_.State<EditorOptions>().UseAutoFill = on;
}

void frmExternal::chkWordWrap_Click(bool on) {
    frame_.Store().WriteFlag(Keys::WordWrap, on);
    if (RichTextBox* txtInput = ActiveText(frame_))
        SetWordWrap(*txtInput, on);
}

void frmExternal::chkMSIEInstalled_Click(bool on) {
    SetVisible(frame_, QStringLiteral("Picture4"), on);
    Document* document = frame_.ActiveForm();
    if (DocumentModes* modes = document ? document->Modes() : nullptr) {
        modes->LoadControls();
        modes->PlaceAtResize();
    }
    frame_.Store().WriteFlag(Keys::UseMSIE, on);
}

void frmExternal::chkShowButtons_Click(bool on) {
    SetVisible(frame_, QStringLiteral("Picture2"), on);
    frame_.Store().WriteFlag(Keys::ShowUserButtons, on);
}

void frmExternal::chkLocFTP_Click(bool on) {
    ProgramState& state = frame_.State<ProgramState>();
    state.LocalFTP = on;
    if (!on)
        state.ReloadFlag = true;
    else if (state.FtpPath.isEmpty())
        state.ReloadFlag = false;
}

namespace {

std::optional<QString> PickProgram(Frame& frame, QWidget* owner) {
    return PickFile(
        frame, owner,
        {.filter = QStringLiteral("All files (*.*)|*.*|Executables (*.exe)|*.exe|"), .filterIndex = 2});
}

} // namespace

void frmExternal::cmdBrowse_Click() {
    const std::optional<QString> picked = PickProgram(frame_, this);
    if (!picked)
        return;
    ui_->txtBrowser->setText(*picked);
    ProgramState& state = frame_.State<ProgramState>();
    if (!state.WebPath.isEmpty())
        state.ReloadFlag = true;
}

void frmExternal::cmdFTPBrowse_Click() {
    if (const std::optional<QString> picked = PickProgram(frame_, this))
        ui_->txtFTP->setText(*picked);
}

void frmExternal::lblTag_Click(int index) {
    lblTag_[static_cast<size_t>(index)]->SetForeNumber(PickColorOrBlack(frame_.Ask(), this));
}

void frmExternal::lblTagBG_DblClick() {
    ui_->lblTagBG->SetBackNumber(PickColorOrBlack(frame_.Ask(), this));
}

void frmExternal::Command2_Click() {
    const int page = ui_->TabStrip1->currentIndex();
    if (page == 0 && !ExtProgs())
        return;
    if (page == 1 && !SelectTagColor())
        return;
    Unload();
}

bool frmExternal::ExtProgs() {
    ProgramState& state = frame_.State<ProgramState>();
    state.WebPath = Cp1252::Accept(ui_->txtBrowser->text());
    state.FtpPath = Cp1252::Accept(ui_->txtFTP->text());
    Settings& store = frame_.Store();
    store.Write(Keys::Web, state.WebPath);
    store.Write(Keys::FTP, state.FtpPath);
    store.Write(Keys::LocalPreview, Values::FromBoolean(state.LocalPreview));
    store.Write(Keys::LocalFTP, Values::FromBoolean(state.LocalFTP));
    if (store.Sync())
        return true;
    frame_.Ask().MsgBox(this, QStringLiteral("Searching for web browser...please wait"), MsgButtons::OK,
                        MsgIcon::Exclamation, ProgramTitle);
    return false;
}

bool frmExternal::SelectTagColor() {
    Settings& store = frame_.Store();
    EditorOptions& editor = frame_.State<EditorOptions>();
    editor.Background2 = ui_->lblTagBG->BackNumber();
    for (size_t index = 0; index < lblTag_.size(); ++index) {
        const ColorNumber color = lblTag_[index]->ForeNumber();
        editor.ColorTable[index] = RtfColor(color);
        store.WriteNumber(Keys::TextColor[index], color);
    }
    if (const QListWidgetItem* font = ui_->List1->currentItem())
        store.Write(Keys::EditorFont, font->text());
    const QString size = Cp1252::Accept(ui_->cboFontSize->currentText());
    if (Values::Val(size) == 0) {
        frame_.Ask().MsgBox(this, QStringLiteral("You must enter a number - letters won't work."),
                            MsgButtons::OK, MsgIcon::Critical, ProgramTitle);
        return false;
    }
    store.Write(Keys::EditorFontSize, size);
    if (RichTextBox* active = ActiveText(frame_)) {
        RichTextBox& txtInput = *active;
        txtInput.SetFont(StoredEditorFont(store));
        const UndoAction step(txtInput);
        QString text = txtInput.Text();
        txtInput.SetText(QString());
        ColorizeText(frame_, std::move(text), KeepDocument::No, CaretToTop::No);
    }
    return true;
}

void frmExternal::reject() {
    Unload();
}

void frmExternal::Unload() {
    frame_.LoadedForms().Unload(*this);
}

void mnuWebBrowser_Click(Frame& frame) {
    // The dialog that is up already is modal: what asks again meanwhile waits no second time.
    if (!frame.LoadedForms().Find<frmExternal>())
        frame.LoadedForms().Load<frmExternal>(frame).exec();
}
