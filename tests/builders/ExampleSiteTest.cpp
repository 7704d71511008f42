// The pages of the example site, read by the program's own dialogs: each field shows what its tag says.
#include "builders/commands/EditTag.h"
#include "builders/DialogTest.h"
#include "dialogs/TagRows.h"
#include "platform/values/Cp1252.h"
#include "support/SourceFolder.h"

#include <map>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <set>

namespace {

/// The attributes of a tag by their names in upper case, as any browser reads them.
std::map<QString, QString> AttributesOf(const QString& tag) {
    static const QRegularExpression attribute(T(u"\\s([A-Za-z]+)\\s*=\\s*(?:\"([^\"]*)\"|([^\\s\">]+))"));
    std::map<QString, QString> attributes;
    for (auto found = attribute.globalMatch(tag); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        attributes.emplace(match.captured(1).toUpper(), match.captured(2) + match.captured(3));
    }
    return attributes;
}

struct FieldRow {
    const char16_t* field;
    const char16_t* attribute;
};

constexpr FieldRow bodyFields[] = {{u"txtBG", u"BGCOLOR"},
                                   {u"txtText", u"TEXT"},
                                   {u"txtLink", u"LINK"},
                                   {u"txtVlink", u"VLINK"},
                                   {u"txtAlink", u"ALINK"}};

constexpr FieldRow imageFields[] = {{u"txtURL", u"SRC"},       {u"txtLowSRC", u"LOWSRC"},
                                    {u"txtALT", u"ALT"},       {u"txtWidth", u"WIDTH"},
                                    {u"txtHeight", u"HEIGHT"}, {u"txtHSpace", u"HSPACE"},
                                    {u"txtVSpace", u"VSPACE"}, {u"txtBorder", u"BORDER"},
                                    {u"cboAlign", u"ALIGN"},   {u"txtUseMap", u"USEMAP"}};

class ExampleSiteTest : public DialogTest {
  protected:
    static QStringList Pages() {
        QStringList pages;
        QDirIterator files(SourceFolder() + T(u"/examples/site"), {T(u"*.html"), T(u"*.htm")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            pages << files.next();
        return pages;
    }
    static QString Read(const QString& page) {
        QFile file(page);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return Cp1252::FromBytes(file.readAll());
    }
    /// The open form shows the tag's attributes, and nothing where the tag has none.
    template <size_t Count> void ShowsTag(const FieldRow (&rows)[Count], const QString& tag) {
        const auto attributes = AttributesOf(tag);
        for (const FieldRow& row : rows) {
            const auto found = attributes.find(T(row.attribute));
            QString value = found == attributes.end() ? QString() : found->second;
            // The field leaves out the sign that every map's name begins with.
            if (T(row.attribute) == T(u"USEMAP") && value.startsWith(u'#'))
                value.remove(0, 1);
            EXPECT_EQ(Field(T(row.field)), value) << tag.toStdString();
        }
    }
};

TEST_F(ExampleSiteTest, TheBodyDialogReadsEachPageAndWritesItsTagAsItStood) {
    static const QRegularExpression body(T(u"<BODY[^>]*>"), QRegularExpression::CaseInsensitiveOption);
    const QStringList pages = Pages();
    ASSERT_GE(pages.size(), 5);
    for (const QString& page : pages) {
        SCOPED_TRACE(page.toStdString());
        const QString text = Read(page);
        const QString tag = body.match(text).captured();
        ASSERT_FALSE(AttributesOf(tag).empty());
        frame.SetText(text);
        frame.Box().SetSelStart(0);
        Open(T(u"tb_body"), T(u"frmBody"));
        ShowsTag(bodyFields, tag);
        Press(T(u"cmdOK"));
        EXPECT_EQ(body.match(Text()).captured(), tag);
    }
}

TEST_F(ExampleSiteTest, EditTagReadsEachPicture) {
    static const QRegularExpression image(T(u"<IMG\\s[^>]*>"), QRegularExpression::CaseInsensitiveOption);
    std::set<QString> seen;
    for (const QString& page : Pages()) {
        SCOPED_TRACE(page.toStdString());
        const QString text = Read(page);
        for (auto found = image.globalMatch(text); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            frame.SetText(text);
            frame.Box().SetSelStart(static_cast<int>(match.capturedStart()) + 3);
            EditTag(frame);
            form = frame.LoadedForms().Find(T(u"frmGraphicLink"));
            ASSERT_NE(form, nullptr);
            ShowsTag(imageFields, match.captured());
            for (const auto& [name, value] : AttributesOf(match.captured()))
                seen.insert(name);
            Press(T(u"cmdCancel"));
        }
    }
    // The site shows what the dialog can do.
    for (const char16_t* name : {u"SRC", u"ALT", u"WIDTH", u"HEIGHT", u"BORDER", u"ALIGN", u"USEMAP"})
        EXPECT_TRUE(seen.contains(T(name))) << T(name).toStdString();
}

} // namespace
