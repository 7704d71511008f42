// What a file dialog's target is: its default filters, and how a file goes into it and out of it.
#include "dialogs/CDialog.h"

#include "dialogs/PictureFile.h"
#include "platform/store/WholeFile.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/TextEncoding.h"

#include <QBuffer>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace {

enum class Kind { None, RichText, Picture, List, Text };

Kind KindOf(const QWidget* control) {
    if (qobject_cast<const RichTextBox*>(control) || qobject_cast<const QTextEdit*>(control))
        return Kind::RichText;
    if (qobject_cast<const QLabel*>(control))
        return Kind::Picture;
    if (qobject_cast<const QListWidget*>(control) || qobject_cast<const QComboBox*>(control))
        return Kind::List;
    if (qobject_cast<const QLineEdit*>(control) || qobject_cast<const QPlainTextEdit*>(control))
        return Kind::Text;
    return Kind::None;
}

QStringList Lines(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(u'\n');
}

/// A control's text as files hold it; a list has one line an entry.
QString TextOf(const QWidget* control) {
    QString text;
    if (const auto* rich = qobject_cast<const RichTextBox*>(control))
        return rich->Text();
    if (const auto* field = qobject_cast<const QLineEdit*>(control))
        return field->text();
    if (const auto* list = qobject_cast<const QListWidget*>(control)) {
        for (int i = 0; i < list->count(); ++i)
            text += list->item(i)->text() + QStringLiteral("\r\n");
        return text;
    }
    if (const auto* list = qobject_cast<const QComboBox*>(control)) {
        for (int i = 0; i < list->count(); ++i)
            text += list->itemText(i) + QStringLiteral("\r\n");
        return text;
    }
    if (const auto* plain = qobject_cast<const QPlainTextEdit*>(control))
        text = plain->toPlainText();
    if (const auto* rich = qobject_cast<const QTextEdit*>(control))
        text = rich->toPlainText();
    return text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
}

void SetTextOf(QWidget* control, const QString& text) {
    if (auto* rich = qobject_cast<RichTextBox*>(control)) {
        rich->SetText(text);
    } else if (auto* field = qobject_cast<QLineEdit*>(control)) {
        field->setText(text);
    } else if (auto* list = qobject_cast<QListWidget*>(control)) {
        list->clear();
        list->addItems(Lines(text));
    } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
        combo->clear();
        combo->addItems(Lines(text));
    } else if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
        plain->setPlainText(text);
    } else if (auto* edit = qobject_cast<QTextEdit*>(control)) {
        edit->setPlainText(text);
    }
}

/// Only a document's control can hold more than code page 1252 does.
bool HoldsUnicode(const QWidget* control) {
    const auto* rich = qobject_cast<const RichTextBox*>(control);
    return rich && rich->Holds() == CharacterSet::Unicode;
}

} // namespace

QString DialogTarget::DefaultFilters() const {
    const QString text = QStringLiteral("Text files |*.txt|");
    switch (KindOf(control_)) {
    case Kind::RichText:
        return QStringLiteral("All Document files|*.rtf;*.txt|Rich Text Box files|*.rtf|Text Files|*.txt|");
    case Kind::Picture:
        return QStringLiteral("All Image files|*.bmp;*.dib;*.wmf;*.emf;*.ico;*.cur|Bitmaps|*.bmp;*.dib|"
                              "Metafiles|*.wmf;*.emf|Icons|*.ico;*.cur|");
    case Kind::List:
        return QStringLiteral("Data Files|*.dat;*.lst|");
    case Kind::Text:
        return text;
    case Kind::None:
        break;
    }
    return text_ ? text : QString();
}

bool DialogTarget::Load(const QString& path) const {
    const Kind kind = KindOf(control_);
    if (kind == Kind::Picture) {
        const QPixmap picture = ReadPicture(path);
        if (!picture.isNull())
            static_cast<QLabel*>(control_)->setPixmap(picture);
        return !picture.isNull();
    }
    if (kind == Kind::None && !text_)
        return false;
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    if (!bytes)
        return false;
    const QString text =
        Decode(*bytes, HoldsUnicode(control_) ? EncodingOf(*bytes) : TextEncoding::CodePage1252);
    if (text_)
        *text_ = text;
    else
        SetTextOf(control_, text);
    return true;
}

bool DialogTarget::Save(const QString& path) const {
    const Kind kind = KindOf(control_);
    if (kind == Kind::None && !text_)
        return false;
    if (kind == Kind::Picture) {
        QBuffer bytes;
        const QPixmap picture = static_cast<QLabel*>(control_)->pixmap(Qt::ReturnByValue);
        return !picture.isNull() && picture.save(&bytes, "BMP") && WholeFile::Write(path, bytes.data());
    }
    const TextEncoding encoding = HoldsUnicode(control_) ? TextEncoding::Utf8 : TextEncoding::CodePage1252;
    return WholeFile::Write(path, Encode(text_ ? *text_ : TextOf(control_), encoding));
}
