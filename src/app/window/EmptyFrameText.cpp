#include "app/window/EmptyFrameText.h"

#include "app/documents/DocumentName.h"
#include "app/window/LinkButton.h"
#include "platform/values/Path.h"

#include <algorithm>
#include <cmath>
#include <QCoreApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 12;
constexpr int widest = 620;
// Above the second heading.
constexpr int space = 14;
// Where not all lines have room.
constexpr int tightMargin = 1;
constexpr int tightSpace = 4;

/// What light reaches the eye, from 0 to 1, as the guidelines on contrast count it.
double Luminance(const QColor& color) {
    const auto channel = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) +
           0.0722 * channel(color.blueF());
}

// On a grey of this luminance black and white are equally easy to read.
constexpr double middle = 0.179;

} // namespace

EmptyFrameText::EmptyFrameText(QMdiArea& area, std::function<void(const QString&)> run)
    : QWidget(area.parentWidget()), area_(area), run_(std::move(run)) {
    setObjectName(u"EmptyFrameText"_s);
    begin_ = AddHeading(tr("Begin"));
    AddCommand(u"tb_new"_s, tr("New page"), tr("with the tags that every page has"));
    AddCommand(u"mnuOpen"_s, tr("Open a page"), tr("Ctrl+O, or drop a file here"));
    AddCommand(u"mnuWizard"_s, tr("Webpage Wizard"), tr("asks what the page shall show and writes it"));
    AddCommand(u"mnuMainHelp"_s, tr("Help"), tr("F1: a first page in five minutes"));
    recent_ = AddHeading(tr("Recent files"));
}

QLabel* EmptyFrameText::AddHeading(const QString& text) {
    auto* heading = new QLabel(text, this);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    heading->setIndent(4);
    return heading;
}

LinkButton* EmptyFrameText::AddLink() {
    auto* link = new LinkButton(this);
    return link;
}

void EmptyFrameText::AddCommand(const QString& name, const QString& title, const QString& note) {
    LinkButton* link = AddLink();
    link->setObjectName(u"begin_"_s + name);
    link->SetTexts(title, note);
    connect(link, &LinkButton::clicked, this, [this, name] { run_(name); });
    commands_ << link;
}

void EmptyFrameText::SetFiles(const QStringList& paths) {
    if (paths == paths_)
        return;
    paths_ = paths;
    while (files_.size() < paths.size()) {
        LinkButton* link = AddLink();
        const qsizetype n = files_.size();
        link->setObjectName(u"recent_%1"_s.arg(n));
        connect(link, &LinkButton::clicked, this, [this, n] { Q_EMIT FileClicked(paths_.value(n)); });
        files_ << link;
    }
    for (qsizetype n = 0; n < paths.size(); ++n) {
        files_[n]->SetTexts(Path::FileName(paths[n]), FolderOf(paths[n]));
        files_[n]->setToolTip(paths[n].toHtmlEscaped());
    }
    Arrange();
}

void EmptyFrameText::TakeFocus() {
    commands_.first()->setFocus(Qt::TabFocusReason);
}

QList<QWidget*> EmptyFrameText::Lines() const {
    QList<QWidget*> lines = {begin_};
    for (LinkButton* link : commands_)
        lines << link;
    if (!paths_.isEmpty())
        lines << recent_;
    for (qsizetype n = 0; n < paths_.size(); ++n)
        lines << files_[n];
    return lines;
}

void EmptyFrameText::Arrange() {
    const QList<QWidget*> lines = Lines();
    const int room = std::min(width() - 2 * margin, widest);
    int block = 0;
    int total = 0;
    for (const QWidget* line : lines) {
        block = std::max(block, std::min(line->sizeHint().width(), room));
        total += line->sizeHint().height() + (line == recent_ ? space : 0);
    }
    const bool tight = total + 2 * margin > height();
    PlaceLines(QRect((width() - block) / 2, 0, block, height()), tight ? 0 : (height() - total) / 2, tight);
}

void EmptyFrameText::PlaceLines(QRect inside, int top, bool tight) {
    for (QWidget* line : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        line->hide();
    for (QWidget* line : Lines()) {
        top += line == recent_ ? (tight ? tightSpace : space) : 0;
        const int height = tight ? line->fontMetrics().height() + tightMargin : line->sizeHint().height();
        // A heading with nothing below it is left out as well.
        const int needed = line == recent_ ? 2 * height : height;
        if (top + needed > inside.height())
            return;
        line->setGeometry(inside.left(), top, inside.width(), height);
        line->show();
        top += height;
    }
}

// The area is painted darker than a window, and palettes have no text for that: it is black or white.
void EmptyFrameText::TakeColors() {
    const bool light = Luminance(area_.background().color()) > middle;
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, light ? Qt::black : Qt::white);
    setPalette(colors);
}

void EmptyFrameText::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Arrange();
}

void EmptyFrameText::showEvent(QShowEvent* event) {
    TakeColors();
    QWidget::showEvent(event);
}

void EmptyFrameText::PassToArea(const QMouseEvent& event) {
    QMouseEvent passed(event.type(), area_.viewport()->mapFromGlobal(event.globalPosition()),
                       event.globalPosition(), event.button(), event.buttons(), event.modifiers());
    QCoreApplication::sendEvent(area_.viewport(), &passed);
}

void EmptyFrameText::mousePressEvent(QMouseEvent* event) {
    PassToArea(*event);
}

void EmptyFrameText::mouseReleaseEvent(QMouseEvent* event) {
    PassToArea(*event);
}

void EmptyFrameText::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        Arrange();
}
