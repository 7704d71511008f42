// One style as text: the rule of an element.
#pragma once

#include <QStringList>

/// "font-size: large"
QString Declaration(const QString& property, const QString& value);

/// "H1 { color: red;  }": each declaration, the last one too, is followed by a semicolon and a blank.
QString Rule(const QString& element, const QStringList& declarations);
