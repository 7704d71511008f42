// What a document window draws beside its text, by the settings.
#include "app/RealFrame.h"
#include "app/window/StatusPanels.h"
#include "editor/aids/PartnerMark.h"
#include "editor/aids/ZoomKeys.h"

#include <Qsci/qsciscintillabase.h>

namespace {

class DocumentAids : public FrameTest {
  protected:
    frmTemplate& New() {
        if (!run) {
            run = std::make_unique<ProgramRun>();
            EXPECT_TRUE(run->Start());
        }
        return run->New();
    }
    bool HasCurrentLine() { return Box().SendScintilla(QsciScintillaBase::SCI_GETCARETLINEVISIBLE) != 0; }
    bool HasLineNumbers() { return Box().SendScintilla(QsciScintillaBase::SCI_GETMARGINWIDTHN, 0UL) > 0; }
    template <typename Aid> bool Has() { return run->Active().findChild<Aid*>() != nullptr; }
    RichTextBox& Box() { return run->Active().txtInput(); }
    void Press(int key) { QTest::keyClick(&Box(), Qt::Key(key), Qt::ControlModifier); }

    std::unique_ptr<ProgramRun> run;
};

} // namespace

TEST_F(DocumentAids, AFreshUserHasAllButLineNumbers) {
    New();
    EXPECT_TRUE(HasCurrentLine());
    EXPECT_FALSE(HasLineNumbers());
    EXPECT_TRUE(Has<PartnerMark>());
    EXPECT_TRUE(Has<ZoomKeys>());
}

TEST_F(DocumentAids, WithTheirSettingsOffNothingOfThemExists) {
    for (const SettingsKey& key : {Keys::ShowCurrentLine, Keys::ShowPartnerTag, Keys::UseZoom})
        Write(key, "0");
    Write(Keys::Zoom, "200");
    New();
    EXPECT_FALSE(HasCurrentLine());
    EXPECT_FALSE(Has<PartnerMark>());
    EXPECT_FALSE(Has<ZoomKeys>());
    EXPECT_EQ(Box().Zoom(), 100) << "what was stored while it was on";
    Press(Qt::Key_Equal);
    EXPECT_EQ(Box().Zoom(), 100);
}

TEST_F(DocumentAids, LineNumbersComeByTheirSetting) {
    Write(Keys::ShowLineNumbers, "1");
    New();
    EXPECT_TRUE(HasLineNumbers());
}

TEST_F(DocumentAids, ZoomIsRememberedForTheNextRun) {
    New();
    Press(Qt::Key_Equal);
    Press(Qt::Key_Equal);
    EXPECT_EQ(run->frame->Panels().Panel3(), QStringLiteral("Zoom 120 %"));
    EXPECT_FALSE(run->Active().Modified());
    EXPECT_EQ(Read(Keys::EditorFontSize), QStringLiteral("10"));
    run->Stop();
    run.reset();
    New();
    EXPECT_EQ(Box().Zoom(), 120);
    EXPECT_EQ(Box().Font().pointSize(), 10);
    EXPECT_EQ(Read(Keys::EditorFontSize), QStringLiteral("10"));
}

TEST_F(DocumentAids, MarksComeInADocumentThatIsOpened) {
    const QString path = MakeFile(QStringLiteral("a.htm"), "<HTML>\r\n<B>x</B>\r\n</HTML>\r\n");
    New();
    run->frame->OpenDocumentFile(path);
    Box().SetSelStart(9);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Box().Aids().IsMarked(12); }));
    EXPECT_TRUE(Box().Aids().IsMarked(8));
    EXPECT_FALSE(run->Active().Modified());
    EXPECT_EQ(Box().Send(RichTextBox::Message::CanUndo), 0);
}

TEST_F(DocumentAids, ADocumentMayGoWhileItsTagIsLookedFor) {
    New();
    Box().SetText(QStringLiteral("<b>") + QString(3'000'000, u'x') + QStringLiteral("</b>"));
    Box().SetSelStart(1);
    auto* mark = run->Active().findChild<PartnerMark*>();
    EXPECT_TRUE(mark->Busy());
    run->Active().SetModified(false);
    EXPECT_TRUE(run->Active().Unload());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    EXPECT_EQ(run->frame->ActiveForm(), nullptr);
}
