// One act of the user on a document of the real frame, and what undo and redo make of it.
#include "app/Acts.h"

#include "editor/frame/Commands.h"
#include "editor/frame/Forms.h"

Written::Written(const RichTextBox& box) : text(box.Text()) {
    for (int i = 0; i < text.size(); ++i)
        colors.push_back(box.ColorAt(i));
}

void PrintTo(const Written& written, std::ostream* out) {
    PrintTo(written.text, out);
    for (std::size_t i = 0; i < written.colors.size(); ++i)
        if (i == 0 || written.colors[i] != written.colors[i - 1])
            *out << ' ' << i << ':' << written.colors[i];
}

ActsTest::ActsTest() : file(MakeFile(QStringLiteral("piece.htm"), "<I>piece</I>\r\n")) {
    Write(Keys::UseAutoFill, "1");
    EXPECT_TRUE(run.Start());
    run.New();
}

void ActsTest::Put(const QString& marked) {
    constexpr ColorNumber odd = 0x123456;
    QString text = marked;
    const auto caret = text.indexOf(u'|');
    text.remove(u'|');
    const auto start = text.indexOf(u'[');
    text.remove(u'[');
    const auto end = text.indexOf(u']');
    text.remove(u']');
    RichTextBox& box = Box();
    box.SetText(text);
    for (int at = 0; at < text.size(); at += 6) {
        box.SetSelStart(at);
        box.SetSelLength(3);
        box.SetSelColor(odd + at);
    }
    box.SetSelStart(static_cast<int>(start < 0 ? caret : start));
    if (start >= 0)
        box.SetSelLength(static_cast<int>(end - start));
    box.SetFocus();
}

void ActsTest::Run(const QString& command) {
    run.frame->Commands().Run(command);
}

void ActsTest::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&Box(), key, modifiers);
}

void ActsTest::Type(const QString& text) {
    QTest::sendKeyEvent(QTest::Click, &Box(), Qt::Key_unknown, text, Qt::NoModifier);
}

QWidget& ActsTest::Form(const char* name) {
    QWidget* form = run.frame->LoadedForms().Find(QString::fromLatin1(name));
    if (!form)
        qFatal("no form %s", name);
    return *form;
}

void ActsTest::Press(QWidget& form, const char* button) {
    auto* found = form.findChild<QAbstractButton*>(QString::fromLatin1(button));
    if (!found)
        qFatal("no button %s", button);
    found->click();
}

void ActsTest::Answer() {
    ScriptedPrompts& prompts = run.prompts;
    prompts.messageAnswers.assign(2, MsgAnswer::Yes);
    prompts.inputAnswers.assign(2, QStringLiteral("x y"));
    prompts.openAnswers.assign(1, ScriptedPrompts::Picked(file));
    prompts.colorAnswers.assign(1, 0x0000ff);
    prompts.saveAnswers.assign(1, ScriptedPrompts::Picked(TestFolder() + QStringLiteral("/saved.htm")));
}

void ActsTest::CloseForms() {
    Forms& forms = run.frame->LoadedForms();
    for (int i = forms.Count() - 1; i > 0; --i)
        if (!dynamic_cast<Document*>(forms.At(i)))
            forms.Unload(*forms.At(i));
}

void ActsTest::CloseAll() {
    CloseForms();
    while (Document* document = run.frame->ActiveForm()) {
        document->SetModified(false);
        document->Unload();
    }
}

bool ActsTest::ChangesInOneStep(const std::function<void()>& act) {
    RichTextBox& box = Box();
    box.EmptyUndoBuffer();
    const Written before(box);
    Answer();
    act();
    const Written after(box);
    if (after == before) {
        EXPECT_EQ(box.Send(RichTextBox::Message::CanUndo), 0) << "a step that changes nothing";
        return false;
    }
    box.Send(RichTextBox::Message::Undo);
    EXPECT_EQ(Written(box), before);
    EXPECT_EQ(box.Send(RichTextBox::Message::CanUndo), 0) << "more than one step";
    QTest::keyClick(&box, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Written(box), after);
    box.Send(RichTextBox::Message::Undo);
    EXPECT_EQ(Written(box), before);
    EXPECT_EQ(box.Send(RichTextBox::Message::CanUndo), 0) << "redo makes more than one step";
    return true;
}

void ActsTest::ExpectOneStep(const char* name, const std::function<void()>& act) {
    SCOPED_TRACE(name);
    EXPECT_TRUE(ChangesInOneStep(act)) << "nothing changed";
    CloseForms();
}
