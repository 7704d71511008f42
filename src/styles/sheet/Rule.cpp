#include "styles/sheet/Rule.h"

QString Declaration(const QString& property, const QString& value) {
    return property + QStringLiteral(": ") + value;
}

QString Rule(const QString& element, const QStringList& declarations) {
    const QString separator = QStringLiteral("; ");
    QString rule = element + QStringLiteral(" { ") + declarations.join(separator);
    if (!declarations.isEmpty())
        rule += separator;
    return rule + QStringLiteral(" }");
}
