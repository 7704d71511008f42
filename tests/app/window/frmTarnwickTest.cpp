// The frame: focus, menus that pop up, the strips, and what arrives from outside.
#include "app/window/frmTarnwick.h"
#include "app/documents/Arrivals.h"

#include "app/RealFrame.h"
#include "app/run/frmSplash.h"
#include "app/surface/Toolbar.h"
#include "app/surface/UserButtons.h"
#include "app/window/DocumentTabs.h"
#include "app/window/ToolbarHolder.h"

#include <QAbstractButton>
#include <QDialog>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTabBar>
#include <QTimer>
#include <QUrl>

namespace {

class Tarnwick : public FrameTest {
  protected:
    Tarnwick() {
        Write(Keys::TemplateWindowState, "0");
        run = std::make_unique<ProgramRun>();
        EXPECT_TRUE(run->Start());
    }
    frmTarnwick& Window() { return *run->frame; }
    QWidget& Inside() { return *run->frame->Area().viewport(); }
    static bool TakesDrop(QWidget& target, const QMimeData& data) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(&target, &enter);
        QDragMoveEvent move(QPoint(6, 6), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                            Qt::NoModifier);
        move.ignore();
        QCoreApplication::sendEvent(&target, &move);
        EXPECT_EQ(move.isAccepted(), enter.isAccepted());
        return enter.isAccepted();
    }
    static void Drop(QWidget& target, const QMimeData& data) {
        ASSERT_TRUE(TakesDrop(target, data));
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                        Qt::NoModifier);
        // Whatever the other side would like to do with its files.
        drop.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(&target, &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    }
    /// A drop of files, on its way; it is released before the first is opened.
    static void DropFiles(QWidget& target, const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        // File managers send the paths as words too.
        data.setText(paths.join(u'\n'));
        Drop(target, data);
    }
    QStringList OpenCaptions() {
        QStringList captions;
        for (QMdiSubWindow* window : Window().Area().subWindowList(QMdiArea::CreationOrder))
            captions << dynamic_cast<frmTemplate&>(*window).Caption();
        return captions;
    }

    std::unique_ptr<ProgramRun> run;
};

// Focus

TEST_F(Tarnwick, ActivationGivesTheTextTheFocus) {
    frmTemplate& document = run->New();
    auto& strip = Window().TabStrip2();
    for (const auto& becomeActive : std::initializer_list<std::function<void()>>{
             [&] {
                 QEvent activate(QEvent::WindowActivate);
                 QCoreApplication::sendEvent(&Window(), &activate);
             },
             [&] { Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive); },
             [&] { QTest::mousePress(&Window(), Qt::LeftButton); },
             [&] { QTest::mousePress(&Inside(), Qt::LeftButton, {}, Inside().rect().bottomRight()); },
             [&] { QTest::mousePress(&Inside(), Qt::RightButton, {}, Inside().rect().bottomRight()); },
         }) {
        strip.setFocus();
        EXPECT_NE(Window().focusWidget(), &document.txtInput());
        becomeActive();
        EXPECT_EQ(Window().focusWidget(), &document.txtInput());
    }
}

TEST_F(Tarnwick, DeactivationOfTheApplicationMovesNoFocus) {
    run->New();
    Window().TabStrip2().setFocus();
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_EQ(Window().focusWidget(), &Window().TabStrip2());
}

TEST_F(Tarnwick, ActivationWithoutADocumentIsHarmless) {
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&Window(), &activate);
    QTest::mousePress(&Window(), Qt::LeftButton);
    EXPECT_EQ(Window().ActiveForm(), nullptr);
}

TEST_F(Tarnwick, RightButtonOnTheEmptyAreaDropsTheFileMenu) {
    auto& mnuFile = run->Find<QMenu>("mnuFile");
    QTest::mousePress(&Inside(), Qt::RightButton);
    EXPECT_FALSE(mnuFile.isVisible());
    QTest::mouseRelease(&Inside(), Qt::LeftButton);
    EXPECT_FALSE(mnuFile.isVisible());
    QTest::mouseRelease(&Inside(), Qt::RightButton, {}, QPoint(7, 9));
    EXPECT_TRUE(mnuFile.isVisible());
    EXPECT_EQ(mnuFile.pos(), Inside().mapToGlobal(QPoint(7, 9)));
    mnuFile.hide();
}

// Strips

TEST_F(Tarnwick, ToolbarStripIsLowerByItsMarginUnlessTheToolbarIsLow) {
    const struct { int toolbar, strip; } rows[] = {{0, 0}, {499, 499}, {500, 370}, {501, 371}, {1000, 870}};
    for (const auto& row : rows)
        EXPECT_EQ(ToolbarHolder::HeightFor(row.toolbar), row.strip) << row.toolbar;
}

TEST_F(Tarnwick, ToolbarTakesTheFramesWidthAndAllRowsShow) {
    for (const int width : {700, 1600}) {
        Window().resize(width, 500);
        auto& toolbar = *Window().findChild<Toolbar1*>();
        auto& strip = run->Find<QWidget>("Picture3");
        EXPECT_EQ(toolbar.width(), width);
        EXPECT_EQ(strip.height() * 15, ToolbarHolder::HeightFor(toolbar.height() * 15) / 15 * 15);
        EXPECT_GE(strip.height(), toolbar.heightForWidth(width));
    }
}

TEST_F(Tarnwick, ModeStripHasItsTabs) {
    auto& strip = run->Find<QTabBar>("TabStrip3");
    QStringList tabs;
    for (int index = 0; index < strip.count(); ++index)
        tabs << strip.tabText(index);
    EXPECT_EQ(tabs, QStringList({"Edit", "Design", "View"}));
    EXPECT_EQ(strip.parentWidget(), &Window().Picture4());
}

TEST_F(Tarnwick, ClickOnADocumentTabGivesItsWindowTheFocus) {
    const QString first = MakeFile(QStringLiteral("a.htm"), "a");
    const QString second = MakeFile(QStringLiteral("b.htm"), "b");
    Window().OpenDocumentFile(first);
    Window().OpenDocumentFile(second);
    DocumentTabs& tabs = Window().TabStrip2();
    const auto click = [&tabs](int index) {
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(index).center());
    };
    click(0);
    EXPECT_EQ(run->Active().Caption(), first);
    EXPECT_EQ(Window().focusWidget(), &run->Active().txtInput());
    click(1);
    EXPECT_EQ(run->Active().Caption(), second);
    run->New();
    click(1);
    EXPECT_EQ(run->Active().Caption(), second);
    run->Active().showMinimized();
    run->New();
    click(1);
    EXPECT_EQ(run->Active().Caption(), second);
    EXPECT_FALSE(run->Active().isMinimized()) << "it can be read again";
}

TEST_F(Tarnwick, TabStripShowsTheDocumentThatHasTheFocus) {
    const QString first = MakeFile(QStringLiteral("a.htm"), "a");
    const QString second = MakeFile(QStringLiteral("b.htm"), "b");
    DocumentTabs& tabs = Window().TabStrip2();
    Window().OpenDocumentFile(first);
    frmTemplate& behind = run->Active();
    Window().OpenDocumentFile(second);
    EXPECT_EQ(tabs.Tag(tabs.currentIndex()), second);
    Window().ActivateDocument(behind);
    EXPECT_EQ(tabs.Tag(tabs.currentIndex()), first);
    EXPECT_TRUE(behind.Unload());
    EXPECT_EQ(tabs.Tag(tabs.currentIndex()), second);
}

TEST_F(Tarnwick, TabStripShowsNoOtherDocumentWhileANamelessOneIsInFront) {
    const QString first = MakeFile(QStringLiteral("a.htm"), "a");
    DocumentTabs& tabs = Window().TabStrip2();
    Window().OpenDocumentFile(first);
    EXPECT_TRUE(tabs.ShowsSelection());
    frmTemplate& named = run->Active();
    frmTemplate& nameless = run->New();
    EXPECT_FALSE(tabs.ShowsSelection());
    Window().ActivateDocument(named);
    EXPECT_TRUE(tabs.ShowsSelection());
    // Also where the text gets no focus by it: something else has it.
    Window().showMinimized();
    QCoreApplication::processEvents();
    Window().ActivateDocument(nameless);
    EXPECT_FALSE(tabs.ShowsSelection());
    EXPECT_TRUE(nameless.Unload());
    EXPECT_TRUE(tabs.ShowsSelection());
    Window().ComeToFront();
    run->New();
    EXPECT_FALSE(tabs.ShowsSelection());
    run->prompts.saveAnswers = {ScriptedPrompts::Picked(TestFolder() + QStringLiteral("/new.htm"))};
    run->Entry("mnuSave").trigger();
    EXPECT_TRUE(tabs.ShowsSelection());
    EXPECT_EQ(tabs.Tag(tabs.currentIndex()), run->Active().Caption());
}

TEST_F(Tarnwick, EscLeavesEveryStripForTheText) {
    Window().OpenDocumentFile(MakeFile(QStringLiteral("a.htm"), "a"));
    Window().Picture2().show();
    Window().Picture4().show();
    for (const char* name : {"TabStrip1", "Command1_0", "Command1_14", "TabStrip2", "TabStrip3", "tb_new"}) {
        auto& control = run->Find<QWidget>(name);
        control.setFocus();
        ASSERT_EQ(Window().focusWidget(), &control) << name;
        QTest::keyClick(&control, Qt::Key_Escape);
        EXPECT_EQ(Window().focusWidget(), &run->Active().txtInput()) << name;
    }
}

TEST_F(Tarnwick, ButtonThatIsPressedWhileABoxComesUpDoesNotStayLit) {
    Window().OpenDocumentFile(MakeFile(QStringLiteral("a.htm"), "a"));
    Window().Picture2().show();
    for (const char* name : {"tb_bold", "Command1_0"}) {
        auto& button = run->Find<QAbstractButton>(name);
        QSignalSpy clicks(&button, &QAbstractButton::clicked);
        QTest::mousePress(&button, Qt::LeftButton);
        EXPECT_TRUE(button.isDown()) << name;
        QDialog box(&Window());
        box.setModal(true);
        box.show();
        QCoreApplication::processEvents();
        EXPECT_FALSE(button.isDown()) << name;
        box.close();
        QTest::mouseRelease(&button, Qt::LeftButton);
        EXPECT_TRUE(clicks.isEmpty()) << name;
    }
}

TEST_F(Tarnwick, ClickOnADocumentTabTakesTheFirstFormOfThatCaption) {
    const QString path = MakeFile(QStringLiteral("a.htm"), "a");
    auto& dialog = Window().LoadedForms().Load<QDialog>();
    Window().OpenDocumentFile(path);
    run->New();
    dialog.setWindowTitle(path);
    dialog.show();
    Window().activateWindow();
    QCoreApplication::processEvents();
    ASSERT_EQ(QApplication::activeWindow(), &Window());
    DocumentTabs& tabs = Window().TabStrip2();
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(0).center());
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::activeWindow(), &dialog);
    EXPECT_EQ(run->Active().Caption(), QString());
    Window().LoadedForms().Unload(dialog);
}

TEST_F(Tarnwick, SaveAsAFileThatIsOpenElsewhereTurnsTheLastTabToThatFile) {
    const QString first = MakeFile(QStringLiteral("a.htm"), "a");
    const QString second = MakeFile(QStringLiteral("b.htm"), "b");
    const QString third = MakeFile(QStringLiteral("c.htm"), "c");
    for (const QString& path : {first, second, third})
        Window().OpenDocumentFile(path);
    frmTemplate& saved = run->Active();
    run->prompts.saveAnswers = {ScriptedPrompts::Picked(first)};
    run->Entry("mnuSaveAs").trigger();
    EXPECT_EQ(run->prompts.asked.size(), 1) << "no word about the other window";
    EXPECT_EQ(OpenCaptions(), QStringList({first, second, first}));
    DocumentTabs& tabs = Window().TabStrip2();
    ASSERT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("b.htm"));
    EXPECT_EQ(tabs.Tag(1), first);
    // The click finds the window that was opened first.
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    EXPECT_EQ(run->Active().Caption(), first);
    EXPECT_NE(&run->Active(), &saved);
    // Keys stay: the document behind the last tab takes its own tab along.
    for (QMdiSubWindow* window : Window().Area().subWindowList())
        if (auto* document = dynamic_cast<frmTemplate*>(window); document->Caption() == second)
            document->Unload();
    ASSERT_EQ(tabs.count(), 1);
    EXPECT_EQ(tabs.tabText(0), QStringLiteral("a.htm"));
}

TEST_F(Tarnwick, StatusPanelThreeIsTheProgramsOwn) {
    Window().SetStatusPanel(QStringLiteral("Line 7"));
    EXPECT_EQ(run->Find<QLabel>("Panel3").text(), QStringLiteral("Line 7"));
}

/// What a label showed each time it was painted.
class PaintedTexts : public QObject {
  public:
    explicit PaintedTexts(QLabel& label) : label_(label) { label.installEventFilter(this); }
    QStringList texts;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            texts << label_.text();
        return false;
    }

  private:
    QLabel& label_;
};

TEST_F(Tarnwick, StatusPanelThreeIsPaintedBeforeAPageIsColoured) {
    const PaintedTexts painted(run->Find<QLabel>("Panel3"));
    Window().OpenDocumentFile(MakeFile(QStringLiteral("a.htm"), "<B>a"));
    EXPECT_EQ(painted.texts.count(QStringLiteral("Coloring HTML tags, please wait . . . ")), 1);
}

TEST_F(Tarnwick, StatusPanelThreeIsEmptyBehindAnOpeningUntilTheCaretMoves) {
    auto& panel = run->Find<QLabel>("Panel3");
    Window().OpenDocumentFile(MakeFile(QStringLiteral("a.htm"), "<B>a\r\nb\r\nc"));
    QCoreApplication::processEvents();
    EXPECT_EQ(panel.text(), QString());
    run->Active().txtInput().SetSelStart(9);
    QCoreApplication::processEvents();
    EXPECT_EQ(panel.text(), QStringLiteral("Line 3"));
}

TEST_F(Tarnwick, OpenedPagesCountAsUnchangedHoweverTheyCame) {
    const QString first = MakeFile(QStringLiteral("a.htm"), "<B>a</B>");
    const QString second = MakeFile(QStringLiteral("b.htm"), "b");
    for (const char* coloured : {"1", "0"}) {
        Window().Store().Write(Keys::ColoredTags, QString::fromLatin1(coloured));
        Window().OpenDocumentFile(first);
        QCoreApplication::processEvents();
        EXPECT_FALSE(run->Active().Modified()) << coloured;
        Window().OpenDocumentFile(second);
        EXPECT_TRUE(run->Active().Unload());
        run->Entry("mnuFileArray_0").trigger();
        QCoreApplication::processEvents();
        EXPECT_EQ(run->Active().Caption(), second);
        EXPECT_FALSE(run->Active().Modified()) << coloured;
        while (Window().ActiveForm())
            EXPECT_TRUE(run->Active().Unload());
    }
    EXPECT_TRUE(run->prompts.asked.isEmpty());
}

// Start screen

TEST_F(Tarnwick, AnyResizeUnloadsTheStartScreen) {
    Forms& forms = Window().LoadedForms();
    forms.Show<frmSplash>(Window());
    Window().resize(Window().size() + QSize(1, 0));
    EXPECT_EQ(forms.Find<frmSplash>(), nullptr);
}

// What arrives

TEST_F(Tarnwick, DroppedFilesOpenInDropOrder) {
    QStringList paths;
    for (int n = 0; n < 10; ++n)
        paths << MakeFile(QStringLiteral("%1.htm").arg(9 - n), QByteArray::number(n));
    DropFiles(Window(), paths);
    EXPECT_TRUE(OpenCaptions().isEmpty());
    QCoreApplication::processEvents();
    EXPECT_EQ(OpenCaptions(), paths);
}

TEST_F(Tarnwick, DroppedFileThatIsOpenGetsTheMessageAndTheOthersGoOn) {
    const QString a = MakeFile(QStringLiteral("a.htm"), "a");
    const QString b = MakeFile(QStringLiteral("b.htm"), "b");
    const QString c = MakeFile(QStringLiteral("c.htm"), "c");
    Window().OpenDocumentFile(b);
    DropFiles(Inside(), {a, b, c});
    QCoreApplication::processEvents();
    EXPECT_EQ(OpenCaptions(), QStringList({b, a, c}));
    EXPECT_EQ(run->prompts.Messages(),
              QStringList(QStringLiteral("File \"") + b +
                          QStringLiteral("\" already opened.\r\nDuplicate copies not allowed.")));
}

TEST_F(Tarnwick, FilesDroppedOnATextAreOpenedAndTextIsLeftToIt) {
    frmTemplate& document = run->New();
    const QString path = MakeFile(QStringLiteral("a.htm"), "a");
    DropFiles(*document.txtInput().viewport(), {path});
    QCoreApplication::processEvents();
    EXPECT_EQ(run->Active().Caption(), path);
    EXPECT_EQ(document.txtInput().Text(), QString());
    QMimeData text;
    text.setText(QStringLiteral("words"));
    EXPECT_FALSE(TakesDrop(Window(), text));
    QMimeData far;
    far.setUrls({QUrl(QStringLiteral("http://example.org/a.htm"))});
    EXPECT_FALSE(TakesDrop(Window(), far));
}

TEST_F(Tarnwick, PendingEventsRunBetweenDroppedFiles) {
    const QString a = MakeFile(QStringLiteral("a.htm"), "a");
    const QString b = MakeFile(QStringLiteral("b.htm"), "b");
    QStringList seen;
    QTimer::singleShot(0, &Window(), [&] { seen = OpenCaptions(); });
    Window().FromOutside().Open({a, b});
    EXPECT_EQ(seen, QStringList(a));
}

TEST_F(Tarnwick, FrameClosedBetweenDroppedFilesOpensNoMore) {
    const QString a = MakeFile(QStringLiteral("a.htm"), "a");
    const QString b = MakeFile(QStringLiteral("b.htm"), "b");
    QTimer::singleShot(0, &Window(), [&] { Window().close(); });
    Window().FromOutside().Open({a, b});
    EXPECT_TRUE(OpenCaptions().isEmpty());
}

TEST_F(Tarnwick, ArrivalsWaitForTheEndOfAModalDialog) {
    const QString a = MakeFile(QStringLiteral("a.htm"), "a");
    QDialog dialog(&Window());
    QTimer::singleShot(0, &dialog, [&] {
        Window().FromOutside().Open({a});
        EXPECT_TRUE(OpenCaptions().isEmpty());
        dialog.accept();
    });
    dialog.exec();
    QCoreApplication::processEvents();
    EXPECT_EQ(OpenCaptions(), QStringList(a));
}

TEST_F(Tarnwick, ComesToFrontOutOfTheMinimisedState) {
    Window().showMinimized();
    Window().ComeToFront();
    EXPECT_FALSE(Window().isMinimized());
    Window().showMaximized();
    Window().showMinimized();
    Window().ComeToFront();
    EXPECT_TRUE(Window().isMaximized());
}

TEST_F(Tarnwick, ComesToFrontOfAnotherWindow) {
    QWidget other;
    other.show();
    other.activateWindow();
    QCoreApplication::processEvents();
    ASSERT_EQ(QApplication::activeWindow(), &other);
    Window().ComeToFront();
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::activeWindow(), &Window());
}

TEST_F(Tarnwick, DropsAreTakenFromTheLoadToTheUnload) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.htm"))});
    ProgramRun fresh;
    EXPECT_FALSE(TakesDrop(*fresh.frame, data));
    ASSERT_TRUE(fresh.Start());
    EXPECT_TRUE(TakesDrop(*fresh.frame, data));
    EXPECT_TRUE(fresh.Stop());
    EXPECT_FALSE(TakesDrop(*fresh.frame, data));
}

} // namespace
