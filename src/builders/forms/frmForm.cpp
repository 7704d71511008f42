#include "builders/forms/frmForm.h"

#include "builders/forms/FormTags.h"
#include "dialogs/FormFields.h"
#include "dialogs/ListKeys.h"
#include "editor/frame/Frame.h"
#include "ui_frmForm.h"

#include <algorithm>
#include <QEvent>
#include <QScreen>
#include <QShortcut>
#include <vector>

namespace {

/// A tab by its caption: the frame it shows, and what cmdApply does there.
struct FormTab {
    QString caption;
    int frame;
    void (*add)(frmForm&);
};

const std::vector<FormTab>& Tabs() {
    static const std::vector<FormTab> tabs = {
        {QStringLiteral("Form"), 5, [](frmForm& form) { form.AddForm(); }},
        {QStringLiteral("Text"), 0, [](frmForm& form) { form.AddText(QStringLiteral("TEXT")); }},
        {QStringLiteral("TextArea"), 4, [](frmForm& form) { form.AddTextArea(); }},
        {QStringLiteral("Radio"), 1, [](frmForm& form) { form.AddRadio(QStringLiteral("RADIO")); }},
        {QStringLiteral("Checkbox"), 1, [](frmForm& form) { form.AddRadio(QStringLiteral("CHECKBOX")); }},
        {QStringLiteral("List"), 6, [](frmForm& form) { form.AddList(); }},
        {QStringLiteral("Password"), 0, [](frmForm& form) { form.AddText(QStringLiteral("PASSWORD")); }},
        {QStringLiteral("Submit"), 2, [](frmForm& form) { form.AddSubmit(QStringLiteral("SUBMIT")); }},
        {QStringLiteral("Reset"), 2, [](frmForm& form) { form.AddSubmit(QStringLiteral("RESET")); }},
        {QStringLiteral("Button"), 2, [](frmForm& form) { form.AddSubmit(QStringLiteral("BUTTON")); }},
        {QStringLiteral("Hidden"), 3, [](frmForm& form) { form.AddHidden(); }},
    };
    return tabs;
}

/// The selected tab, found by its caption; null for a caption that none has.
const FormTab* Selected(const QTabBar& strip) {
    const QString caption = strip.tabText(strip.currentIndex());
    const auto found = std::ranges::find(Tabs(), caption, &FormTab::caption);
    return found == Tabs().end() ? nullptr : &*found;
}

} // namespace

frmForm::frmForm(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::frmForm>()) {
    ui_->setupUi(this);
    Wire(*ui_->cmdApply, *ui_->cmdCancel);
    PrepareComboBoxes(*this);
    ui_->cboMethod->setEditText(QStringLiteral("POST"));
    WireTabs();
    connect(ui_->cmdAddItem, &QPushButton::clicked, this, &frmForm::cmdAddItem_Click);
    connect(ui_->cmdRemoveItem, &QPushButton::clicked, this, &frmForm::cmdRemoveItem_Click);
    OnListKeys(ui_->cboList, {Qt::Key_Delete}, [this] { cmdRemoveItem_Click(); });
    connect(ui_->chkMultiple, &QCheckBox::toggled, this, &frmForm::chkMultiple_Click);
    ui_->txtList->installEventFilter(this);
    // By itself a window opens no wider than two thirds of the screen, which would hide tabs, and as high as
    // the list would like to be.
    const QSize size(sizeHint().width(), minimumSizeHint().height());
    resize(size.boundedTo(screen()->availableSize()));
}

frmForm::~frmForm() = default;

void frmForm::WireTabs() {
    QTabBar* strip = ui_->TabStrip;
    strip->setExpanding(false);
    connect(strip, &QTabBar::currentChanged, this, &frmForm::TabStrip_Click);
    for (const FormTab& tab : Tabs())
        strip->addTab(tab.caption);
    const auto turn = [strip](int by) {
        strip->setCurrentIndex((strip->currentIndex() + strip->count() + by) % strip->count());
    };
    connect(new QShortcut(QKeySequence::NextChild, this), &QShortcut::activated, this, [turn] { turn(1); });
    connect(new QShortcut(QKeySequence::PreviousChild, this), &QShortcut::activated, this,
            [turn] { turn(-1); });
}

void frmForm::TabStrip_Click() {
    if (const FormTab* tab = Selected(*ui_->TabStrip))
        ui_->Frames->setCurrentIndex(tab->frame);
}

void frmForm::cmdOK_Click() {
    if (const FormTab* tab = Selected(*ui_->TabStrip))
        tab->add(*this);
}

void frmForm::AddForm() {
    const auto [open, close] = FormTag({.action = FieldText(ui_->txtAction),
                                        .target = FieldText(ui_->txtTarget),
                                        .method = FieldText(ui_->cboMethod),
                                        .encType = FieldText(ui_->cboEncType)},
                                       TagCaseOf(frame_.Store()));
    Insert(open, close);
}

void frmForm::AddText(const QString& type) {
    Insert(TextTag(type,
                   {.name = FieldText(ui_->txtName_0),
                    .value = FieldText(ui_->txtValue_0),
                    .size = FieldText(ui_->txtSize_0),
                    .maxLength = FieldText(ui_->txtMaxLength),
                    .align = FieldText(ui_->cboAlign_0),
                    .tabIndex = FieldText(ui_->txtTabIndex_0),
                    .noTab = ui_->chkNOTAB_0->isChecked()},
                   TagCaseOf(frame_.Store())));
}

void frmForm::AddTextArea() {
    const auto [open, close] = TextAreaTag({.name = FieldText(ui_->txtName_4),
                                            .cols = FieldText(ui_->txtCols),
                                            .rows = FieldText(ui_->txtRows),
                                            .wrap = FieldText(ui_->cboWrap),
                                            .tabIndex = FieldText(ui_->txtTabIndex_4),
                                            .noTab = ui_->chkNOTAB_4->isChecked()},
                                           TagCaseOf(frame_.Store()));
    Insert(open, close);
}

void frmForm::AddRadio(const QString& type) {
    Insert(RadioTag(type,
                    {.name = FieldText(ui_->txtName_1),
                     .value = FieldText(ui_->txtValue_1),
                     .align = FieldText(ui_->cboAlign_1),
                     .checked = ui_->chkChecked->isChecked(),
                     .tabIndex = FieldText(ui_->txtTabIndex_1),
                     .noTab = ui_->chkNOTAB_1->isChecked()},
                    TagCaseOf(frame_.Store())));
}

void frmForm::AddSubmit(const QString& type) {
    Insert(SubmitTag(type,
                     {.name = FieldText(ui_->txtName_2),
                      .value = FieldText(ui_->txtValue_2),
                      .align = FieldText(ui_->cboAlign_2),
                      .tabIndex = FieldText(ui_->txtTabIndex_2),
                      .noTab = ui_->chkNOTAB_2->isChecked()},
                     TagCaseOf(frame_.Store())));
}

void frmForm::AddHidden() {
    Insert(HiddenTag({.name = FieldText(ui_->txtName_3), .value = FieldText(ui_->txtValue_3)},
                     TagCaseOf(frame_.Store())));
}

void frmForm::AddList() {
    QStringList items;
    for (int row = 0; row < ui_->cboList->count(); ++row)
        items << ui_->cboList->item(row)->text();
    const auto [open, close] = SelectTag({.name = FieldText(ui_->txtName_6),
                                          .multiple = ui_->chkMultiple->isChecked(),
                                          .size = FieldText(ui_->txtSize_6),
                                          .items = items},
                                         TagCaseOf(frame_.Store()));
    Insert(open, close);
}

int frmForm::ListIndex() const {
    const QList<QListWidgetItem*> selected = ui_->cboList->selectedItems();
    return selected.isEmpty() ? -1 : ui_->cboList->row(selected.first());
}

void frmForm::cmdAddItem_Click() {
    // In front of the first item nothing can go: with that one selected a new item has always gone to the
    // end.
    const int index = ListIndex();
    const int row = index >= 1 ? index : ui_->cboList->count();
    ui_->cboList->insertItem(row, FieldText(ui_->txtList));
    ui_->cboList->scrollToItem(ui_->cboList->item(row));
    ui_->txtList->clear();
    ui_->txtList->setFocus();
}

void frmForm::cmdRemoveItem_Click() {
    delete ui_->cboList->takeItem(ListIndex());
    // The keys go on from the neighbour, but it counts as selected only when it is picked.
    ui_->cboList->clearSelection();
}

void frmForm::chkMultiple_Click() {
    const bool on = ui_->chkMultiple->isChecked();
    ui_->txtSize_6->setEnabled(on);
    ui_->lblSize->setEnabled(on);
}

bool frmForm::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        ui_->cmdAddItem->setDefault(true);
    else if (event->type() == QEvent::FocusOut)
        ui_->cmdApply->setDefault(true);
    return TagDialog::eventFilter(watched, event);
}
