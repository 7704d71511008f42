// Where a page's body ends in its source.
#pragma once

#include <QStringView>

/// The position, from `from` on, of the first end tag of the body that nothing but comments, blanks and the
/// html tag's end come behind: engines count what else comes there to the body's content. The text's size
/// where there is none.
qsizetype BodyEnd(QStringView text, qsizetype from);
