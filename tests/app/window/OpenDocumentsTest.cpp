// Which documents are open and which is the active one, whatever becomes of the frame's window.
#include "app/documents/Arrivals.h"
#include "app/RealFrame.h"

#include <random>

namespace {

class OpenDocuments : public FrameTest {
  protected:
    OpenDocuments() { EXPECT_TRUE(run.Start()); }
    frmTarnwick& Window() { return *run.frame; }
    frmTemplate& NewWith(const QString& text) {
        frmTemplate& document = run.New();
        document.txtInput().SetSelText(text);
        return document;
    }
    /// As a desktop minimises a window and brings it back: its events come with the next turn of the loop.
    void Minimise() {
        Window().showMinimized();
        QCoreApplication::processEvents();
    }
    void Restore() {
        Window().ComeToFront();
        QCoreApplication::processEvents();
    }
    ProgramRun run;
};

TEST_F(OpenDocuments, EachChangedOneIsAskedWhenTheFrameIsClosedMinimised) {
    NewWith(QStringLiteral("words"));
    Minimise();
    run.New();
    run.prompts.messageAnswers = {MsgAnswer::No};
    ASSERT_TRUE(run.Stop());
    EXPECT_EQ(run.prompts.asked.size(), 1);
    EXPECT_EQ(run.Program().DocumentCount, 0);
    EXPECT_EQ(Window().ActiveForm(), nullptr);
}

TEST_F(OpenDocuments, NewOneIsTheActiveOneInAMinimisedFrame) {
    frmTemplate& first = NewWith(QStringLiteral("words"));
    Minimise();
    frmTemplate& second = run.New();
    EXPECT_NE(&first, &second);
    const QString path = MakeFile(QStringLiteral("a.htm"), "page");
    Window().OpenDocumentFile(path);
    EXPECT_EQ(run.Active().Caption(), path);
    EXPECT_EQ(run.Active().txtInput().Text(), QStringLiteral("page"));
    EXPECT_EQ(first.txtInput().Text(), QStringLiteral("words"));
    EXPECT_EQ(second.txtInput().Text(), QString());
}

TEST_F(OpenDocuments, UnloadedOneIsNeverActive) {
    for (const bool minimised : {false, true}) {
        frmTemplate& first = run.New();
        frmTemplate& second = run.New();
        if (minimised)
            Minimise();
        frmTemplate& third = run.New();
        EXPECT_TRUE(third.Unload());
        Document* next = Window().ActiveForm();
        EXPECT_TRUE(next == &first || next == &second) << minimised;
        EXPECT_TRUE(second.Unload());
        EXPECT_EQ(Window().ActiveForm(), &first) << minimised;
        EXPECT_TRUE(first.Unload());
        EXPECT_EQ(Window().ActiveForm(), nullptr) << minimised;
    }
}

TEST_F(OpenDocuments, ClosingWorksOnWhileFilesComeInToAMinimisedFrame) {
    QByteArray large;
    while (large.size() < 200'000)
        large += "<P ALIGN=\"center\">words</P>\r\n";
    const QStringList paths = {MakeFile(QStringLiteral("a.htm"), large),
                               MakeFile(QStringLiteral("b.htm"), "b"),
                               MakeFile(QStringLiteral("c.htm"), "c")};
    for (int openedBefore = 1; openedBefore <= 3; ++openedBefore) {
        ProgramRun other;
        ASSERT_TRUE(other.Start());
        int turns = 0;
        // Between two files, as the desktop's requests come.
        const std::function<void()> turn = [&] {
            if (++turns == 1)
                other.frame->showMinimized();
            if (turns < openedBefore)
                QMetaObject::invokeMethod(other.frame.get(), turn, Qt::QueuedConnection);
            else
                other.frame->close();
        };
        QMetaObject::invokeMethod(other.frame.get(), turn, Qt::QueuedConnection);
        other.frame->FromOutside().Open(paths);
        EXPECT_EQ(other.Program().DocumentCount, 0) << openedBefore;
        EXPECT_FALSE(other.frame->isVisible()) << openedBefore;
    }
}

/// A person who does anything in any order; every step is drawn from a seed that a failure names.
class AnyOrder : public OpenDocuments {
  protected:
    enum Act {
        NewOne,
        Type,
        OpenFile,
        MinimiseFrame,
        RestoreFrame,
        MaximiseFrame,
        MinimiseOne,
        RestoreOne,
        MaximiseOne,
        Activate,
        CloseActive,
        CloseAny,
        RunEvents,
        Acts
    };

    explicit AnyOrder() = default;
    int Draw(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random); }
    QList<frmTemplate*> Open() {
        QList<frmTemplate*> open;
        Forms& forms = Window().LoadedForms();
        for (int n = 0; n < forms.Count(); ++n)
            if (auto* document = qobject_cast<frmTemplate*>(forms.At(n)))
                open << document;
        return open;
    }
    /// Closing asks exactly where something is unsaved, and then the window is gone.
    void Close(frmTemplate& document) {
        const qsizetype asked = run.prompts.asked.size();
        const bool modified = document.Modified();
        if (modified)
            run.prompts.messageAnswers = {MsgAnswer::No};
        ASSERT_TRUE(document.Unload());
        ASSERT_EQ(run.prompts.asked.size() - asked, modified ? 1 : 0);
        ASSERT_FALSE(Open().contains(&document));
    }
    void Do(int act) {
        const QList<frmTemplate*> open = Open();
        frmTemplate* any = open.isEmpty() ? nullptr : open[Draw(static_cast<int>(open.size()))];
        switch (act) {
        case NewOne:
            return void(run.New());
        case Type:
            if (Document* active = Window().ActiveForm())
                QTest::keyClicks(&active->txtInput(), QStringLiteral("ab"));
            return;
        case OpenFile:
            return Window().OpenDocumentFile(MakeFile(QStringLiteral("%1.htm").arg(++files), "<P>x"));
        case MinimiseFrame:
            return Window().showMinimized();
        case RestoreFrame:
            return Window().ComeToFront();
        case MaximiseFrame:
            return Window().setWindowState(Window().windowState() ^ Qt::WindowMaximized);
        case RunEvents:
            return QCoreApplication::processEvents();
        default:
            if (any)
                DoWith(act, *any);
        }
    }
    void DoWith(int act, frmTemplate& any) {
        switch (act) {
        case MinimiseOne:
            return any.showMinimized();
        case RestoreOne:
            return any.showNormal();
        case MaximiseOne:
            return any.showMaximized();
        case Activate:
            Window().ActivateDocument(any);
            ASSERT_EQ(Window().ActiveForm(), &any);
            return;
        case CloseActive:
            return Close(run.Active());
        default:
            return Close(any);
        }
    }
    void Check() {
        const QList<frmTemplate*> open = Open();
        auto* active = dynamic_cast<frmTemplate*>(Window().ActiveForm());
        ASSERT_EQ(active == nullptr, open.isEmpty());
        ASSERT_TRUE(!active || open.contains(active));
        ASSERT_EQ(run.Program().DocumentCount, open.size());
    }
    std::mt19937 random;
    int files = 0;
};

TEST_F(AnyOrder, NothingUnsavedGoesUnaskedAndTheShutdownEnds) {
    constexpr int rounds = 40;
    constexpr int steps = 60;
    for (unsigned seed = 1; seed <= rounds; ++seed) {
        SCOPED_TRACE(seed);
        random.seed(seed);
        for (int step = 0; step < steps; ++step) {
            const int act = Draw(Acts);
            SCOPED_TRACE(act);
            ASSERT_NO_FATAL_FAILURE(Do(act));
            ASSERT_NO_FATAL_FAILURE(Check());
        }
        qsizetype unsaved = 0;
        for (const frmTemplate* document : Open())
            unsaved += document->Modified() ? 1 : 0;
        run.prompts.asked.clear();
        run.prompts.messageAnswers.assign(static_cast<size_t>(unsaved), MsgAnswer::No);
        ASSERT_TRUE(Shutdown(Window()).Run());
        ASSERT_EQ(run.prompts.asked.size(), unsaved);
        ASSERT_TRUE(Open().isEmpty());
        Window().SetHooks(true, true);
    }
}

} // namespace
