#include "web/PageSource.h"

#include "web/BodyEnd.h"
#include "web/PageBlank.h"

#include <QRegularExpression>
#include <QSet>

namespace {

/// Steps through what stands before a page's body: comments, declarations, and the tags of a head.
class HeadScan {
  public:
    explicit HeadScan(QStringView text) : text_(text) {}

    /// The position behind the body's start tag, or -1 where something else than a head comes before it.
    qsizetype BodyBegin() {
        while (SkipBlanks()) {
            if (text_.mid(at_).startsWith(u"<!--")) {
                at_ += 2;
                if (!GoTo(u"-->"))
                    return -1;
                SkipTag();
                continue;
            }
            const QString name = TagName();
            if (!SkipTag())
                return -1;
            if (name == QStringLiteral("body"))
                return at_;
            if (!MayStandBefore(name))
                return -1;
            if (HasRawContent(name) && !GoTo(QStringLiteral("</") + name))
                return -1;
        }
        return -1;
    }

  private:
    /// False at the end, and at text that is no tag.
    bool SkipBlanks() {
        while (at_ < text_.size() && IsPageBlank(text_[at_]))
            ++at_;
        return at_ < text_.size() && text_[at_] == u'<';
    }

    bool GoTo(QStringView end) {
        const qsizetype found = text_.indexOf(end, at_, Qt::CaseInsensitive);
        at_ = found < 0 ? text_.size() : found;
        return found >= 0;
    }

    /// The name of the tag that begins here, in small letters; "!" for a declaration, "/head" for an end tag.
    QString TagName() const {
        qsizetype end = at_ + 1;
        if (end < text_.size() && (text_[end] == u'!' || text_[end] == u'?'))
            return QStringLiteral("!");
        while (end < text_.size() && (text_[end].isLetterOrNumber() || text_[end] == u'/') &&
               (text_[end] != u'/' || end == at_ + 1))
            ++end;
        return text_.mid(at_ + 1, end - at_ - 1).toString().toLower();
    }

    /// Goes behind the tag's ">", past those in quotes.
    bool SkipTag() {
        QChar quote;
        for (; at_ < text_.size(); ++at_) {
            const QChar here = text_[at_];
            if (!quote.isNull())
                quote = here == quote ? QChar() : quote;
            else if (here == u'"' || here == u'\'')
                quote = here;
            else if (here == u'>')
                return ++at_ > 0;
        }
        return false;
    }

    static bool MayStandBefore(const QString& name) {
        static const QSet<QString> head = {
            QStringLiteral("!"),       QStringLiteral("html"),     QStringLiteral("head"),
            QStringLiteral("/head"),   QStringLiteral("title"),    QStringLiteral("/title"),
            QStringLiteral("meta"),    QStringLiteral("link"),     QStringLiteral("base"),
            QStringLiteral("style"),   QStringLiteral("/style"),   QStringLiteral("script"),
            QStringLiteral("/script"), QStringLiteral("noscript"), QStringLiteral("/noscript")};
        return head.contains(name);
    }

    static bool HasRawContent(const QString& name) {
        return name == QStringLiteral("title") || name == QStringLiteral("style") ||
               name == QStringLiteral("script");
    }

    QStringView text_;
    qsizetype at_ = 0;
};

/// The position behind all comments, declarations and blanks that a text begins with.
qsizetype HtmlBegin(QStringView text) {
    const qsizetype lastClose = text.lastIndexOf(u"-->");
    qsizetype at = 0;
    while (at < text.size()) {
        const QStringView rest = text.sliced(at);
        qsizetype last = 0;
        if (rest.startsWith(u"<!--") && lastClose >= at + 4)
            last = rest.indexOf(u"-->", 4) + 2;
        else if (rest.startsWith(u"<!") || rest.startsWith(u"<?"))
            last = rest.indexOf(u'>');
        else if (!IsPageBlank(rest.front()))
            last = -1;
        if (last < 0)
            return at;
        at += last + 1;
    }
    return at;
}

/// The line end of the first line; CR LF in a text of one line.
QString LineEndOf(const QString& text) {
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\r|\n"));
    const auto first = lineEnd.match(text);
    return first.hasMatch() ? first.captured() : QStringLiteral("\r\n");
}

QString LineFeeds(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
}

} // namespace

PageSource::PageSource(const QByteArray& bytes, TextEncoding document)
    : bytes_(bytes), encoding_(PageEncoding::Of(bytes, document)), text_(encoding_.Decode(bytes)) {
    FindBody();
}

void PageSource::FindBody() {
    bodyBegin_ = HeadScan(text_).BodyBegin();
    if (bodyBegin_ < 0)
        return;
    bodyEnd_ = ::BodyEnd(text_, bodyBegin_);
}

QString PageSource::OwnLineEnds(QString text) const {
    const QString own = LineEndOf(text_);
    text = LineFeeds(std::move(text));
    return own == QStringLiteral("\n") ? text : text.replace(QStringLiteral("\n"), own);
}

QByteArray PageSource::WithBody(const QString& body) const {
    return encoding_.Encode(text_.first(bodyBegin_) + OwnLineEnds(body) + text_.sliced(bodyEnd_));
}

QByteArray PageSource::WithDocument(const QString& html) const {
    const QString kept = text_.first(HtmlBegin(text_));
    return encoding_.Encode(kept + OwnLineEnds(html + u'\n'));
}
