#include "editor/typing/CharacterTable.h"

#include <algorithm>

const std::array<CharacterRow, 58>& CharacterTable() {
    static const std::array<CharacterRow, 58> table{{
        {192, QLatin1String("&Agrave;")}, {193, QLatin1String("&Aacute;")}, {194, QLatin1String("&Acirc;")},
        {195, QLatin1String("&Atilde;")}, {196, QLatin1String("&Auml;")},   {197, QLatin1String("&Aring;")},
        {198, QLatin1String("&AElig;")},  {199, QLatin1String("&Ccedil;")}, {200, QLatin1String("&Egrave;")},
        {201, QLatin1String("&Eacute;")}, {202, QLatin1String("&Ecirc;")},  {203, QLatin1String("&Euml;")},
        {204, QLatin1String("&Igrave;")}, {205, QLatin1String("&Iacute;")}, {206, QLatin1String("&Icirc;")},
        {207, QLatin1String("&Iuml;")},   {209, QLatin1String("&Ntilde;")}, {210, QLatin1String("&Ograve;")},
        {211, QLatin1String("&Oacute;")}, {212, QLatin1String("&Ocirc;")},  {213, QLatin1String("&Otilde;")},
        {214, QLatin1String("&Ouml;")},   {216, QLatin1String("&Oslash;")}, {217, QLatin1String("&Ugrave;")},
        {218, QLatin1String("&Uacute;")}, {219, QLatin1String("&Ucirc;")},  {220, QLatin1String("&Uuml;")},
        {221, QLatin1String("&Yacute;")}, {224, QLatin1String("&agrave;")}, {225, QLatin1String("&aacute;")},
        {226, QLatin1String("&acirc;")},  {227, QLatin1String("&atilde;")}, {228, QLatin1String("&auml;")},
        {229, QLatin1String("&aring;")},  {230, QLatin1String("&aelig;")},  {231, QLatin1String("&ccedil;")},
        {232, QLatin1String("&egrave;")}, {233, QLatin1String("&eacute;")}, {234, QLatin1String("&ecirc;")},
        {235, QLatin1String("&euml;")},   {236, QLatin1String("&igrave;")}, {237, QLatin1String("&iacute;")},
        {238, QLatin1String("&icirc;")},  {239, QLatin1String("&iuml;")},   {241, QLatin1String("&ntilde;")},
        {242, QLatin1String("&ograve;")}, {243, QLatin1String("&oacute;")}, {244, QLatin1String("&ocirc;")},
        {245, QLatin1String("&otilde;")}, {246, QLatin1String("&ouml;")},   {248, QLatin1String("&oslash;")},
        {249, QLatin1String("&ugrave;")}, {250, QLatin1String("&uacute;")}, {251, QLatin1String("&ucirc;")},
        {252, QLatin1String("&uuml;")},   {253, QLatin1String("&yacute;")}, {255, QLatin1String("&yuml;")},
        {223, QLatin1String("&szlig;")},
    }};
    return table;
}

QLatin1String EntityOf(int code) {
    const auto& table = CharacterTable();
    const auto row =
        std::find_if(table.begin(), table.end(), [code](const CharacterRow& r) { return r.Code == code; });
    return row == table.end() ? QLatin1String() : row->Entity;
}
