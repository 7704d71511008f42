// The characters that a page's reader skips between tags.
#pragma once

#include <QChar>

/// Only these: a no-break space, say, is text, and belongs to the body wherever it stands.
constexpr bool IsPageBlank(QChar character) {
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\f' ||
           character == u'\r';
}
