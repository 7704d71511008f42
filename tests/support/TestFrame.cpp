// A frame without menus and strips, for tests of everything below the application.
#include "support/TestFrame.h"

#include "support/FreshUser.h"

#include <QVBoxLayout>

TestDocument::TestDocument(QWidget* parent) : QWidget(parent), input(new RecordingBox(this)) {
    input->setObjectName(QStringLiteral("txtInput"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(input);
    Timer1.setSingleShot(true);
    Timer1.setInterval(1150);
    connect(input, &RichTextBox::Change, this, [this] { modified = true; });
}

TestDocument::~TestDocument() = default;

bool TestDocument::Unload() {
    deleteLater();
    return true;
}

TestFrame::TestFrame() {
    FreshUser();
    settings = std::make_unique<Settings>();
    window = std::make_unique<QWidget>();
    window->resize(800, 600);
    window->show();
    forms = std::make_unique<Forms>();
    TestFrame::NewDocument();
}

TestFrame::~TestFrame() {
    // Documents and dialogs are the window's children: they go before the list that they leave.
    window.reset();
}

void TestFrame::NewDocument() {
    active = new TestDocument(window.get());
    active->setObjectName(QStringLiteral("frmTemplate"));
    active->setGeometry(0, 0, 800, 600);
    active->show();
    forms->Add(active);
    active->input->SetFocus();
}

void TestFrame::SetStatusPanel(const QString& text, bool) {
    statuses << text;
}

void TestFrame::SetText(const QString& text) {
    // A new text takes the colour at the caret.
    Box().SetSelColor(0);
    Box().SetText(text);
    Box().SetSelStart(static_cast<int>(text.size()));
    active->modified = false;
}

void TestFrame::SetMarked(QString marked) {
    const auto caret = static_cast<int>(marked.indexOf(u'|'));
    const auto start = static_cast<int>(marked.indexOf(u'['));
    const auto end = static_cast<int>(marked.indexOf(u']')) - 1;
    SetText(marked.remove(u'|').remove(u'[').remove(u']'));
    Box().SetSelStart(start >= 0 ? start : caret);
    if (start >= 0)
        Box().SetSelLength(end - start);
}

QString TestFrame::Marked() {
    QString text = Box().Text();
    const int start = Box().SelStart();
    if (const int length = Box().SelLength(); length > 0)
        return text.insert(start + length, u']').insert(start, u'[');
    return text.insert(start, u'|');
}

std::vector<std::pair<QString, int>> TestFrame::Colors() {
    std::vector<std::pair<QString, int>> stretches;
    const QString text = Box().Text();
    for (int i = 0; i < text.size(); ++i) {
        const int color = Box().ColorAt(i);
        if (stretches.empty() || stretches.back().second != color)
            stretches.emplace_back(QString(), color);
        stretches.back().first += text[i];
    }
    return stretches;
}

void TestFrame::CloseDocument() {
    delete active;
    active = nullptr;
}
