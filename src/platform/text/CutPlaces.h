// Between which characters a text may be drawn in two pieces.
#pragma once

#include <QByteArrayView>

/// Whether the two pieces that a text of UTF-8 falls into at a byte look as they do in one: both neighbours
/// are of ASCII, or stand alone as the letters of Latin, Greek, Cyrillic, Chinese, Japanese and Korean do, or
/// a word that is written from left to right begins behind a blank. Letters that join, marks and words from
/// right to left stay whole. at is neither the start nor the end.
bool MayCutAt(QByteArrayView utf8, qsizetype at);
