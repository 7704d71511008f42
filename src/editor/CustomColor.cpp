// The picked colour as a document writes it.
#include "editor/CustomColor.h"

#include "platform/Values.h"

QString CustomColorText(const QString& picked) {
    const auto number = static_cast<unsigned>(Values::WholeVal(picked)) & 0xFFFFFFU;
    const QString blueFirst = QString::number(number, 16).toUpper().rightJustified(6, QLatin1Char('0'));
    return QLatin1Char('#') + blueFirst.mid(4, 2) + blueFirst.mid(2, 2) + blueFirst.mid(0, 2);
}
