#include "editor/autofill/frmDropDown.h"

#include "editor/autofill/AutoFillList.h"
#include "editor/autofill/DropDownIcons.h"
#include "editor/autofill/DropDownPlace.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/text/KeyCodes.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/Twips.h"
#include "ui_frmDropDown.h"

#include <algorithm>
#include <QKeyEvent>
#include <QScrollBar>

namespace {

constexpr int keyRole = Qt::UserRole;
constexpr int rowsShown = 10;

/// The character code of a key that a text control would type, 0 for the others.
int CharacterOf(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return KeyAsciiOf::Enter;
    case Qt::Key_Backspace:
        return KeyAsciiOf::Backspace;
    case Qt::Key_Space:
        return KeyAsciiOf::Blank;
    default:
        return 0;
    }
}

} // namespace

frmDropDown::frmDropDown(Frame& frame)
    : QFrame(frame.Window()), frame_(frame), ui_(std::make_unique<Ui::frmDropDown>()) {
    hide();
    ui_->setupUi(this);
    // Rows are drawn over the text: the pane needs a ground of its own.
    setAutoFillBackground(true);
    ui_->ListView1->installEventFilter(this);
    connect(ui_->ListView1, &QListWidget::itemDoubleClicked, this, &frmDropDown::ListView1_DblClick);
    connect(&frame.LoadedForms(), &Forms::Unloading, this, [this](const QWidget* form) {
        if (form == this)
            Form_Unload();
    });
    MoveToCaret();
}

frmDropDown::~frmDropDown() = default;

void frmDropDown::Fill(const AutoFillRows& rows, const QString& called) {
    QListWidget& list = *ui_->ListView1;
    list.clear();
    for (const AutoFillRow& row : rows) {
        auto* item = new QListWidgetItem(ImageList1(row.SmallIcon), row.Text, &list);
        item->setData(keyRole, row.Key);
    }
    list.setAccessibleName(called);
    list.setCurrentRow(0);
    Arrange();
}

int frmDropDown::RowCount() const {
    return ui_->ListView1->count();
}

QString frmDropDown::RowText(int row) const {
    return ui_->ListView1->item(row)->text();
}

void frmDropDown::SelectRow(int row) {
    ui_->ListView1->setCurrentRow(row);
}

void frmDropDown::ScrollToSelected() {
    if (const QListWidgetItem* item = ui_->ListView1->currentItem())
        ui_->ListView1->scrollToItem(item);
}

std::optional<QString> frmDropDown::SelectedKey() const {
    const QListWidgetItem* item = ui_->ListView1->currentItem();
    if (!item)
        return std::nullopt;
    return item->data(keyRole).toString();
}

void frmDropDown::Open() {
    if (RowCount() == 0)
        return;
    show();
    raise();
    ScrollToSelected();
}

bool frmDropDown::FocusList() {
    if (!isVisible())
        return false;
    ui_->ListView1->setFocus();
    ScrollToSelected();
    return true;
}

void frmDropDown::MoveToCaret() {
    RichTextBox* active = ActiveText(frame_);
    if (!active)
        return;
    const RichTextBox& text = *active;
    const QPoint caret = text.CaretPixel();
    place_ = DropDownTwips(parentWidget()->frameGeometry().topLeft() * Twips::PerPixel, caret);
    const QPoint line = text.viewport()->mapTo(parentWidget(), caret);
    caretLine_ = QRect(line, QSize(1, text.LineHeight()));
    Arrange();
}

/// Gives the list the size that its rows ask for, and the form the list's, at the caret.
void frmDropDown::Arrange() {
    const QListWidget& list = *ui_->ListView1;
    const int border = 2 * list.frameWidth();
    const int rowHeight = list.count() > 0 ? list.sizeHintForRow(0) : list.fontMetrics().height();
    const int rows = std::clamp(list.count(), 1, rowsShown);
    const int width = list.sizeHintForColumn(0) + list.verticalScrollBar()->sizeHint().width() + border;
    constexpr int narrowest = 120;
    const QSize size(std::max(width, narrowest), rows * rowHeight + border);
    setGeometry(DropDownRect(caretLine_, size, parentWidget()->rect()));
}

bool frmDropDown::eventFilter(QObject* watched, QEvent* event) {
    if (watched != ui_->ListView1 || event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.key() == Qt::Key_Escape) {
        ListView1_KeyDown(KeyCodeOf::Escape);
        return true;
    }
    int KeyAscii = CharacterOf(key);
    if (KeyAscii == 0)
        return QFrame::eventFilter(watched, event);
    ListView1_KeyPress(KeyAscii);
    return true;
}

void frmDropDown::ListView1_DblClick() {
    PickRow();
}

void frmDropDown::ListView1_KeyPress(int& KeyAscii) {
    switch (KeyAscii) {
    case KeyAsciiOf::Enter:
        PickRow();
        break;
    case KeyAsciiOf::Backspace:
        Unload();
        if (RichTextBox* txtInput = ActiveText(frame_))
            txtInput->SetSelStart(frame_.State<AutoFillList>().ListReturnCaret());
        KeyAscii = 0;
        break;
    case KeyAsciiOf::Blank:
        Unload();
        break;
    default:
        break;
    }
}

void frmDropDown::ListView1_KeyDown(int KeyCode) {
    if (KeyCode == KeyCodeOf::Escape)
        Unload();
}

void frmDropDown::PickRow() {
    Document* document = frame_.ActiveForm();
    if (!document)
        return;
    auto& list = frame_.State<AutoFillList>();
    document->txtInput().SetSelStart(list.ListReturnCaret());
    list.MarkPick();
    document->txtInput().SetFocus();
    Q_EMIT list.RowPicked();
}

void frmDropDown::Unload() {
    frame_.LoadedForms().Unload(*this);
}

void frmDropDown::Form_Unload() {
    frame_.State<AutoFillList>().Close();
    // A list that goes while it has the focus leaves it to the text, not to whatever stands next in the tab
    // order.
    RichTextBox* txtInput = ActiveText(frame_);
    if (txtInput && ui_->ListView1->hasFocus())
        txtInput->SetFocus();
}
