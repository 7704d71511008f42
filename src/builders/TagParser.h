// Reading a tag back: the attributes that a dialog has fields for, by plain search.
#pragma once

#include <functional>
#include <optional>
#include <QString>
#include <QVector>

/// A stretch of a document: where it starts (0-based) and how long it is, in characters.
struct TagPlace {
    int start;
    int length;
    bool operator==(const TagPlace&) const = default;
};

/// The characters [start, start + length) of a document, cut to what there is.
using TextReader = std::function<QString(int start, int length)>;

/// The tag around a caret (0-based): from the nearest "<" left of it through the next ">". Where the text's
/// start comes first the place is the caret, with length 0. Nothing where a ">" comes first, or where the "<"
/// has no ">" behind it. Quotes are not looked at. Reads no further than it must.
std::optional<TagPlace> FindTagAround(int caret, const TextReader& read);

/// One row of a table: the key as it stands in the tag (any case), and the text that ends the value.
struct TagKey {
    QString key;
    QString terminator;
    QString field; ///< objectName of the dialog's control that takes the value
};

enum class TagKind { None, Image, Body, Embed };

/// What dialog a tag belongs to. Substring tests over the whole tag, any case, in the order image, body,
/// embed: no test looks at the first word.
TagKind KindOfTag(const QString& tag);

/// The keys of an image tag and of an embed, in scan order.
const QVector<TagKey>& ImageKeys();
const QVector<TagKey>& EmbedKeys();

/// The value behind the first occurrence of the key, up to the terminator, or to the last character but one
/// of the tag where no terminator follows. Empty where the key is absent.
QString TagValue(const QString& tag, const TagKey& key);

/// True if an image tag is a server-side map.
bool HasIsMap(const QString& tag);
