// Reading a tag back: the attributes that a dialog has fields for, by plain search.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

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
