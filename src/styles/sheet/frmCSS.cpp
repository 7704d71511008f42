#include "styles/sheet/frmCSS.h"

#include "dialogs/Icons.h"
#include "dialogs/ListKeys.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "styles/sheet/ElementList.h"
#include "styles/sheet/PropertyLists.h"
#include "styles/sheet/Rule.h"
#include "styles/sheet/SheetFile.h"
#include "styles/sheet/SheetInsertion.h"
#include "ui_frmCSS.h"

#include <QKeyEvent>
#include <QResizeEvent>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QToolButton>

namespace {

constexpr QSize comfortable(640, 500);
/// What a window's border and title take of the screen, and a little more.
constexpr QSize border(24, 56);

} // namespace

frmCSS::frmCSS(Frame& frame)
    : QDialog(frame.Window()), frame_(frame), preview_(frame), ui_(std::make_unique<Ui::frmCSS>()) {
    ui_->setupUi(this);
    layout()->setMenuBar(ui_->menus);
    elements_ = new ElementList(frame_, *ui_->lstObject);
    properties_ = new PropertyLists(frame_, *ui_->lstProperty, *ui_->lstValue, *ui_->lstFont);
    WireLists();
    WireToolbar();
    connect(ui_->cmdAddSheet, &QPushButton::clicked, this, &frmCSS::cmdAddSheet_Click);
    connect(ui_->mnuClearAll, &QAction::triggered, this, &frmCSS::mnuClearAll_Click);
    Form_Load();
}

frmCSS::~frmCSS() = default;

void frmCSS::WireLists() {
    connect(elements_, &ElementList::Changed, this, &frmCSS::DisplayCSS);
    connect(properties_, &PropertyLists::Picked, this, &frmCSS::AddDeclaration);
    connect(ui_->lstValue, &ListView::Click, this, &frmCSS::DisplayCSS);
    connect(ui_->ListCSS, &QListWidget::itemDoubleClicked, this, &frmCSS::ListCSS_DblClick);
    OnListKeys(ui_->ListCSS, {Qt::Key_Delete, Qt::Key_Return, Qt::Key_Enter}, [this] { ListCSS_DblClick(); });
    // The heads of the lists tell these keys.
    connect(new QShortcut(Qt::ALT | Qt::Key_E, this), &QShortcut::activated, ui_->lstObject,
            [this] { ui_->lstObject->setFocus(Qt::ShortcutFocusReason); });
    connect(new QShortcut(Qt::ALT | Qt::Key_P, this), &QShortcut::activated, ui_->lstProperty,
            [this] { ui_->lstProperty->setFocus(Qt::ShortcutFocusReason); });
    connect(new QShortcut(Qt::ALT | Qt::Key_V, this), &QShortcut::activated, properties_,
            &PropertyLists::FocusValues);
}

void frmCSS::WireToolbar() {
    connect(ui_->tb_Save, &QAction::triggered, this, &frmCSS::Save_Click);
    connect(ui_->tb_Header, &QAction::triggered, this, &frmCSS::Header_Click);
    connect(ui_->tb_Location, &QAction::triggered, this, &frmCSS::Location_Click);
    connect(ui_->tb_Import, &QAction::triggered, this, &frmCSS::Import_Click);
    connect(ui_->tb_Add, &QAction::triggered, elements_, &ElementList::Add);
    connect(ui_->tb_Rename, &QAction::triggered, elements_, &ElementList::Rename);
    connect(ui_->tb_Remove, &QAction::triggered, elements_, &ElementList::Remove);
    ui_->tb_Save->setIcon(LineIcon(QStringLiteral("save")));
    ui_->tb_Header->setIcon(LineIcon(QStringLiteral("sheet-head")));
    ui_->tb_Location->setIcon(LineIcon(QStringLiteral("sheet-caret")));
    ui_->tb_Import->setIcon(LineIcon(QStringLiteral("link")));
    ui_->tb_Add->setIcon(LineIcon(QStringLiteral("element-add")));
    ui_->tb_Rename->setIcon(LineIcon(QStringLiteral("element-rename")));
    ui_->tb_Remove->setIcon(LineIcon(QStringLiteral("delete")));
    // What shows the buttons that a narrow form has no room for.
    if (auto* more = ui_->Toolbar1->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"))) {
        more->setAccessibleName(tr("More buttons"));
        more->setIcon(LineIcon(QStringLiteral("more")));
    }
    // Behind the last field comes the first button, and the lists behind the last one.
    QWidget* before = ui_->txtCSS;
    for (QAction* action : ui_->Toolbar1->actions()) {
        QWidget* button = ui_->Toolbar1->widgetForAction(action);
        button->setObjectName(action->objectName());
        button->setAccessibleName(action->toolTip());
        LetKeysReach(*button);
        setTabOrder(before, button);
        before = button;
    }
}

void frmCSS::LetKeysReach(QWidget& button) {
    button.setFocusPolicy(Qt::TabFocus);
    button.installEventFilter(this);
}

bool frmCSS::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            qobject_cast<QToolButton*>(watched)->click();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

bool frmCSS::event(QEvent* event) {
    // Form_Activate. Behind the event: the engine's first view makes the system's window anew, which the
    // toolkit goes on to use once it has told that it is active.
    if (event->type() == QEvent::WindowActivate)
        QMetaObject::invokeMethod(this, &frmCSS::DisplayCSS, Qt::QueuedConnection);
    return QDialog::event(event);
}

void frmCSS::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    QToolBar& toolbar = *ui_->Toolbar1;
    if (toolbar.toolButtonStyle() == Qt::ToolButtonTextBesideIcon)
        widthWithIcons_ = toolbar.sizeHint().width();
    toolbar.setToolButtonStyle(toolbar.width() < widthWithIcons_ ? Qt::ToolButtonTextOnly
                                                                 : Qt::ToolButtonTextBesideIcon);
}

void frmCSS::reject() {
    Unload();
}

void frmCSS::Unload() {
    frame_.LoadedForms().Unload(*this);
}

void frmCSS::Form_Load() {
    if (QWidget* browser = preview_.MakeBrowser(*this))
        ui_->rows->addWidget(browser, 1);
    PlaceOnScreen();
    ui_->lstObject->setFocus();
}

// In the middle of the screen, and higher by a preview where there is one.
void frmCSS::PlaceOnScreen() {
    const QRect screen = frame_.Window()->screen()->availableGeometry();
    QSize size = comfortable;
    if (const auto* browser = findChild<QWidget*>(QStringLiteral("WebBrowser1")))
        size.rheight() += browser->minimumHeight();
    size = size.boundedTo(screen.size() - border).expandedTo(minimumSizeHint());
    setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, screen));
}

QStringList frmCSS::Declarations() const {
    QStringList declarations;
    for (int row = 0; row < ui_->ListCSS->count(); ++row)
        declarations << ui_->ListCSS->item(row)->text();
    return declarations;
}

QString frmCSS::BuiltRule() const {
    return Rule(ui_->lstObject->SelectedText(), Declarations());
}

void frmCSS::DisplayCSS() {
    preview_.Show(ui_->lstObject->SelectedText(), BuiltRule());
}

void frmCSS::AddDeclaration(const QString& property, const QString& value) {
    ui_->ListCSS->addItem(Declaration(property, value));
    ui_->ListCSS->scrollToBottom();
    DisplayCSS();
}

void frmCSS::ListCSS_DblClick() {
    delete ui_->ListCSS->takeItem(ui_->ListCSS->currentRow());
    DisplayCSS();
}

// The preview shows the style on, until something else is built.
void frmCSS::cmdAddSheet_Click() {
    ui_->txtCSS->AppendLine(BuiltRule());
    ui_->ListCSS->clear();
}

void frmCSS::mnuClearAll_Click() {
    ui_->ListCSS->clear();
    ui_->txtCSS->clear();
    DisplayCSS();
}

void frmCSS::Save_Click() {
    if (SaveToExternalFile(frame_, this, ui_->txtCSS->Text()))
        Unload();
}

void frmCSS::Header_Click() {
    AddToHeader(frame_, ui_->txtCSS->Text());
    Unload();
}

void frmCSS::Location_Click() {
    AddToLocation(frame_, ui_->txtCSS->Text());
    Unload();
}

void frmCSS::Import_Click() {
    ImportFile(frame_, this);
}
