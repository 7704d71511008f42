// A start tag from a table: the opening word and one row an attribute.
#pragma once

#include <QString>
#include <QVector>

class Frame;

/// One piece of a tag. An attribute whose value is empty gives nothing.
struct TagPart {
    QString name;
    QString value;
    bool quoted = false;
    QString bare;

    /// ` NAME="value"`
    static TagPart Quoted(const QString& name, const QString& value) {
        return {name, value, true, QString()};
    }
    /// ` NAME=value`
    static TagPart Plain(const QString& name, const QString& value) {
        return {name, value, false, QString()};
    }
    /// A word without a value, its blank in front (" NOSHADE"), if it is on.
    static TagPart Word(const QString& bare, bool on = true) {
        return {QString(), QString(), false, on ? bare : QString()};
    }
};

/// The opening word ("<IMG") and the parts, in order, and ">". Names and words are lowered with LowerCaseTags
/// at 1, values and ">" never.
QString BuildTag(Frame& frame, const QString& opening, const QVector<TagPart>& parts);
