// Panel 3 tells of a document in UTF-8 that comes to the front.
#include "app/RealFrame.h"

#include <QLabel>

namespace {

using namespace Qt::StringLiterals;

class EncodingPanel : public FrameTest {
  protected:
    EncodingPanel() { EXPECT_TRUE(run.Start()); }
    void Open(const char* name, const QByteArray& bytes) {
        run.frame->OpenDocumentFile(MakeFile(QString::fromLatin1(name), bytes));
        QCoreApplication::processEvents();
    }
    QString Panel3() { return run.Find<QLabel>("Panel3").text(); }

    ProgramRun run;
};

TEST_F(EncodingPanel, TellsUntilSomethingElseIsTold) {
    Open("utf8.htm", "<p>\xC5\xBC");
    frmTemplate& utf8 = run.Active();
    EXPECT_EQ(Panel3(), u"UTF-8"_s);
    utf8.txtInput().SetSelStart(1);
    EXPECT_EQ(Panel3(), u"Line 1"_s);
    Open("1252.htm", "<p>\xE9");
    EXPECT_NE(Panel3(), u"UTF-8"_s);
    run.frame->ActivateDocument(utf8);
    QCoreApplication::processEvents();
    EXPECT_EQ(Panel3(), u"UTF-8"_s);
    run.frame->NewDocument();
    QCoreApplication::processEvents();
    EXPECT_EQ(Panel3(), u"Line 1"_s);
}

TEST_F(EncodingPanel, TellsWhenTheFrameComesToTheFront) {
    Open("utf8.htm", "<p>\xC5\xBC");
    run.frame->SetStatusPanel(u"Line 1"_s);
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(run.frame.get(), &activate);
    QCoreApplication::processEvents();
    EXPECT_EQ(Panel3(), u"UTF-8"_s);
}

} // namespace
