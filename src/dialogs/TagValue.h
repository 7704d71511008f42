// Reading one attribute out of a tag's text, by plain search.
#pragma once

#include <QString>

/// The value behind the first place of a key ("alt=\"", in any case), up to the next quote, or up to the last
/// character but one of the tag where none follows. Empty where the key is absent.
QString QuotedValue(const QString& tag, QStringView key);

/// The same up to the next blank: quotes around the value belong to it.
QString PlainValue(const QString& tag, QStringView key);
