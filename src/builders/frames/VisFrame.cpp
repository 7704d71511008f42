#include "builders/frames/VisFrame.h"

#include "builders/frames/FrameButton.h"
#include "builders/frames/FrameResult.h"
#include "builders/frames/FrameTags.h"
#include "builders/frames/frmFrame.h"
#include "dialogs/FormFields.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "ui_VisFrame.h"

#include <algorithm>
#include <QPointer>
#include <utility>

namespace {

constexpr int LargestBorder = 200;
constexpr int BlinkInterval = 2000;

/// Hidden, it keeps its place: the form does not jump when it comes.
void HideInPlace(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
    widget->hide();
}

} // namespace

VisFrame::VisFrame(Frame& frame) : TagDialog(frame), ui_(std::make_unique<Ui::VisFrame>()), Timer1_(this) {
    ui_->setupUi(this);
    Wire(*ui_->cmdOK, *ui_->cmdCancel);
    for (int size = 0; size <= LargestBorder; ++size)
        ui_->cboBorder->addItem(QString::number(size));
    PrepareComboBoxes(*this);
    const QRect page = ToPixels(PageShape);
    ui_->Shape1->setGeometry(page);
    ui_->page->setFixedSize(page.left() + page.width() + page.left(),
                            page.top() + page.height() + page.top());
    txtSizes_ = {ui_->txtSizes_0, ui_->txtSizes_1, ui_->txtSizes_2,
                 ui_->txtSizes_3, ui_->txtSizes_4, ui_->txtSizes_5};
    for (QLineEdit* size : txtSizes_)
        HideInPlace(size);
    HideInPlace(ui_->lblClick);
    ui_->Shape1->setBackgroundRole(QPalette::Base);
    ui_->cmdFrame_0->hide();
    AddFrame(ui_->cmdFrame_0);
    // The way into this form: nothing else counts before the page is split.
    ui_->cmdAcross->setFocus();
    Timer1_.setObjectName(QStringLiteral("Timer1"));
    Timer1_.setInterval(BlinkInterval);
    connect(&Timer1_, &QTimer::timeout, this, &VisFrame::Timer1_Timer);
    connect(ui_->cmdAcross, &QPushButton::clicked, this, &VisFrame::cmdAcross_Click);
    connect(ui_->cmdUpDown, &QPushButton::clicked, this, &VisFrame::cmdUpDown_Click);
}

VisFrame::~VisFrame() = default;

void VisFrame::cmdAcross_Click() {
    Split(FrameDirection::Across);
}

void VisFrame::cmdUpDown_Click() {
    Split(FrameDirection::Up);
}

void VisFrame::Split(FrameDirection direction) {
    direction_ = direction;
    for (QLineEdit* size : txtSizes_) {
        size->clear();
        size->hide();
    }
    const std::optional<int> count = AskCount(direction);
    if (!count || *count < 1)
        return;
    ShowFrames(*count);
    ShowSizes(*count);
    Timer1_.start();
}

std::optional<int> VisFrame::AskCount(FrameDirection direction) {
    // The program may end while it asks, and takes the form along.
    const QPointer<VisFrame> form(this);
    Frame& frame = frame_;
    const auto gone = [&form, &frame] { return !form || frame.LoadedForms().Find<VisFrame>() != form; };
    for (;;) {
        const int count =
            FrameCount(frame.Ask().InputBox(this, QStringLiteral("Enter number of Frames."), ProgramTitle));
        if (gone())
            return std::nullopt;
        const QString refusal = FrameCountRefusal(direction, count);
        if (refusal.isEmpty())
            return count;
        frame.Ask().MsgBox(this, refusal, MsgButtons::OK, MsgIcon::None, ProgramTitle);
        if (gone())
            return std::nullopt;
    }
}

void VisFrame::ShowFrames(int count) {
    const std::vector<TwipsRect> places = SplitPage(direction_, count);
    for (int i = 0; i < count; ++i) {
        FrameButton& button = cmdFrame(i);
        button.Place(places[static_cast<size_t>(i)]);
        button.SetCaption(QStringLiteral("Frame %1").arg(i + 1));
        button.show();
    }
}

void VisFrame::ShowSizes(int count) {
    // There may be more frames than boxes.
    for (int i = 0; i < std::min(count, static_cast<int>(txtSizes_.size())); ++i) {
        QLineEdit* size = txtSizes_[static_cast<size_t>(i)];
        size->setText(FrameSizeText(count));
        size->show();
    }
}

FrameButton& VisFrame::cmdFrame(int index) {
    while (static_cast<int>(cmdFrame_.size()) <= index) {
        auto* button = new FrameButton(ui_->page);
        button->setObjectName(QStringLiteral("cmdFrame_%1").arg(cmdFrame_.size()));
        setTabOrder(cmdFrame_.back(), button);
        AddFrame(button);
    }
    return *cmdFrame_[static_cast<size_t>(index)];
}

void VisFrame::AddFrame(FrameButton* button) {
    const int index = static_cast<int>(cmdFrame_.size());
    cmdFrame_.push_back(button);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdFrame_Click(index); });
}

void VisFrame::cmdFrame_Click(int index) {
    Forms& forms = frame_.LoadedForms();
    auto& form = forms.Show<frmFrame>(frame_, this);
    connect(&forms, &Forms::Unloading, &form, [this, index, &form](const QWidget* unloaded) {
        if (unloaded == &form)
            TakeResult(index);
    });
}

void VisFrame::TakeResult(int index) {
    auto& result = frame_.State<FrameResult>();
    if (!result.FrameTagResult.isEmpty())
        cmdFrame(index).Tag = std::exchange(result.FrameTagResult, QString());
    if (!result.FrameNameResult.isEmpty())
        cmdFrame(index).SetCaption(std::exchange(result.FrameNameResult, QString()));
}

void VisFrame::Timer1_Timer() {
    ui_->lblClick->setVisible(!ui_->lblClick->isVisible());
}

void VisFrame::cmdOK_Click() {
    QStringList sizes;
    for (const QLineEdit* size : txtSizes_)
        sizes << FieldText(size);
    // As many frames are written as there are size boxes, shown or not.
    QStringList frames;
    for (size_t i = 0; i < std::min(cmdFrame_.size(), txtSizes_.size()); ++i)
        frames << cmdFrame_[i]->Tag;
    const auto [open, close] = FramesetTag({.direction = direction_,
                                            .sizes = sizes,
                                            .percent = ui_->Check1->isChecked(),
                                            .border = FieldText(ui_->cboBorder),
                                            .frames = frames},
                                           TagCaseOf(frame_.Store()));
    Insert(open, close);
    Unload();
}
