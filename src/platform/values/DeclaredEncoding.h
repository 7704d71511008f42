// What a page, or a style sheet, says of its own encoding.
#pragma once

#include <QByteArrayView>
#include <QString>

/// So many bytes of a file may declare its encoding.
inline constexpr qsizetype declarationReach = 1024;

/// The name in the first meta tag that has one, in small letters; empty where there is none. Comments count
/// for nothing, as in browsers.
QString CharsetOfMetaTag(QByteArrayView head);

/// Whether the head of a file declares UTF-8, by any of its names: in a meta tag, by the declaration of an
/// XML document, or by the @charset of a style sheet. head is the file, or as much of it as is to be looked
/// at.
bool DeclaresUtf8(QByteArrayView head);
