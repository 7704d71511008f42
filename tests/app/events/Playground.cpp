#include "app/events/Playground.h"

#include "app/help/HelpFile.h"
#include "platform/store/ProgramFolder.h"
#include "platform/store/Settings.h"
#include "support/Files.h"
#include "support/FreshUser.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>

using namespace Qt::StringLiterals;

namespace {

const QByteArray page = "<!DOCTYPE html>\r\n<HTML><HEAD><TITLE>One</TITLE></HEAD>\r\n"
                        "<BODY BGCOLOR=#FFFFFF>\r\n<H1>A paeg with mistaeks</H1>\r\n"
                        "<P>Text <A HREF=\"b.htm\">link</A> <IMG SRC=\"low.png\" WIDTH=10>\r\n"
                        "<TABLE BORDER=1><TR><TD>1<TD>2</TABLE>\r\n<!-- remark -->\r\n</BODY></HTML>\r\n";

void WritePicture(const QString& path, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(255, 244, 214));
    image.save(path);
}

/// Ends at once, whatever it is given.
void WriteStandIn(const QString& path) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile::copy(u"/bin/true"_s, path);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

QString Playground::Root() {
    return TestFolder();
}

QString Playground::Temporary() {
    return Root() + u"/tmp"_s;
}

QString Playground::Browser() {
    return Root() + u"/bin/x-www-browser"_s;
}

bool Playground::Holds(const QString& path) {
    // The program's own folders lie beside the test's.
    const QString all = QFileInfo(Root()).absolutePath();
    const QString full = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    return full == all || full.startsWith(all + u'/');
}

Playground::Playground(Dice& dice) : folderBefore_(QDir::currentPath()) {
    QDir::setCurrent(QDir::rootPath());
    FreshUser();
    MakeFiles();
    MakeSettings(dice);
    SetVariable("HOME", Root() + u"/user"_s);
    SetVariable("TMPDIR", Temporary());
    SetVariable("PATH", Root() + u"/bin"_s);
    // No printer of the machine's.
    SetVariable("CUPS_SERVER", Root() + u"/no-printer"_s);
    QDir::setCurrent(Root() + u"/user"_s);
}

Playground::~Playground() {
    for (const auto& [variable, value] : before_) {
        if (value.isNull())
            qunsetenv(variable);
        else
            qputenv(variable, value);
    }
    QDir::setCurrent(folderBefore_);
}

void Playground::SetVariable(const char* variable, const QString& value) {
    before_.emplace_back(variable, qEnvironmentVariableIsSet(variable) ? qgetenv(variable) : QByteArray());
    qputenv(variable, QFile::encodeName(value));
}

void Playground::MakeFiles() const {
    const QString site = Root() + u"/user/site"_s;
    for (const QString& folder : {u"/user/site/more"_s, u"/user/site/a b"_s, u"/tmp"_s, u"/bin"_s})
        QDir().mkpath(Root() + folder);
    WriteFile(site + u"/one.htm"_s, page);
    WriteFile(site + u"/b.htm"_s, QByteArray(page).replace("\r\n", "\n"));
    WriteFile(site + u"/mac.htm"_s, QByteArray(page).replace("\r\n", "\r"));
    WriteFile(site + u"/a b/with blank.html"_s, page);
    WriteFile(site + u"/utf8.html"_s,
              "<meta charset=\"utf-8\">\r\n<p>\xc3\xa9\xe2\x98\x83\xf0\x9f\x98\x80 \xd7\xa9\xd7\x9c\r\n");
    WriteFile(site + u"/latin.htm"_s, "<p>caf\xe9 \x80 \x93quoted\x94\r\n");
    WriteFile(site + u"/empty.htm"_s);
    WriteFile(site + u"/open.htm"_s, "<a href=\"<b <!-- <script>'\"");
    WriteFile(site + u"/zero.htm"_s, QByteArray("one\0two\x1athree", 13));
    WriteFile(site + u"/long.htm"_s, "<p>" + QByteArray(20000, 'x') + "\r\n");
    WriteFile(site + u"/large.htm"_s, QByteArray(page).repeated(300));
    WriteFile(site + u"/frames.htm"_s, "<FRAMESET ROWS=\"50%,*\"><FRAME SRC=\"one.htm\" NAME=a></FRAMESET>");
    WriteFile(site + u"/asks.htm"_s, "<title>asks</title><input type=file><script>alert('a');"
                                     "if (confirm('b')) prompt('c', 'd')</script><p>asked");
    WriteFile(site + u"/area.map"_s, "rect one.htm 0,0 10,10\r\ncircle b.htm 5,5 2\r\ndefault one.htm\r\n");
    WriteFile(site + u"/sheet.css"_s, "P {color: #ff0000; font-size: 12pt}\r\nH1, H2 {margin-left: 1in}\r\n");
    WritePicture(site + u"/low.png"_s, QSize(10, 20));
    WritePicture(site + u"/more/wide.jpg"_s, QSize(468, 60));
    QFile::link(u"one.htm"_s, site + u"/link.htm"_s);
    QFile::link(BuiltHelpFile(), InProgramFolder(u"tarnwick.chm"_s));
    WriteStandIn(Browser());
    WriteStandIn(Root() + u"/bin/ftp"_s);
}

void Playground::MakeSettings(Dice& dice) const {
    Settings store;
    // Now and then a first run, which begins with the Options dialog.
    if (!dice.OneIn(6))
        store.Write(Keys::FirstTimeAgain, u"1"_s);
    store.WriteFlag(Keys::UseMSIE, !dice.OneIn(5));
    store.WriteFlag(Keys::ShowUserButtons, !dice.OneIn(5));
    store.WriteFlag(Keys::UseWebTimer, dice.OneIn(3));
    store.WriteFlag(Keys::WordWrap, !dice.OneIn(4));
    store.WriteFlag(Keys::LowerCaseTags, dice.OneIn(2));
    store.WriteFlag(Keys::ColoredTags, !dice.OneIn(3));
    store.WriteFlag(Keys::ConvertChar, !dice.OneIn(3));
    store.WriteFlag(Keys::UseHTM, dice.OneIn(2));
    store.Write(Keys::TemplateWindowState, QString::number(dice.Below(3)));
    if (!dice.OneIn(3))
        store.Write(Keys::Web, Browser());
    store.Write(Keys::LastDir(), Root() + u"/user/site"_s);
    for (int n = 0; n < 3; ++n)
        store.Write(Keys::MenuArray(n), AnyFile(dice));
    for (int n = 0; n < 30; n += 3) {
        store.Write(Keys::ButCap(n), u"B%1"_s.arg(n));
        store.Write(Keys::FirstBut(n), u"<b%1>"_s.arg(n));
        store.Write(Keys::SecondBut(n), u"</b>"_s);
    }
    store.Sync();
}

QString Playground::AnyFile(Dice& dice) const {
    if (dice.OneIn(8))
        return Root() + u"/user/site/new%1.htm"_s.arg(dice.Below(5));
    QStringList files;
    QDirIterator all(Root() + u"/user"_s, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (all.hasNext())
        files << all.next();
    files.sort();
    return files.isEmpty() ? QString() : dice.From(std::as_const(files));
}

QString AnyText(Dice& dice, bool separators) {
    static const char16_t* const pieces[] = {
        u"<",          u">",           u"</",         u"<b",
        u"<a href=\"", u"<img src=x ", u"<table>",    u"<td ",
        u"\"",         u"'",           u"=",          u" ",
        u"  ",         u"&",           u"&eacute;",   u"&#9731;",
        u"<!--",       u"-->",         u"{",          u"}",
        u"\\",         u"\\par ",      u"%",          u"word",
        u"mistaek",    u"a",           u"0",          u"1",
        u"2",          u"-1",          u"10",         u"50%",
        u"3.5",        u"99999999999", u"1e9",        u"#ff00ff",
        u"red",        u"Arial",       u"é",          u"ß",
        u"€",          u"☃",           u"\U0001F600", u"שלום",
        u"e\u0301",    u"\u200d",      u"x.htm",      u"new.html",
        u"top",        u"_blank",      u"p,h1",       u";",
        u":",          u"|",           u"*",          u"?",
        u"@",          u"\u00a0",      u"\r\n",       u"\t",
        u"/",          u"../a.gif",    u"a/b.htm",    u"http://localhost/",
        u"\u0001",     u"\u007f",
    };
    QString text;
    for (int n = dice.Between(1, dice.OneIn(6) ? 12 : 3); n > 0; --n)
        text += QString::fromUtf16(dice.From(pieces));
    if (dice.OneIn(60))
        text = text.repeated(300);
    if (!separators)
        for (const QChar c : {u'/', u'\\', u'~', u'.'})
            text.remove(c);
    return text;
}
