#include "builders/forms/FormTags.h"

#include "dialogs/BuildTag.h"

namespace {

const QString lineEnd = QStringLiteral("\r\n");

/// A word that was never given to the case of the tag words.
QString UpperWord(const QString& word, bool on) {
    return on ? u' ' + word : QString();
}

QString NoTab(bool on) {
    return UpperWord(QStringLiteral("NOTAB"), on);
}

QString InputStart(const QString& type, const QVector<TagPart>& parts, TagCase tagCase) {
    return InCase(QStringLiteral("<INPUT"), tagCase) +
           BuildAttributes({TagPart::Quoted(QStringLiteral("TYPE"), type)}, tagCase) +
           BuildAttributes(parts, tagCase);
}

QString OptionList(const QStringList& items, TagCase tagCase) {
    const QString option = InCase(QStringLiteral("<OPTION>"), tagCase);
    QString list;
    for (const QString& item : items) {
        if (item.isEmpty())
            break;
        if (item > QStringLiteral(" "))
            list += option + item + lineEnd;
    }
    return list;
}

} // namespace

TagPair FormTag(const FormFields& fields, TagCase tagCase) {
    return {BuildTag(QStringLiteral("<FORM"),
                     {TagPart::Quoted(QStringLiteral("ACTION"), fields.action),
                      TagPart::Quoted(QStringLiteral("TARGET"), fields.target),
                      TagPart::Quoted(QStringLiteral("METHOD"), fields.method),
                      TagPart::Quoted(QStringLiteral("ENCTYPE"), fields.encType)},
                     tagCase),
            lineEnd + QStringLiteral("</FORM>")};
}

QString TextTag(const QString& type, const TextFields& fields, TagCase tagCase) {
    return InputStart(type,
                      {TagPart::Quoted(QStringLiteral("NAME"), fields.name),
                       TagPart::Quoted(QStringLiteral("VALUE"), fields.value),
                       TagPart::Quoted(QStringLiteral("SIZE"), fields.size),
                       TagPart::Quoted(QStringLiteral("MAXLENGTH"), fields.maxLength),
                       TagPart::Quoted(QStringLiteral("ALIGN"), fields.align),
                       TagPart::Quoted(QStringLiteral("TABINDEX"), fields.tabIndex)},
                      tagCase) +
           NoTab(fields.noTab) + u'>';
}

TagPair TextAreaTag(const TextAreaFields& fields, TagCase tagCase) {
    const QString start = InCase(QStringLiteral("<TEXTAREA"), tagCase) +
                          BuildAttributes({TagPart::Quoted(QStringLiteral("NAME"), fields.name),
                                           TagPart::Quoted(QStringLiteral("COLS"), fields.cols),
                                           TagPart::Quoted(QStringLiteral("ROWS"), fields.rows),
                                           TagPart::Quoted(QStringLiteral("WRAP"), fields.wrap),
                                           TagPart::Quoted(QStringLiteral("TABINDEX"), fields.tabIndex)},
                                          tagCase);
    return {start + NoTab(fields.noTab) + u'>', QStringLiteral("</TEXTAREA>")};
}

QString RadioTag(const QString& type, const RadioFields& fields, TagCase tagCase) {
    return InputStart(type,
                      {TagPart::Quoted(QStringLiteral("NAME"), fields.name),
                       TagPart::Quoted(QStringLiteral("VALUE"), fields.value),
                       TagPart::Quoted(QStringLiteral("ALIGN"), fields.align)},
                      tagCase) +
           UpperWord(QStringLiteral("CHECKED"), fields.checked) +
           BuildAttributes({TagPart::Quoted(QStringLiteral("TABINDEX"), fields.tabIndex)}, tagCase) +
           NoTab(fields.noTab) + u'>';
}

QString SubmitTag(const QString& type, const SubmitFields& fields, TagCase tagCase) {
    return InputStart(type,
                      {TagPart::Quoted(QStringLiteral("NAME"), fields.name),
                       TagPart::Quoted(QStringLiteral("VALUE"), fields.value),
                       TagPart::Quoted(QStringLiteral("ALIGN"), fields.align),
                       TagPart::Quoted(QStringLiteral("TABINDEX"), fields.tabIndex)},
                      tagCase) +
           NoTab(fields.noTab) + u'>';
}

QString HiddenTag(const HiddenFields& fields, TagCase tagCase) {
    return BuildTag(QStringLiteral("<INPUT TYPE=\"HIDDEN\""),
                    {TagPart::Quoted(QStringLiteral("NAME"), fields.name),
                     TagPart::Quoted(QStringLiteral("VALUE"), fields.value)},
                    tagCase);
}

TagPair SelectTag(const SelectFields& fields, TagCase tagCase) {
    const QString start =
        BuildTag(QStringLiteral("<SELECT"),
                 {TagPart::Quoted(QStringLiteral("NAME"), fields.name),
                  TagPart::Word(QStringLiteral(" MULTIPLE"), fields.multiple),
                  TagPart::Quoted(QStringLiteral("SIZE"), fields.multiple ? fields.size : QString())},
                 tagCase);
    return {start + lineEnd + OptionList(fields.items, tagCase),
            InCase(QStringLiteral("</SELECT>"), tagCase)};
}
