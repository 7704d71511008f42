// The Options dialog: pages, switches that act at once, OK page by page, bad sizes and bad settings.
#include "app/options/frmExternal.h"
#include "app/window/KnownForms.h"

#include "app/options/BrowserLookup.h"
#include "app/run/ProgramState.h"
#include "dialogs/ColorSample.h"
#include "editor/frame/EditorOptions.h"
#include "editor/views/WebControls.h"
#include "support/FreshUser.h"
#include "support/TestFrame.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Options : public testing::Test {
  protected:
    Options() : path_(qgetenv("PATH")) {
        qputenv("PATH", QFile::encodeName(TestFolder()));
        for (const char* strip : {"Picture2", "Picture4"})
            (new QWidget(frame.window.get()))->setObjectName(QString::fromLatin1(strip));
        state.LocalFTP = false;
    }
    ~Options() override { qputenv("PATH", path_); }

    void Open(int page = 0) {
        form = &frame.LoadedForms().Load<frmExternal>(frame);
        form->show();
        Get<QTabBar>("TabStrip1").setCurrentIndex(page);
    }
    bool IsOpen() { return frame.LoadedForms().Find<frmExternal>() != nullptr; }
    template <typename T> T& Get(const char* name) {
        T* control = form->findChild<T*>(QString::fromLatin1(name));
        if (!control)
            qFatal("no control %s", name);
        return *control;
    }
    ColorSample& Sample(int n) { return Get<ColorSample>(qPrintable(QStringLiteral("lblTag_%1").arg(n))); }
    void Press(const char* name) { QTest::mouseClick(&Get<QAbstractButton>(name), Qt::LeftButton); }
    void OK() { Press("Command2"); }
    void Set(const char* box, bool on) {
        if (Get<QCheckBox>(box).isChecked() != on)
            Get<QCheckBox>(box).click();
    }
    QString Stored(const SettingsKey& key) { return frame.Store().Read(key); }
    bool StripShown(const char* name) {
        return !frame.window->findChild<QWidget*>(QString::fromLatin1(name))->isHidden();
    }
    static QString MakeProgram(const QString& name) {
        QFile file(TestFolder() + u'/' + name);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file.fileName();
    }

    TestFrame frame;
    ProgramState& state = frame.State<ProgramState>();
    EditorOptions& editor = frame.State<EditorOptions>();
    frmExternal* form = nullptr;

  private:
    QByteArray path_;
};

TEST_F(Options, CaptionsAndTipsAreTheOnesKnown) {
    Open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Options"));
    const auto& tabs = Get<QTabBar>("TabStrip1");
    ASSERT_EQ(tabs.count(), 3);
    EXPECT_EQ(tabs.tabText(0), QStringLiteral("External Programs "));
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("Editor Options "));
    EXPECT_EQ(tabs.tabText(2), QStringLiteral("General"));
    EXPECT_EQ(tabs.tabToolTip(0), QStringLiteral("Location of external Web Browser"));
    EXPECT_EQ(tabs.tabToolTip(1), QStringLiteral("Location of external FTP program"));
    EXPECT_EQ(tabs.tabToolTip(2), QString());
    const std::pair<const char*, const char*> labels[] = {{"txtBrowser", "Location of Web Browser:"},
                                                          {"txtFTP", "Location of WS_FTP"},
                                                          {"List1", "Choose Editor Font:"},
                                                          {"cboFontSize", "Font Size:"}};
    for (const auto& [field, text] : labels) {
        QString shown;
        for (const QLabel* label : form->findChildren<QLabel*>())
            if (label->buddy() && label->buddy()->objectName() == QString::fromLatin1(field))
                shown = label->text().remove(u'&');
        EXPECT_EQ(shown, QString::fromLatin1(text));
    }
    const std::pair<const char*, const char*> tips[] = {
        {"cmdBrowse", "Find Web Browser"},
        {"cmdFTPBrowse", "Find FTP Program"},
        {"lblTagBG", "Double-click to change background color"},
        {"lblTag_0", "Double-click to change TEXT color"},
        {"lblTag_1", "Double-click to change TAG color"},
        {"lblTag_2", "Double-click to change HREF color"},
        {"lblTag_3", "Double-click to change IMG color"},
        {"lblTag_4", "Double-click to change EMBED color"},
        {"lblTag_5", "Double-click to change EMBED color"},
    };
    for (const auto& [control, tip] : tips)
        EXPECT_EQ(Get<QWidget>(control).toolTip(), QString::fromLatin1(tip));
    const char* const samples[] = {"TEXT", " <TAGS>", "<HREF>", "<IMG>", "<EMBED>", "<!--Comment-->"};
    for (int n = 0; n < 6; ++n)
        EXPECT_EQ(Sample(n).text(), QString::fromLatin1(samples[n]));
    const std::pair<const char*, const char*> captions[] = {
        {"chkLocFTP", "Use Internal FTP"},
        {"chkAutoFill", "Autofill enabled"},
        {"chkUseHTM", "Use .htm default extension"},
        {"chkLowerCaseTags", "Lower Case Tags"},
        {"chkWordWrap", "Word Wrap"},
        {"chkUseWebTimer", "Use Web Timer"},
        {"chkConvertCharacters", "Convert Characters"},
        {"chkColoredTags", "Colored Tags"},
        {"chkShowButtons", "Show User Buttons"},
        {"chkMSIEInstalled", "MSIE Installed"},
        {"Command2", "&OK"},
        {"Command3", "&Cancel"},
    };
    for (const auto& [control, caption] : captions)
        EXPECT_EQ(Get<QAbstractButton>(control).text(), QString::fromLatin1(caption));
    EXPECT_TRUE(Get<QPushButton>("Command2").isDefault());
}

TEST_F(Options, EachTabShowsItsOwnFrame) {
    Open();
    for (int page = 0; page < 3; ++page) {
        Get<QTabBar>("TabStrip1").setCurrentIndex(page);
        for (int n = 0; n < 3; ++n)
            EXPECT_EQ(Get<QWidget>(qPrintable(QStringLiteral("Frame_%1").arg(n))).isVisible(), n == page);
    }
}

TEST_F(Options, AFreshUserSeesTheDefaults) {
    Open();
    const std::pair<const char*, bool> boxes[] = {{"chkMSIEInstalled", false}, {"chkShowButtons", false},
                                                  {"chkColoredTags", true},    {"chkConvertCharacters", true},
                                                  {"chkUseWebTimer", false},   {"chkWordWrap", true},
                                                  {"chkLowerCaseTags", false}, {"chkUseHTM", false},
                                                  {"chkAutoFill", true},       {"chkLocFTP", false}};
    for (const auto& [box, on] : boxes)
        EXPECT_EQ(Get<QCheckBox>(box).isChecked(), on) << box;
    const int colors[] = {0, 16711680, 32768, 255, 32767, 8421504};
    for (int n = 0; n < 6; ++n)
        EXPECT_EQ(Sample(n).ForeNumber(), colors[n]);
    EXPECT_EQ(Get<ColorSample>("lblTagBG").BackNumber(), 16777215);
    const auto& sizes = Get<QComboBox>("cboFontSize");
    EXPECT_EQ(sizes.count(), 30);
    EXPECT_EQ(sizes.itemText(0), QStringLiteral("6"));
    EXPECT_EQ(sizes.itemText(1), QStringLiteral("8"));
    EXPECT_EQ(sizes.itemText(29), QStringLiteral("64"));
    EXPECT_EQ(sizes.currentText(), QStringLiteral("10"));
}

TEST_F(Options, SettingsThatAreNonsenseHarmNothing) {
    frame.Store().Write(Keys::TextColor[2], QStringLiteral("99999999999"));
    frame.Store().Write(Keys::TextColor[3], QStringLiteral("-5"));
    frame.Store().Write(Keys::UseMSIE, QStringLiteral("2"));
    frame.Store().Write(Keys::WordWrap, QStringLiteral("yes"));
    frame.Store().Write(Keys::EditorFont, QStringLiteral("No Such Font"));
    Open();
    EXPECT_EQ(Sample(2).ForeNumber(), 32768);
    EXPECT_EQ(Sample(3).ForeNumber(), 255);
    EXPECT_FALSE(Get<QCheckBox>("chkMSIEInstalled").isChecked());
    EXPECT_FALSE(Get<QCheckBox>("chkWordWrap").isChecked());
    EXPECT_EQ(Get<QListWidget>("List1").currentRow(), 0);
}

TEST_F(Options, AColourThatIsNoNumberCountsAsZero) {
    for (const char* stored : {"abc", "", "12pt", "blue", "#0000FF", "True"}) {
        for (const SettingsKey& key : Keys::TextColor)
            frame.Store().Write(key, QString::fromLatin1(stored));
        Open();
        for (int n = 0; n < 6; ++n)
            EXPECT_EQ(Sample(n).ForeNumber(), 0) << stored << ' ' << n;
        frame.LoadedForms().Unload<frmExternal>();
    }
}

TEST_F(Options, TheStoredFontIsSelected) {
    const QString last = QFontDatabase::families().constLast().section(QStringLiteral(" ["), 0, 0);
    frame.Store().Write(Keys::EditorFont, last);
    Open();
    EXPECT_EQ(Get<QListWidget>("List1").currentItem()->text(), last);
}

// The default names a font that few systems hold, and all show by another.
TEST_F(Options, AFontThatAnotherStandsInForStaysSelectedAndStored) {
    for (const char* stored : {"", "Arial", "Courier New", "Times New Roman", "arial"}) {
        const QString font = QString::fromLatin1(*stored ? stored : "Arial");
        if (*stored)
            frame.Store().Write(Keys::EditorFont, font);
        Open(1);
        EXPECT_EQ(Get<QListWidget>("List1").currentItem()->text(), font);
        OK();
        EXPECT_EQ(Stored(Keys::EditorFont), font);
        EXPECT_EQ(frame.Box().Font().family(), font);
    }
}

TEST_F(Options, EveryFontFamilyIsListedOnce) {
    Open();
    QStringList names;
    for (int row = 0; row < Get<QListWidget>("List1").count(); ++row)
        names << Get<QListWidget>("List1").item(row)->text();
    for (const QString& family : QFontDatabase::families())
        EXPECT_EQ(names.count(family.section(QStringLiteral(" ["), 0, 0)),
                  QFontDatabase::isPrivateFamily(family) ? 0 : 1)
            << family.toStdString();
}

TEST_F(Options, ABoxThatIsOnAtLoadWritesItsValueBack) {
    Open();
    const QString file = frame.Store().Read({Keys::Tarnwick, QStringLiteral("Window Options"),
                                             QStringLiteral("ColoredTags"), QStringLiteral("absent")});
    EXPECT_EQ(file, QStringLiteral("1"));
    const QString off = frame.Store().Read({Keys::Tarnwick, QStringLiteral("Program Options"),
                                            QStringLiteral("UseHTM"), QStringLiteral("absent")});
    EXPECT_EQ(off, QStringLiteral("absent"));
}

TEST_F(Options, BoxesWriteAtOnceAndCancelTakesNothingBack) {
    struct Row {
        const char* box;
        const SettingsKey& key;
    };
    const Row rows[] = {
        {"chkAutoFill", Keys::UseAutoFill},        {"chkUseHTM", Keys::UseHTM},
        {"chkLowerCaseTags", Keys::LowerCaseTags}, {"chkWordWrap", Keys::WordWrap},
        {"chkUseWebTimer", Keys::UseWebTimer},     {"chkConvertCharacters", Keys::ConvertChar},
        {"chkColoredTags", Keys::ColoredTags},     {"chkShowButtons", Keys::ShowUserButtons},
        {"chkMSIEInstalled", Keys::UseMSIE}};
    Open(2);
    for (const Row& row : rows) {
        const bool before = Get<QCheckBox>(row.box).isChecked();
        Get<QCheckBox>(row.box).click();
        EXPECT_EQ(Stored(row.key), before ? QStringLiteral("0") : QStringLiteral("1")) << row.box;
        Get<QCheckBox>(row.box).click();
        EXPECT_EQ(Stored(row.key), before ? QStringLiteral("1") : QStringLiteral("0")) << row.box;
        Get<QCheckBox>(row.box).click();
    }
    Press("Command3");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Stored(Keys::LowerCaseTags), QStringLiteral("1"));
    EXPECT_EQ(Stored(Keys::UseAutoFill), QStringLiteral("0"));
}

TEST_F(Options, AutoFillAndWordWrapWorkAtOnce) {
    Open(2);
    Set("chkAutoFill", false);
    EXPECT_FALSE(editor.UseAutoFill);
    Set("chkAutoFill", true);
    EXPECT_TRUE(editor.UseAutoFill);
    Set("chkWordWrap", false);
    EXPECT_EQ(frame.Box().RightMargin(), 65000);
    Set("chkWordWrap", true);
    EXPECT_EQ(frame.Box().RightMargin(), 0);
}

TEST_F(Options, StripsComeAndGoWithTheirBoxes) {
    Open(2);
    for (const auto& [box, strip] :
         {std::pair{"chkShowButtons", "Picture2"}, {"chkMSIEInstalled", "Picture4"}}) {
        Set(box, true);
        EXPECT_TRUE(StripShown(strip));
        Set(box, false);
        EXPECT_FALSE(StripShown(strip));
    }
}

class CountingFactory final : public WebControlsFactory {
  public:
    DesignControl* MakeDesign(QWidget*) override {
        ++asked;
        return nullptr;
    }
    BrowserControl* MakeBrowser(QWidget*) override { return nullptr; }
    int asked = 0;
};

TEST_F(Options, ModesGiveTheActiveDocumentItsControlsBeforeTheValueIsWritten) {
    CountingFactory factory;
    QString writtenBefore;
    frame.State<WebControls>().Load = [&] {
        writtenBefore = Stored(Keys::UseMSIE);
        return &factory;
    };
    frame.active->modes = std::make_unique<DocumentModes>(frame, *frame.active);
    Open(2);
    Set("chkMSIEInstalled", true);
    EXPECT_EQ(factory.asked, 1);
    EXPECT_EQ(writtenBefore, QStringLiteral("0"));
    EXPECT_EQ(Stored(Keys::UseMSIE), QStringLiteral("1"));
}

TEST_F(Options, WithoutADocumentTheBoxesStillWrite) {
    frame.CloseDocument();
    Open(2);
    Set("chkWordWrap", false);
    Set("chkMSIEInstalled", true);
    EXPECT_EQ(Stored(Keys::WordWrap), QStringLiteral("0"));
    EXPECT_EQ(Stored(Keys::UseMSIE), QStringLiteral("1"));
}

TEST_F(Options, InternalFtpSetsTwoValuesAndWritesNone) {
    const SettingsKey stored = {Keys::Tarnwick, QStringLiteral("Browser Options"), QStringLiteral("LocalFTP"),
                                QStringLiteral("absent")};
    Open();
    state.ReloadFlag = true;
    Set("chkLocFTP", true);
    EXPECT_TRUE(state.LocalFTP);
    EXPECT_FALSE(state.ReloadFlag);
    Set("chkLocFTP", false);
    EXPECT_FALSE(state.LocalFTP);
    EXPECT_TRUE(state.ReloadFlag);
    state.FtpPath = QStringLiteral("/bin/ftp");
    Set("chkLocFTP", true);
    EXPECT_TRUE(state.ReloadFlag) << "only without a path is it cleared";
    EXPECT_EQ(Stored(stored), QStringLiteral("absent"));
}

TEST_F(Options, OpeningFillsInWhatIsKnown) {
    state.WebPath = QStringLiteral("/usr/bin/web");
    state.FtpPath = QStringLiteral("/usr/bin/ftp");
    state.LocalFTP = true;
    Open();
    EXPECT_EQ(Get<QLineEdit>("txtBrowser").text(), QStringLiteral("/usr/bin/web"));
    EXPECT_EQ(Get<QLineEdit>("txtFTP").text(), QStringLiteral("/usr/bin/ftp"));
    EXPECT_TRUE(Get<QCheckBox>("chkLocFTP").isChecked());
    EXPECT_EQ(Get<QLabel>("lblUpdate").text(), QString());
}

TEST_F(Options, SizingTheDialogKeepsWhatWasTyped) {
    state.WebPath = QStringLiteral("/usr/bin/web");
    Open();
    Get<QLineEdit>("txtBrowser").setText(QStringLiteral("typed"));
    form->resize(form->size() + QSize(50, 50));
    QCoreApplication::processEvents();
    EXPECT_EQ(Get<QLineEdit>("txtBrowser").text(), QStringLiteral("typed"));
}

TEST_F(Options, WithoutABrowserItSaysSo) {
    Open();
    EXPECT_EQ(Get<QLabel>("lblUpdate").text(), QStringLiteral("Netscape not found on system."));
    EXPECT_EQ(Get<QLineEdit>("txtBrowser").text(), QString());
}

TEST_F(Options, ABrowserOfThePathIsOffered) {
    const QString program = MakeProgram(QStringLiteral("firefox"));
    Open();
    EXPECT_EQ(Get<QLineEdit>("txtBrowser").text(), program);
    EXPECT_EQ(Get<QLabel>("lblUpdate").text(),
              QStringLiteral("Please verify that the correct filename is shown above."));
    EXPECT_EQ(state.WebPath, QString()) << "until OK it is only offered";
}

TEST_F(Options, TheUsersOwnChoiceOfBrowserComesFirst) {
    MakeProgram(QStringLiteral("chromium"));
    const QString own = MakeProgram(QStringLiteral("x-www-browser"));
    EXPECT_EQ(BrowserLookup::Find({TestFolder()}), own);
    EXPECT_EQ(BrowserLookup::Find({QStringLiteral("/no/such/folder")}), QString());
}

TEST_F(Options, EachOfTheUsualBrowsersIsFoundInItsTurn) {
    // The last first: each one that comes goes before those that are there.
    QString none = TestFolder() + QStringLiteral("/firefox");
    QFile text(none);
    ASSERT_TRUE(text.open(QFile::WriteOnly));
    text.close();
    text.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_EQ(BrowserLookup::Find({TestFolder()}), QString()) << "a file that can't be started is no browser";
    ASSERT_TRUE(text.remove());
    for (const char* name :
         {"xdg-open", "msedge", "opera", "falkon", "konqueror", "epiphany", "google-chrome", "chromium",
          "firefox-esr", "firefox", "sensible-browser", "x-www-browser"}) {
        const QString program = MakeProgram(QString::fromLatin1(name));
        EXPECT_EQ(BrowserLookup::Find({TestFolder()}), program);
        EXPECT_EQ(BrowserLookup::Find(), program) << "the folders of PATH";
    }
}

TEST_F(Options, TheFirstFolderOfThePathComesFirst) {
    ASSERT_TRUE(QDir(TestFolder()).mkpath(QStringLiteral("other")));
    const QString there = MakeProgram(QStringLiteral("other/firefox"));
    const QString here = MakeProgram(QStringLiteral("firefox"));
    const QString other = TestFolder() + QStringLiteral("/other");
    qputenv("PATH", QFile::encodeName(other + u':' + TestFolder()));
    Open();
    EXPECT_EQ(Get<QLineEdit>("txtBrowser").text(), there);
    qputenv("PATH", QFile::encodeName(TestFolder() + u':' + other));
    EXPECT_EQ(BrowserLookup::Find(), here);
}

TEST_F(Options, OkOnTheFirstPageTakesThePrograms) {
    Open();
    Get<QLineEdit>("txtBrowser").setText(QStringLiteral("/no/such/browser"));
    Get<QLineEdit>("txtFTP").setText(QStringLiteral("/usr/bin/ftp"));
    Get<ColorSample>("lblTag_1").SetForeNumber(1);
    Set("chkLocFTP", true);
    OK();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(state.WebPath, QStringLiteral("/no/such/browser"));
    EXPECT_EQ(state.FtpPath, QStringLiteral("/usr/bin/ftp"));
    EXPECT_EQ(Stored(Keys::Web), QStringLiteral("/no/such/browser"));
    EXPECT_EQ(Stored(Keys::FTP), QStringLiteral("/usr/bin/ftp"));
    EXPECT_EQ(Stored(Keys::LocalPreview), QStringLiteral("True"));
    EXPECT_EQ(Stored(Keys::LocalFTP), QStringLiteral("True"));
    EXPECT_EQ(Stored(Keys::TextColor[1]), QStringLiteral("16711680")) << "colours are on another page";
}

TEST_F(Options, ProgramsThatCannotBeStoredKeepTheDialogOpen) {
    Open();
    frame.Store().Sync();
    const QString folder = QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME"));
    ASSERT_TRUE(QDir(folder).removeRecursively());
    QFile inTheWay(folder);
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    inTheWay.close();
    OK();
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.prompts.asked[0].text, QStringLiteral("Searching for web browser...please wait"));
    EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Exclamation);
    EXPECT_TRUE(IsOpen());
    ASSERT_TRUE(inTheWay.remove());
}

TEST_F(Options, OkOnTheGeneralPageTakesNothingElse) {
    Open(2);
    Get<QLineEdit>("txtBrowser").setText(QStringLiteral("typed"));
    Sample(0).SetForeNumber(1);
    Get<QComboBox>("cboFontSize").setEditText(QStringLiteral("abc"));
    OK();
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(frame.prompts.asked, IsEmpty());
    EXPECT_EQ(state.WebPath, QString());
    EXPECT_EQ(Stored(Keys::TextColor[0]), QStringLiteral("0"));
}

TEST_F(Options, BrowsingFillsTheFieldAndCancelLeavesIt) {
    const FileAnswer picked = ScriptedPrompts::Picked(QStringLiteral("/usr/bin/thing"));
    Open();
    frame.prompts.openAnswers = {picked, ScriptedPrompts::Cancelled(), picked, ScriptedPrompts::Cancelled()};
    for (const auto& [button, field] : {std::pair{"cmdBrowse", "txtBrowser"}, {"cmdFTPBrowse", "txtFTP"}}) {
        Press(button);
        EXPECT_EQ(Get<QLineEdit>(field).text(), QStringLiteral("/usr/bin/thing"));
        Get<QLineEdit>(field).setText(QStringLiteral("kept"));
        Press(button);
        EXPECT_EQ(Get<QLineEdit>(field).text(), QStringLiteral("kept"));
    }
    EXPECT_EQ(frame.prompts.asked[0].request.filter,
              QStringLiteral("All files (*.*)|*.*|Executables (*.exe)|*.exe|"));
    EXPECT_EQ(frame.prompts.asked[0].request.filterIndex, 2);
    EXPECT_FALSE(state.ReloadFlag);
}

TEST_F(Options, BrowsingForAnotherBrowserSetsTheReloadFlag) {
    state.WebPath = QStringLiteral("/usr/bin/web");
    Open();
    const FileAnswer picked = ScriptedPrompts::Picked(QStringLiteral("/usr/bin/thing"));
    frame.prompts.openAnswers = {picked, ScriptedPrompts::Cancelled(), picked};
    Press("cmdFTPBrowse");
    EXPECT_FALSE(state.ReloadFlag);
    Press("cmdBrowse");
    EXPECT_FALSE(state.ReloadFlag);
    Press("cmdBrowse");
    EXPECT_TRUE(state.ReloadFlag);
}

TEST_F(Options, OneClickPicksASamplesColour) {
    Open(1);
    frame.prompts.colorAnswers = {255, std::nullopt, 65280};
    QTest::mouseClick(&Sample(1), Qt::LeftButton);
    EXPECT_EQ(Sample(1).ForeNumber(), 255);
    QTest::mouseClick(&Sample(1), Qt::LeftButton);
    EXPECT_EQ(Sample(1).ForeNumber(), 0) << "a cancelled pick is black";
    QTest::mouseDClick(&Get<ColorSample>("lblTagBG"), Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    EXPECT_EQ(Get<ColorSample>("lblTagBG").BackNumber(), 65280);
    QTest::mouseClick(&Get<ColorSample>("lblTagBG"), Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    EXPECT_EQ(frame.prompts.asked.size(), 3) << "one click on the background picks nothing";
}

TEST_F(Options, SamplesCanBePickedByKeyboard) {
    Open(1);
    frame.prompts.colorAnswers = {1, 2, 3};
    QTest::keyClick(&Sample(5), Qt::Key_Space);
    EXPECT_EQ(Sample(5).ForeNumber(), 1);
    QTest::keyClick(&Sample(5), Qt::Key_Return);
    EXPECT_EQ(Sample(5).ForeNumber(), 2);
    QTest::keyClick(&Get<ColorSample>("lblTagBG"), Qt::Key_Enter);
    EXPECT_EQ(Get<ColorSample>("lblTagBG").BackNumber(), 3);
    EXPECT_TRUE(IsOpen());
    for (const auto* sample : form->findChildren<ColorSample*>()) {
        EXPECT_EQ(sample->focusPolicy(), Qt::StrongFocus);
        EXPECT_FALSE(sample->accessibleName().isEmpty());
    }
}

TEST_F(Options, OkOnTheSecondPageColoursTheDocumentAnew) {
    frame.SetText(QStringLiteral("a<b>c"));
    Open(1);
    Sample(0).SetForeNumber(0x030201);
    Sample(1).SetForeNumber(0x0000FF);
    Get<ColorSample>("lblTagBG").SetBackNumber(0xC0FFEE);
    Get<QListWidget>("List1").setCurrentRow(1);
    const QString font = Get<QListWidget>("List1").item(1)->text();
    Get<QComboBox>("cboFontSize").setEditText(QStringLiteral("12pt"));
    OK();
    EXPECT_FALSE(IsOpen());
    EXPECT_THAT(frame.prompts.asked, IsEmpty());
    EXPECT_EQ(editor.Background2, 0xC0FFEE);
    EXPECT_EQ(editor.ColorTable[0], QStringLiteral("\\red1\\green2\\blue3"));
    EXPECT_EQ(editor.ColorTable[1], QStringLiteral("\\red255\\green0\\blue0"));
    EXPECT_EQ(Stored(Keys::TextColor[0]), QString::number(0x030201));
    EXPECT_EQ(Stored(Keys::TextColor[1]), QStringLiteral("255"));
    EXPECT_EQ(Stored(Keys::EditorFontSize), QStringLiteral("12pt"));
    EXPECT_EQ(Stored(Keys::EditorFont), font);
    EXPECT_EQ(frame.Box().Font().pointSizeF(), 12);
    EXPECT_EQ(frame.Box().Font().family(), font);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("a<b>c"));
    EXPECT_THAT(frame.Colors(),
                ElementsAre(std::pair(QStringLiteral("a"), 0x030201), std::pair(QStringLiteral("<b>"), 255),
                            std::pair(QStringLiteral("c"), 0x030201)));
    EXPECT_EQ(frame.Box().streams.size(), 1) << "one pass, however long the text";
    EXPECT_EQ(frame.Box().SelStart(), 5) << "behind what the pass wrote";
}

TEST_F(Options, ASizeThatIsNoNumberStaysOpenWithColoursAndFontStored) {
    for (const char* size : {"abc", "0", "", "pt12"}) {
        frame.prompts.asked.clear();
        Open(1);
        Sample(2).SetForeNumber(77);
        Get<QListWidget>("List1").setCurrentRow(1);
        Get<QComboBox>("cboFontSize").setEditText(QString::fromLatin1(size));
        OK();
        ASSERT_EQ(frame.prompts.asked.size(), 1) << size;
        EXPECT_EQ(frame.prompts.asked[0].text,
                  QStringLiteral("You must enter a number - letters won't work."));
        EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::Critical);
        EXPECT_EQ(frame.prompts.asked[0].title, QStringLiteral("The Tarnwick"));
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(Stored(Keys::TextColor[2]), QStringLiteral("77"));
        EXPECT_EQ(Stored(Keys::EditorFont), Get<QListWidget>("List1").item(1)->text());
        EXPECT_EQ(Stored(Keys::EditorFontSize), QStringLiteral("10"));
        EXPECT_THAT(frame.Box().streams, IsEmpty());
        Press("Command3");
    }
}

TEST_F(Options, ASizeIsStoredAsTypedAndDrawnAsFarAsItCan) {
    const struct {
        const char* typed;
        double points;
    } rows[] = {{"12pt", 12}, {"1000", 1000}, {"1e9", 1638}, {" 9 ", 9},
                {"7.5", 7.5}, {"0.2", 1},     {"-5", 10}};
    for (const auto& row : rows) {
        Open(1);
        Get<QComboBox>("cboFontSize").setEditText(QString::fromLatin1(row.typed));
        OK();
        EXPECT_FALSE(IsOpen()) << row.typed;
        EXPECT_EQ(Stored(Keys::EditorFontSize), QString::fromLatin1(row.typed));
        EXPECT_EQ(frame.Box().Font().pointSizeF(), row.points) << row.typed;
    }
    EXPECT_THAT(frame.prompts.asked, IsEmpty());
}

TEST_F(Options, OtherDocumentsKeepTheirFontAndColours) {
    frame.SetText(QStringLiteral("a<b>c"));
    TestDocument* first = frame.active;
    const QString family = first->input->Font().family();
    const double size = first->input->Font().pointSizeF();
    frame.NewDocument();
    ASSERT_NE(frame.active, first);
    Open(1);
    Get<QComboBox>("cboFontSize").setEditText(QStringLiteral("30"));
    OK();
    EXPECT_EQ(frame.Box().Font().pointSizeF(), 30);
    EXPECT_EQ(first->input->Font().pointSizeF(), size);
    EXPECT_EQ(first->input->Font().family(), family);
    EXPECT_THAT(first->input->streams, IsEmpty());
}

TEST_F(Options, TheEyeAndTheTabKeyMeetTheControlsInTheirOrder) {
    const QList<QList<const char*>> pages = {
        {"txtBrowser", "cmdBrowse", "txtFTP", "cmdFTPBrowse", "chkLocFTP"},
        {"List1", "cboFontSize", "lblTagBG", "lblTag_0", "lblTag_1", "lblTag_2", "lblTag_3", "lblTag_4",
         "lblTag_5"},
        {"chkAutoFill", "chkUseHTM", "chkLowerCaseTags", "chkWordWrap", "chkUseWebTimer",
         "chkConvertCharacters", "chkColoredTags", "chkShowButtons", "chkMSIEInstalled"}};
    Open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    for (int page = 0; page < 3; ++page) {
        Get<QTabBar>("TabStrip1").setCurrentIndex(page);
        QStringList expected = {QStringLiteral("TabStrip1")}, met;
        for (const char* name : pages[page])
            expected << QString::fromLatin1(name);
        expected << QStringLiteral("Command2") << QStringLiteral("Command3");
        Get<QTabBar>("TabStrip1").setFocus();
        for (qsizetype n = 0; n < expected.size(); ++n) {
            met << form->focusWidget()->objectName();
            QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(met, expected) << met.join(u' ').toStdString();
    }
    int below = 0;
    for (const char* box : pages[2]) {
        EXPECT_GT(Get<QWidget>(box).y(), below) << box;
        below = Get<QWidget>(box).y();
    }
}

TEST_F(Options, WithoutADocumentColoursAndFontAreSavedAllTheSame) {
    frame.CloseDocument();
    Open(1);
    Sample(2).SetForeNumber(77);
    Get<QComboBox>("cboFontSize").setEditText(QStringLiteral("14"));
    OK();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Stored(Keys::TextColor[2]), QStringLiteral("77"));
    EXPECT_EQ(Stored(Keys::EditorFontSize), QStringLiteral("14"));
}

TEST_F(Options, EscapeUnloads) {
    Open();
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
}

TEST_F(Options, CtrlTabTurnsThePages) {
    Open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    const int pages[] = {1, 2, 0};
    for (const int page : pages) {
        QTest::keyClick(form, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(Get<QTabBar>("TabStrip1").currentIndex(), page);
    }
}

TEST_F(Options, TheCommandWaitsForTheDialogsEnd) {
    FillFormCommands(frame, AppForms());
    bool shownOnce = false;
    QTimer::singleShot(0, frame.window.get(), [&] {
        form = frame.LoadedForms().Find<frmExternal>();
        shownOnce = form && form->isVisible() && form->isModal();
        frame.Commands().Run(QStringLiteral("mnuWebBrowser"));
        if (form)
            Press("Command3");
    });
    frame.Commands().Run(QStringLiteral("mnuWebBrowser"));
    EXPECT_TRUE(shownOnce);
    EXPECT_FALSE(IsOpen());
}

} // namespace
