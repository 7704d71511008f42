#include "app/help/frmHelp.h"

#include "app/help/HelpBook.h"
#include "app/help/HelpTopic.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "ui_frmHelp.h"

#include <array>
#include <QKeyEvent>
#include <QPrintDialog>
#include <QPrinter>
#include <QShortcut>
#include <QStyle>
#include <QTabBar>
#include <QTreeWidgetItemIterator>

using namespace Qt::StringLiterals;

namespace {

constexpr int PageRole = Qt::UserRole;

void Add(QTreeWidgetItem& parent, const std::vector<HelpEntry>& entries) {
    for (const HelpEntry& entry : entries) {
        auto* item = new QTreeWidgetItem(&parent, {entry.name});
        item->setData(0, PageRole, entry.page);
        Add(*item, entry.children);
    }
}

QListWidgetItem* Item(const QString& text, const QString& page) {
    auto* item = new QListWidgetItem(text);
    item->setData(PageRole, page);
    return item;
}

} // namespace

frmHelp::frmHelp(Frame& frame, std::shared_ptr<const HelpBook> book, QWidget* owner)
    : QWidget(owner, Qt::Window), ui_(std::make_unique<Ui::frmHelp>()), frame_(frame),
      book_(std::move(book)) {
    ui_->setupUi(this);
    ui_->Page->SetBook(*book_);
    FillContents();
    FillIndex();
    WireTabs();
    WirePages();
    WireButtons();
    ui_->Splitter->setStretchFactor(1, 1);
    ui_->Splitter->setSizes({270, 670});
}

frmHelp::~frmHelp() = default;

void frmHelp::FillContents() {
    Add(*ui_->Contents->invisibleRootItem(), book_->Contents());
    ui_->Contents->expandToDepth(0);
}

void frmHelp::FillIndex() {
    for (const HelpEntry& entry : book_->Keywords())
        ui_->Keywords->addItem(Item(entry.name, entry.page));
}

void frmHelp::WireTabs() {
    const QTabBar* strip = ui_->Tabs->tabBar();
    connect(ui_->Tabs, &QTabWidget::currentChanged, this, [this, strip](int index) {
        // The arrow keys go from tab to tab as long as they are in the strip.
        if (focusWidget() == strip)
            return;
        const std::array<QWidget*, 3> first = {ui_->Contents, ui_->txtKeyword, ui_->txtSearch};
        first.at(static_cast<size_t>(index))->setFocus();
    });
}

void frmHelp::WirePages() {
    const auto showItem = [this](const QTreeWidgetItem* item) {
        if (item && !item->data(0, PageRole).toString().isEmpty())
            ShowPage(item->data(0, PageRole).toString());
    };
    connect(ui_->Contents, &QTreeWidget::currentItemChanged, this, showItem);
    connect(ui_->Contents, &QTreeWidget::itemClicked, this, showItem);
    const auto show = [this](const QListWidgetItem* item) {
        if (item)
            ShowPage(item->data(PageRole).toString());
    };
    for (QListWidget* list : {ui_->Keywords, ui_->Hits}) {
        connect(list, &QListWidget::itemClicked, this, show);
        connect(list, &QListWidget::itemActivated, this, show);
    }
    connect(ui_->txtKeyword, &QLineEdit::textChanged, this, &frmHelp::txtKeyword_Change);
    connect(ui_->txtKeyword, &QLineEdit::returnPressed, this,
            [this, show] { show(ui_->Keywords->currentItem()); });
    connect(ui_->txtSearch, &QLineEdit::returnPressed, this, &frmHelp::cmdSearch_Click);
    connect(ui_->cmdSearch, &QPushButton::clicked, this, &frmHelp::cmdSearch_Click);
    // Only then the browser knows where it is.
    connect(ui_->Page, &QTextBrowser::historyChanged, this, &frmHelp::PageChanged);
}

void frmHelp::WireButtons() {
    HelpBrowser* page = ui_->Page;
    connect(ui_->cmdBack, &QToolButton::clicked, page, &QTextBrowser::backward);
    connect(ui_->cmdForward, &QToolButton::clicked, page, &QTextBrowser::forward);
    connect(page, &QTextBrowser::backwardAvailable, ui_->cmdBack, &QWidget::setEnabled);
    connect(page, &QTextBrowser::forwardAvailable, ui_->cmdForward, &QWidget::setEnabled);
    connect(ui_->cmdHome, &QToolButton::clicked, this, [this] { ShowPage(FirstHelpPage); });
    connect(ui_->cmdZoomIn, &QToolButton::clicked, page, [page] { page->ZoomBy(1); });
    connect(ui_->cmdZoomOut, &QToolButton::clicked, page, [page] { page->ZoomBy(-1); });
    connect(new QShortcut(Qt::CTRL | Qt::Key_0, this), &QShortcut::activated, page, &HelpBrowser::ResetZoom);
    connect(new QShortcut(Qt::CTRL | Qt::Key_Equal, this), &QShortcut::activated, page,
            [page] { page->ZoomBy(1); });
    connect(ui_->cmdPrint, &QToolButton::clicked, this, &frmHelp::cmdPrint_Click);
}

void frmHelp::ShowPage(const QString& page) {
    ui_->Page->ShowPage(page);
}

void frmHelp::PageChanged() {
    const QString title = ui_->Page->documentTitle();
    setWindowTitle(title.isEmpty() ? tr("The Tarnwick Help") : tr("%1 - The Tarnwick Help").arg(title));
    // The tree shows where one is, but nobody clicked there.
    const QSignalBlocker quiet(ui_->Contents);
    for (QTreeWidgetItemIterator item(ui_->Contents); *item; ++item)
        if ((*item)->data(0, PageRole).toString() == ui_->Page->Page())
            return ui_->Contents->setCurrentItem(*item);
    ui_->Contents->setCurrentItem(nullptr);
}

void frmHelp::txtKeyword_Change(const QString& start) {
    for (int row = 0; row < ui_->Keywords->count(); ++row)
        if (ui_->Keywords->item(row)->text().startsWith(start, Qt::CaseInsensitive))
            return ui_->Keywords->setCurrentRow(row);
}

void frmHelp::cmdSearch_Click() {
    ui_->Hits->clear();
    const std::vector<HelpHit> hits = book_->Search(ui_->txtSearch->text());
    for (const HelpHit& hit : hits)
        ui_->Hits->addItem(Item(hit.title, hit.page));
    ui_->lblHits->setText(hits.empty() ? tr("No page holds these words.")
                                       : tr("%n page(s)", nullptr, int(hits.size())));
    if (hits.empty())
        return;
    ui_->Hits->setCurrentRow(0);
    ui_->Hits->setFocus();
    ShowPage(hits.front().page);
}

void frmHelp::cmdPrint_Click() {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        ui_->Page->print(&printer);
}

void frmHelp::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void frmHelp::closeEvent(QCloseEvent* event) {
    event->accept();
    if (parentWidget())
        deleteLater();
    else
        frame_.LoadedForms().Unload(*this);
}
