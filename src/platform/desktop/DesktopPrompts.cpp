#include "platform/desktop/DesktopPrompts.h"

#include "platform/desktop/BoxWidth.h"
#include "platform/desktop/FileFilters.h"
#include "platform/desktop/SideBar.h"
#include "platform/values/Path.h"

#include <algorithm>
#include <chrono>
#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>
#include <QUrl>
#include <utility>

namespace {

constexpr int PanelSide = 200;
constexpr int InputBoxWidth = 320;
constexpr int CustomColorCount = 16;
/// A folder on a disk answers in a moment; one on a share that is gone, never.
constexpr std::chrono::milliseconds patienceWithFolders(100);

/// A message box. Where it offers no way out, neither Esc nor the window's close button may pick an answer.
class Box final : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

    bool mustAnswer = false;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (mustAnswer && event->matches(QKeySequence::Cancel))
            return;
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (mustAnswer)
            event->ignore();
        else
            QMessageBox::closeEvent(event);
    }
};

QMessageBox::StandardButtons Standard(MsgButtons buttons) {
    switch (buttons) {
    case MsgButtons::OKCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgButtons::YesNo:
    case MsgButtons::YesOrNoByDefault:
        return QMessageBox::Yes | QMessageBox::No;
    case MsgButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MsgButtons::OK:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton ByDefault(MsgButtons buttons) {
    if (buttons == MsgButtons::YesOrNoByDefault)
        return QMessageBox::No;
    return buttons == MsgButtons::OK || buttons == MsgButtons::OKCancel ? QMessageBox::Ok : QMessageBox::Yes;
}

QMessageBox::Icon Standard(MsgIcon icon) {
    switch (icon) {
    case MsgIcon::Critical:
        return QMessageBox::Critical;
    case MsgIcon::Question:
        return QMessageBox::Question;
    case MsgIcon::Exclamation:
        return QMessageBox::Warning;
    case MsgIcon::Information:
        return QMessageBox::Information;
    case MsgIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

MsgAnswer Answer(int button) {
    switch (button) {
    case QMessageBox::Ok:
        return MsgAnswer::OK;
    case QMessageBox::Yes:
        return MsgAnswer::Yes;
    case QMessageBox::No:
        return MsgAnswer::No;
    default:
        return MsgAnswer::Cancel;
    }
}

/// A panel that a dialog borrows; going out of scope gives it back to the parent it had.
class BorrowedPanel {
  public:
    BorrowedPanel(QFileDialog& dialog, QWidget& panel)
        : panel_(&panel), parent_(panel.parentWidget()), wasVisible_(panel.isVisible()) {
        auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
        if (!grid)
            return;
        panel.setFixedSize(PanelSide, PanelSide);
        // Qt's own dialog has its look-in line in row 0, the file list in row 1 and the name fields below.
        grid->addWidget(&panel, 1, grid->columnCount(), Qt::AlignTop);
        panel.show();
        // What the panel takes must not be taken from the file list.
        dialog.resize(dialog.width() + PanelSide, dialog.height());
    }
    ~BorrowedPanel() {
        if (!panel_)
            return;
        panel_->setParent(parent_);
        panel_->setVisible(wasVisible_ && parent_);
    }
    BorrowedPanel(const BorrowedPanel&) = delete;
    BorrowedPanel& operator=(const BorrowedPanel&) = delete;

  private:
    QPointer<QWidget> panel_;
    QPointer<QWidget> parent_;
    bool wasVisible_;
};

void SetUpFilters(QFileDialog& dialog, const FileRequest& request) {
    const QStringList filters = NameFilters(request.filter);
    if (filters.isEmpty())
        return;
    dialog.setNameFilters(filters);
    const qsizetype index = std::clamp<qsizetype>(request.filterIndex, 1, filters.size());
    dialog.selectNameFilter(filters[index - 1]);
}

/// Several names typed in quotes. Qt gives those that it finds selected in its list, so that one which does
/// not exist would be lost beside one that does.
QStringList QuotedFiles(const QFileDialog& dialog) {
    static const QRegularExpression quoted(QStringLiteral("\\A\\s*+(?:\"[^\"]++\"\\s*+)++\\z"));
    const auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (!field || !quoted.match(field->text()).hasMatch())
        return {};
    const QStringList parts = field->text().split(u'"');
    QStringList files;
    for (qsizetype i = 1; i < parts.size(); i += 2) {
        const QString file = QDir::cleanPath(dialog.directory().absoluteFilePath(parts[i]));
        if (!QFileInfo(file).isDir())
            files += file;
    }
    return files;
}

/// Typed names may lie in several folders: the answer's folder is one that all of them are in or below.
FileAnswer AnswerOf(const QFileDialog& dialog) {
    const QStringList quoted = QuotedFiles(dialog);
    QStringList paths;
    for (const QString& file : quoted.isEmpty() ? dialog.selectedFiles() : quoted)
        paths += QDir::toNativeSeparators(file);
    FileAnswer answer;
    if (!paths.isEmpty())
        answer.folder = Path::Folder(paths.first());
    for (const QString& path : std::as_const(paths))
        while (!path.startsWith(answer.folder))
            answer.folder = Path::Folder(answer.folder.chopped(1));
    for (const QString& path : std::as_const(paths))
        answer.names += path.sliced(answer.folder.size());
    return answer;
}

/// Qt's own dialog gives several files only where each exists, and one that does not only where it gives one.
/// So it is told to give one, and its lists to let several be selected. A dialog of the desktop's own, which
/// has no such lists, goes by its own rules.
void LetSeveralBeNamed(QFileDialog& dialog) {
    const auto lists = {dialog.findChild<QAbstractItemView*>(QStringLiteral("listView")),
                        dialog.findChild<QAbstractItemView*>(QStringLiteral("treeView"))};
    const bool hasLists = std::ranges::all_of(lists, [](auto* list) { return list != nullptr; });
    dialog.setFileMode(hasLists ? QFileDialog::AnyFile : QFileDialog::ExistingFiles);
    for (QAbstractItemView* list : lists)
        if (list)
            list->setSelectionMode(QAbstractItemView::ExtendedSelection);
}

} // namespace

MsgAnswer DesktopPrompts::MsgBox(QWidget* owner, const QString& text, MsgButtons buttons, MsgIcon icon,
                                 const QString& title) {
    const Asker asker(owner, lastAsker_);
    Box box(asker.Window());
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    // A lone carriage return ends a line too.
    box.setText(QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n'));
    box.setIcon(Standard(icon));
    box.setStandardButtons(Standard(buttons));
    box.setDefaultButton(ByDefault(buttons));
    if (Wide())
        WidenToTitle(box);
    box.mustAnswer = buttons == MsgButtons::YesNo;
    return Answer(box.exec());
}

QString DesktopPrompts::InputBox(QWidget* owner, const QString& prompt, const QString& title,
                                 const QString& standard) {
    const Asker asker(owner, lastAsker_);
    QInputDialog dialog(asker.Window());
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setWindowTitle(title);
    dialog.setLabelText(QString(prompt).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    dialog.setTextValue(standard);
    dialog.setMinimumWidth(InputBoxWidth);
    // The dialog takes its size from its layout alone.
    if (auto* field = dialog.findChild<QLineEdit*>(); field && Wide())
        field->setMinimumWidth(std::max({InputBoxWidth, LineWidth(dialog), TitleWidth(title, dialog)}));
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

std::optional<ColorNumber> DesktopPrompts::ChooseColor(QWidget* owner, QByteArray& customColors) {
    customColors.resize(4 * CustomColorCount, '\0');
    const auto part = [&](int index) { return static_cast<unsigned char>(customColors[index]); };
    for (int i = 0; i < std::min(CustomColorCount, QColorDialog::customCount()); ++i)
        QColorDialog::setCustomColor(i, QColor(part(4 * i), part(4 * i + 1), part(4 * i + 2)));
    const Asker asker(owner, lastAsker_);
    QColorDialog dialog(Qt::black, asker.Window());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    for (int i = 0; i < std::min(CustomColorCount, QColorDialog::customCount()); ++i) {
        const QColor color = QColorDialog::customColor(i);
        customColors[4 * i] = static_cast<char>(color.red());
        customColors[4 * i + 1] = static_cast<char>(color.green());
        customColors[4 * i + 2] = static_cast<char>(color.blue());
        customColors[4 * i + 3] = '\0';
    }
    return FromQColor(dialog.selectedColor());
}

FileAnswer DesktopPrompts::Run(QFileDialog& dialog, const FileRequest& request) {
    // The names of the filters tell their patterns already. (Asked for first: setting filters looks at it.)
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setOption(QFileDialog::DontUseNativeDialog, request.panel != nullptr);
    if (!request.folder.isEmpty())
        dialog.setDirectory(request.folder);
    SetUpFilters(dialog, request);
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    if (request.selectionChanged)
        QObject::connect(&dialog, &QFileDialog::currentChanged, &dialog, [&request](const QString& path) {
            if (!path.isEmpty())
                request.selectionChanged(path);
        });
    std::optional<LentSideBar> sideBar;
    if (folders)
        sideBar.emplace(dialog, ExistingFolders(folders(), patienceWithFolders));
    std::optional<WideColumns> columns;
    if (Wide())
        columns.emplace(dialog, request.panel ? PanelSide : 0);
    std::optional<BorrowedPanel> panel;
    if (request.panel)
        panel.emplace(dialog, *request.panel);
    return dialog.exec() == QDialog::Accepted ? AnswerOf(dialog) : FileAnswer();
}

FileAnswer DesktopPrompts::OpenFile(QWidget* owner, const FileRequest& request) {
    const Asker asker(owner, lastAsker_);
    QFileDialog dialog(asker.Window());
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    if (request.multiSelect && request.mustExist)
        dialog.setFileMode(QFileDialog::ExistingFiles);
    else if (request.multiSelect)
        LetSeveralBeNamed(dialog);
    else
        dialog.setFileMode(request.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    return Run(dialog, request);
}

FileAnswer DesktopPrompts::SaveFile(QWidget* owner, const FileRequest& request) {
    const Asker asker(owner, lastAsker_);
    QFileDialog dialog(asker.Window());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // Whether to overwrite is the program's own question.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setDefaultSuffix(request.defaultExtension);
    return Run(dialog, request);
}

void DesktopPrompts::Beep() {
    QApplication::beep();
}
