#include "builders/tables/frmTable.h"

#include "builders/tables/frmGridInput.h"
#include "builders/tables/ReadTable.h"
#include "builders/tables/TableSize.h"
#include "builders/tables/TableTag.h"
#include "dialogs/FormFields.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/ProgramFolder.h"
#include "platform/store/WholeFile.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/Cp1252.h"
#include "ui_frmTable.h"

#include <QEvent>
#include <QFile>
#include <QFocusEvent>

namespace {

const QString one = QStringLiteral("1");

void AddNumbers(QComboBox* list, int first, int last, int step = 1) {
    QStringList numbers;
    for (int number = first; number <= last; number += step)
        numbers << QString::number(number);
    list->addItems(numbers);
}

} // namespace

frmTable::frmTable(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmTable>()), cellTags_(0, 0) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOk, *ui_->cmdCancel);
    cellTags_.ReDim(ui_->Grid1->Cols(), ui_->Grid1->Rows());
    const bool documentOpen = frame.ActiveForm();
    ui_->cmdPreview->setEnabled(documentOpen);
    ui_->cmdOk->setEnabled(documentOpen);
    FillLists();
    WireSizes();
    connect(ui_->hsbWidth, &QScrollBar::valueChanged, this, &frmTable::hsbWidth_Change);
    connect(ui_->Grid1, &Grid::Click, this, &frmTable::Grid1_Click);
    connect(ui_->cmdImport, &QPushButton::clicked, this, &frmTable::cmdImport_Click);
    connect(ui_->cmdPreview, &QPushButton::clicked, this, &frmTable::cmdPreview_Click);
}

frmTable::~frmTable() = default;

void frmTable::FillLists() {
    for (QComboBox* list : {ui_->txtRows, ui_->txtCols})
        AddNumbers(list, 1, 99);
    for (QComboBox* list : {ui_->txtCellPadding, ui_->txtCellSpacing, ui_->txtBorderWidth}) {
        list->addItem(QString());
        AddNumbers(list, 1, 35);
    }
    ui_->txtWidth->addItem(QString());
    AddNumbers(ui_->txtWidth, 0, 990, 10);
    PrepareComboBoxes(*this);
    ui_->txtRows->setEditText(QStringLiteral("2"));
    ui_->txtCols->setEditText(QStringLiteral("2"));
    // The field that has the keys first: what is typed replaces the number.
    ui_->txtRows->lineEdit()->selectAll();
}

void frmTable::WireSizes() {
    // A field that is left with a number of its list counts as a pick from the list there, and would throw
    // the cells away once more.
    for (QComboBox* field : {ui_->txtRows, ui_->txtCols})
        disconnect(field->lineEdit(), &QLineEdit::editingFinished, field, nullptr);
    connect(ui_->txtRows, &QComboBox::editTextChanged, this, &frmTable::txtRows_Change);
    connect(ui_->txtRows, &QComboBox::activated, this, &frmTable::txtRows_Change);
    connect(ui_->txtCols, &QComboBox::editTextChanged, this, &frmTable::txtCols_Change);
    connect(ui_->txtCols, &QComboBox::activated, this, &frmTable::txtCols_Change);
    ui_->txtRows->installEventFilter(this);
}

bool frmTable::eventFilter(QObject* watched, QEvent* event) {
    // A list that drops down and a menu are still within the field, and a box in front gives the keys back to
    // it: an import's last one would take a row of what was imported.
    if (watched == ui_->txtRows && event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            txtRows_LostFocus();
    }
    return TagDialog::eventFilter(watched, event);
}

void frmTable::txtRows_Change() {
    SizeRows();
    SizeCellTags();
}

void frmTable::txtRows_LostFocus() {
    SizeRows();
}

void frmTable::txtCols_Change() {
    SizeCols();
    SizeCellTags();
}

void frmTable::SizeRows() {
    if (const auto rows = TableSize(ui_->txtRows->currentText()))
        ui_->Grid1->SetRows(*rows);
    if (IsBelowOne(ui_->txtRows->currentText()))
        ui_->txtRows->setEditText(one);
}

void frmTable::SizeCols() {
    if (const auto cols = TableSize(ui_->txtCols->currentText()))
        ui_->Grid1->SetCols(*cols);
    if (IsBelowOne(ui_->txtCols->currentText()))
        ui_->txtCols->setEditText(one);
}

void frmTable::SizeCellTags() {
    const auto columns = TableSize(ui_->txtCols->currentText());
    const auto rows = TableSize(ui_->txtRows->currentText());
    if (columns && rows)
        cellTags_.ReDim(*columns, *rows);
}

void frmTable::hsbWidth_Change() {
    ui_->Grid1->SetColWidth(ui_->Grid1->Col(), ui_->hsbWidth->value());
}

void frmTable::Grid1_Click() {
    frame_.LoadedForms().Show<frmGridInput>(frame_, *this, *this);
}

QString frmTable::CellText() const {
    return ui_->Grid1->Text();
}

void frmTable::SetCell(const QString& tag, const QString& text) {
    cellTags_.Set(ui_->Grid1->Col(), ui_->Grid1->Row(), tag);
    ui_->Grid1->SetText(text);
}

QString frmTable::TableFill() {
    QString row = QStringLiteral("<TR>");
    for (int col = 0; ui_->Grid1->SetCol(col); ++col)
        row += QStringLiteral("<TD>") + ui_->Grid1->Text() + QStringLiteral("</TD>");
    return row + QStringLiteral("</TR>");
}

void frmTable::cmdImport_Click() {
    const auto ask = [this](const QString& question) {
        return frame_.Ask().MsgBox(this, question, MsgButtons::YesNo, MsgIcon::Question, ProgramTitle);
    };
    // The answer has never made a difference.
    ask(QStringLiteral("This feature is still under development and may not work properly.\r"
                       "Do you want to continue?"));
    ImportSelection();
    const MsgAnswer answer =
        ask(QStringLiteral("Remove imported table from HTML document?\r"
                           "If you select No, you must move your cursor to a clear location in the HTML "
                           "document."));
    RichTextBox* txtInput = ActiveText(frame_);
    if (answer == MsgAnswer::Yes && txtInput)
        txtInput->SetSelText(QString());
}

void frmTable::ImportSelection() {
    const RichTextBox* txtInput = ActiveText(frame_);
    const TableRead read = ReadTable(txtInput ? txtInput->SelText() : QString(), ui_->Grid1->Cells());
    if (read.cellPadding)
        ui_->txtCellPadding->setEditText(*read.cellPadding);
    if (read.border)
        ui_->txtBorderWidth->setEditText(*read.border);
    if (read.cellSpacing)
        ui_->txtCellSpacing->setEditText(*read.cellSpacing);
    ui_->Grid1->Take(read.grid);
    // A new number in the field throws the cells away; 0 becomes 1 there, but not in the grid.
    ui_->txtCols->setEditText(QString::number(read.columns));
    ui_->Grid1->SetCols(read.columns);
}

TableFields frmTable::Fields() const {
    return {.rows = ui_->txtRows->currentText(),
            .columns = ui_->txtCols->currentText(),
            .caption = FieldText(ui_->txtCaption),
            .captionBelow = ui_->optBottom->isChecked(),
            .cellPadding = FieldText(ui_->txtCellPadding),
            .cellSpacing = FieldText(ui_->txtCellSpacing),
            .borderWidth = FieldText(ui_->txtBorderWidth),
            .width = FieldText(ui_->txtWidth)};
}

void frmTable::cmdPreview_Click() {
    const QString path = InProgramFolder(QStringLiteral("tabletest.html"));
    // The page names no character set: what is outside the usual one goes as a reference.
    const QByteArray page = Cp1252::ToBytes(Cp1252::Accept(TablePage(Fields(), cellTags_)));
    if (!WholeFile::Write(path, page))
        return;
    testFilePath_ = path;
    frame_.PreviewInBrowser(path);
}

void frmTable::cmdOK_Click() {
    const auto [open, close] = TableTag(Fields(), cellTags_, TagCaseOf(frame_.Store()));
    Insert(open, close);
    cellTags_.Erase();
    DeleteTestFile();
    Unload();
}

void frmTable::reject() {
    DeleteTestFile();
    Unload();
}

void frmTable::DeleteTestFile() {
    if (!testFilePath_.isEmpty())
        QFile::remove(testFilePath_);
}
